// A session of the live window, separate from that of the configuration pages.
#pragma once

#include "device/registry/ownsession.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>

#include <memory>
#include <stop_token>

class CDeviceFactory;

/// A login to one device for QML, made on a thread of the back end. The session lasts until close(), another
/// factory, the destructor, or a later open() that makes a new login. An open() cancels an earlier one that
/// is still running: its ended() is not emitted, and its login is logged out. Without a factory, open() has
/// no effect. No function blocks; a logout runs in the background.
///
/// Lives on the main thread.
class LiveSession : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    Q_PROPERTY(double handle READ handleNumber NOTIFY handleChanged)
public:
    explicit LiveSession(QObject *parent = nullptr) : QObject(parent) {}
    ~LiveSession() override;

    /// The factory that gives access to the devices; null before it is set and after it is destroyed.
    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    /// Closes the session, then sets the factory.
    void setDeviceFactory(CDeviceFactory *deviceFactory);

    /// Login handle of the network library, for live streams; 0 without a session.
    [[nodiscard]] qint64 handle() const { return m_session ? m_session->handle() : 0; }
    /// Same for QML, whose numbers are exact up to 2^53.
    [[nodiscard]] double handleNumber() const { return static_cast<double>(handle()); }

    /// Logs in to the device at `ipport` ("address:port"). If there is a session already, it must be with
    /// this device. It is kept if the device responds in it, and `account` and `password` are not used then.
    /// If the device no longer accepts its login, no login is made, and ended() reports that. If the device
    /// does not respond in it, a new login replaces it. ended() follows, unless open() or close() is called
    /// before.
    Q_INVOKABLE void open(const QString &ipport, const QString &account, const QString &password);

    /// Saves an image of a channel (from 0) to the folder `folder` in the folder of snapshots, see
    /// OwnSession::takeImage(). imageTaken() follows, unless close() is called before. Several calls may run
    /// at the same time. Without a session, nothing happens.
    Q_INVOKABLE void takeImage(int channel, const QString &folder);

    /// Cancels open() and takeImage(), whose signals are not emitted then, and logs out.
    Q_INVOKABLE void close();

Q_SIGNALS:
    void deviceFactoryChanged();
    void handleChanged();
    /// An open() has ended. `result` is a LoginResult. After a failure, an existing session stays. `channels`
    /// are the channels after a new login, maps with the keys of ChannelKey; empty after a failure and if the
    /// session was kept.
    void ended(int result, const QVariantList &channels);
    /// A takeImage() has ended. `path` is "file:///" and the absolute path of the file, empty on failure;
    /// `message` is then the reason in the user's language.
    void imageTaken(int channel, const QString &path, const QString &message);

private:
    void take(const OwnSessionOffer &offer);
    void setSession(const std::shared_ptr<OwnSession> &session);

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before this object
    std::stop_source m_stop;                  ///< of the latest open()
    std::stop_source m_imageStop;             ///< of each takeImage() since close()
    std::shared_ptr<OwnSession> m_session;    ///< null without a session; shared with running takeImage()
    int m_number = 0; ///< of the latest open(); results with another number are dropped
};
