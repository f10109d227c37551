#pragma once

#include "device/registry/busystate.h"

#include <QPointer>

/// QML element that registers a work in BusyState while `active` is true and `state` is not null. The
/// destructor ends the registration, so that a closed page or dialog leaves none. Lives on the main thread.
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

    /// May be null. A change ends the registration in the earlier object and starts one in the new object.
    [[nodiscard]] BusyState *state() const { return m_state; }
    void setState(BusyState *state);

    /// The name of the work, shown to the user. A change renames a running registration.
    [[nodiscard]] QString title() const { return m_title; }
    void setTitle(const QString &title);

    /// The resource that the work needs: BusyState::Rows by default. A change has no effect on a running
    /// registration, only on the next one.
    [[nodiscard]] BusyState::Need need() const { return m_need; }
    void setNeed(BusyState::Need need);

    /// Whether the work runs; false initially.
    [[nodiscard]] bool isActive() const { return m_isActive; }
    void setActive(bool isActive);

Q_SIGNALS:
    void changed(); ///< one of the properties has changed

private:
    /// Starts or ends the registration according to `active` and `state`.
    void update();
    void end();

    QPointer<BusyState> m_state; ///< not owned; may be destroyed before this object
    QString m_title;
    BusyState::Need m_need = BusyState::Rows;
    bool m_isActive = false;
    int m_work = 0; ///< id in BusyState; 0 while not registered
};
