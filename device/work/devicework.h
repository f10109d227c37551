// Work with one device on another thread, for a page or dialog.
#pragma once

#include "device/registry/pagestep.h"

#include <QObject>
#include <QPointer>
#include <QVariantMap>

#include <stop_token>

class CDeviceFactory;

/// Runs one piece of work at a time on a thread of the back end. Starting work cancels the previous one, and
/// so does the destructor. Cancelled work continues to its next safe point in the background; its outcome is
/// dropped, and its login is logged out.
///
/// No function blocks, and no lock is held during a request. Without a factory, no function has an effect.
/// Work on the current session uses a copy of the session's state. When it ends, in one turn of the event
/// loop, the copy replaces the state, the factory emits the signals of the work in order, and ended()
/// follows. Until then the factory's getters return the previous state. Start a sequence of work from a
/// handler of ended().
///
/// Lives on the main thread.
class DeviceWork : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)
public:
    explicit DeviceWork(QObject *parent = nullptr) : QObject(parent) {}
    ~DeviceWork() override;

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    /// Logs in to a device and reads its details. The value of ended() is that of
    /// CDeviceFactory::readDeviceDetail(). `ipport` is its "address:port".
    Q_INVOKABLE void readDetail(const QString &ipport);

    /// Logs in to a device and adds its row. Keys of `device`: "mode" (0 by address, 1 by P2P ID), "address"
    /// (or the P2P ID), "port" (int), "account" and "password". The value of ended() is a map of "result" (a
    /// LoginResult) and "text" (a message in the user's language, may be empty). A row that was added before
    /// a cancellation is reported by the factory like any other new row.
    Q_INVOKABLE void addDevice(const QVariantMap &device);

    /// Drops the running work: ended() is not emitted.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void deviceFactoryChanged();
    void runningChanged();
    void ended(const QVariant &value); ///< `value` depends on the work; invalid if the work has none

protected:
    /// Starts work and cancels the running one.
    void begin(const PageStep &step);

    /// True while the outcome of work is applied and its signals are emitted.
    [[nodiscard]] bool isTaking() const { return m_isTaking; }

    /// Called after the factory has changed from `before`, which may be null.
    virtual void changeFactory(CDeviceFactory *before);

private:
    void end(int number, const PageOutcome &outcome);
    void setRunning(bool isRunning);

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before this object
    std::stop_source m_stop;
    int m_number = 0; ///< of the current work; outcomes with another number are dropped
    bool m_isRunning = false;
    bool m_isTaking = false;
};
