// Work with a device that a page or a dialog waits for, while the window goes on.
#pragma once

#include "device/registry/scenestep.h"

#include <QObject>
#include <QPointer>
#include <QVariantMap>

#include <stop_token>

class CDeviceFactory;

/// One piece of work at a time, on a thread of the back end. The one that is begun last counts: an earlier
/// one is cancelled, as it is with the end of this object. What is cancelled goes on to its next safe point
/// without anybody waiting for it; its results are dropped, and a login that it has made is logged out.
///
/// Nothing here blocks its caller, and no lock is held over a request. Work on the current session uses a
/// copy of what is known of the device. Until its end the factory's getters return what was known before;
/// then, in one turn of the event loop, the results take their place, the factory emits all signals of the
/// work in their order, and ended() follows. Work for one page that is to be done in a row is begun in a
/// handler of ended().
///
/// Lives on the scene's thread.
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

    /// Logs in to a device and requests everything that it reports of itself; the value is what the
    /// factory's readDeviceDetail() returns.
    Q_INVOKABLE void readDetail(const QString &ipport);

    /// Logs in to a device and adds its row: "mode" (0 by address, 1 by P2P ID), "address", "port", "account"
    /// and "password". The value is a map of "result" (a LoginResult) and "text", in the user's language,
    /// where there is more to say. A row that was added before the cancellation took effect is reported like
    /// any other new row.
    Q_INVOKABLE void addDevice(const QVariantMap &device);

    /// Drops what runs: ended() does not come.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void deviceFactoryChanged();
    void runningChanged();
    void ended(const QVariant &value);

protected:
    void begin(const SceneStep &step);

    /// The signals of a work that has ended are being emitted.
    [[nodiscard]] bool isTaking() const { return m_isTaking; }

    /// The factory has changed from `before`, which may be null.
    virtual void changeFactory(CDeviceFactory *before);

private:
    void end(int number, const SceneOutcome &outcome);
    void setRunning(bool isRunning);

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before the scene is
    std::stop_source m_stop;
    int m_number = 0; ///< of the work that counts
    bool m_isRunning = false;
    bool m_isTaking = false;
};
