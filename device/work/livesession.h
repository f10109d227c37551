// A session of the live window, separate from that of the configuration pages.
#pragma once

#include "device/registry/ownsession.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>

#include <memory>
#include <stop_token>

class CDeviceFactory;

/// Logs in to a device for QML on a thread of the back end. The login lasts until close(), the destructor or
/// a later successful open(). A new open() replaces one that is running, whose result is dropped and logged
/// out. Without a factory, open() has no effect.
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

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);

    /// Login handle of the device library; 0 without a session.
    [[nodiscard]] qint64 handle() const { return m_session ? m_session->handle() : 0; }
    /// Same for QML, whose numbers are exact up to 2^53.
    [[nodiscard]] double handleNumber() const { return static_cast<double>(handle()); }

    /// Keeps the present session if the device responds in it, otherwise logs in to the device at `ipport`,
    /// its "address:port". The present session must be with the same device. ended() follows, unless open()
    /// or close() is called before.
    Q_INVOKABLE void open(const QString &ipport, const QString &account, const QString &password);

    /// Saves an image of a channel (from 0) of the present session to `folder`, see OwnSession.
    /// imageTaken() follows, unless the session is closed before. Without a session, nothing happens.
    Q_INVOKABLE void takeImage(int channel, const QString &folder);

    /// Logs out and cancels open() and takeImage().
    Q_INVOKABLE void close();

Q_SIGNALS:
    void deviceFactoryChanged();
    void handleChanged();
    /// `result` is a LoginResult. The present session is kept after every failure. `channels` are those of a
    /// new login, maps with the keys of ChannelKey; empty if the present session is kept.
    void ended(int result, const QVariantList &channels);
    /// `path` is a "file:///" URL, empty on failure; `message` is then the reason in the user's language.
    void imageTaken(int channel, const QString &path, const QString &message);

private:
    void take(const OwnSessionOffer &offer);
    void setSession(const std::shared_ptr<OwnSession> &session);

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before this object
    std::stop_source m_stop;
    std::stop_source m_imageStop;
    std::shared_ptr<OwnSession> m_session;
    int m_number = 0; ///< of the latest open(); results with another number are dropped
};
