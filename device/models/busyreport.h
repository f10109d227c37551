#pragma once

#include "device/registry/busystate.h"

#include <QPointer>

/// Enters a work of the scene into the busy state while it is active. A work ends at the latest with its
/// report, so that nothing stays entered when a page or a dialog goes.
class BusyReport : public QObject
{
    Q_OBJECT
    Q_PROPERTY(BusyState *state READ state WRITE setState NOTIFY changed REQUIRED)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY changed REQUIRED)
    Q_PROPERTY(BusyState::Need need READ need WRITE setNeed NOTIFY changed)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY changed REQUIRED)
public:
    explicit BusyReport(QObject *parent = nullptr);
    ~BusyReport() override;

    [[nodiscard]] BusyState *state() const { return m_state; }
    void setState(BusyState *state);

    /// The name of the work for the user.
    [[nodiscard]] QString title() const { return m_title; }
    void setTitle(const QString &title);

    /// Rows at first. A change counts from the next begin on.
    [[nodiscard]] BusyState::Need need() const { return m_need; }
    void setNeed(BusyState::Need need);

    [[nodiscard]] bool isActive() const { return m_isActive; }
    void setActive(bool isActive);

Q_SIGNALS:
    void changed();

private:
    /// Begins or ends the work, as `active` and `state` have it now.
    void update();
    void end();

    QPointer<BusyState> m_state; ///< not owned; ends before the scene does
    QString m_title;
    BusyState::Need m_need = BusyState::Rows;
    bool m_isActive = false;
    int m_work = 0; ///< 0 while none is entered
};
