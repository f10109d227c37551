// Work with one device on another thread, for a page or dialog.
#pragma once

#include "device/registry/pagestep.h"

#include <QObject>
#include <QPointer>
#include <QVariantMap>

#include <stop_token>

class CDeviceFactory;

/// Runs one piece of work at a time on a thread of the back end of dhFamily. Running work is cancelled by the
/// start of other work, by another factory and by the destructor. Cancelled work continues to its next safe
/// point in the background; its outcome is dropped, its ended() is not emitted, and its login is logged out.
///
/// No function blocks. Without a factory, no function has an effect: ended() does not follow.
///
/// Work on the current session (SessionWork) uses a copy of the session's state. Until it ends, the factory's
/// getters return the previous state. When it ends, in one turn of the event loop, the copy replaces the
/// state, the factory emits the signals of the work in order, and ended() follows. The next work of a
/// sequence must be started from a handler of ended().
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

    /// The factory that gives access to the devices; null before it is set and after it is destroyed.
    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);
    /// True from the start of work until its ended() or its cancellation.
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    /// Logs in to the device at `ipport` ("address:port") with its account, reads its properties and logs
    /// out. The value of ended() is the map of CDeviceBase::readDeviceDetail(), also after a failed login.
    Q_INVOKABLE void readDetail(const QString &ipport);

    /// Logs in to a device and adds its row. Keys of `device`: "mode" (0 by address, 1 by P2P ID), "address"
    /// (or the P2P ID), "port" (int), "account" and "password". The value of ended() is a map of "result" (a
    /// LoginResult) and "text" (a message in the user's language, may be empty). No row is added on failure.
    /// A row that was added before a cancellation stays, and the factory reports it like any other new row.
    Q_INVOKABLE void addDevice(const QVariantMap &device);

    /// Cancels the running work; does nothing without one.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void deviceFactoryChanged();
    void runningChanged();
    /// Work has ended without being cancelled, with or without success. The function that starts the work
    /// states its `value`; invalid if it states none.
    void ended(const QVariant &value);

protected:
    /// Starts work and cancels the running one. deviceFactory() must not be null.
    void begin(const PageStep &step);

    /// True while the outcome of work is applied and its signals are emitted.
    [[nodiscard]] bool isTaking() const { return m_isTaking; }

    /// Called after the factory has changed from `before`, which may be null. Does nothing by default.
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
