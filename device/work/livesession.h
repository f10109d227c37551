// A session of the live window's own, beside that of the configuration pages.
#pragma once

#include "device/registry/ownsession.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>

#include <memory>
#include <stop_token>

class CDeviceFactory;

/// Logs in to a device for the scene while the window goes on, and holds the login until close() or its own
/// end. The order that is given last counts; what comes of an earlier one is dropped and logged out.
///
/// Lives on the scene's thread.
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

    /// Of the login, 0 while there is none.
    [[nodiscard]] qint64 handle() const { return m_session ? m_session->handle() : 0; }
    /// The same for the scene, whose whole numbers go up to 2^53.
    [[nodiscard]] double handleNumber() const { return static_cast<double>(handle()); }

    /// Keeps the present session if the device responds in it, otherwise logs in. ended() follows, unless
    /// another order comes first.
    Q_INVOKABLE void open(const QString &ipport, const QString &account, const QString &password);

    /// Takes a picture of a channel, from 0, in the present session, see OwnSession. pictureTaken() follows,
    /// unless the session is closed first.
    Q_INVOKABLE void takePicture(int channel, const QString &folder);

    /// Logs out, and gives up what open() and takePicture() began.
    Q_INVOKABLE void close();

Q_SIGNALS:
    void deviceFactoryChanged();
    void handleChanged();
    /// `result` is a LoginResult. The present session stays when a device does not answer.
    void ended(int result, const QVariantList &channels);
    /// `path` is a "file:///" address, empty on failure; `message` then says why in the user's language.
    void pictureTaken(int channel, const QString &path, const QString &message);

private:
    void take(const OwnSessionOffer &offer);
    void setSession(const std::shared_ptr<OwnSession> &session);

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before the scene is
    std::stop_source m_stop;
    std::stop_source m_pictureStop;
    std::shared_ptr<OwnSession> m_session;
    int m_number = 0; ///< of the order that counts
};
