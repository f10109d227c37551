// A session with a device beside the current one.
#pragma once

#include "device/registry/devicestep.h"

#include <QString>
#include <QVariantList>
#include <QtGlobal>

#include <functional>
#include <memory>

/// A picture of a channel that was taken for the user.
struct OwnPicture
{
    QString path = {};    ///< a "file:///" address, empty on failure
    QString message = {}; ///< why it failed, in the user's language
};

/// A picture of a channel that is to be taken in a login.
struct OwnPictureOrder
{
    qint64 handle = 0; ///< of the login
    int channelCount = 0;
    int channel = 0; ///< from 0
    QString folder;  ///< below "snap/" in the current folder
};

/// Takes a picture. Any thread, which it blocks until the picture is there or given up.
using OwnPictureTaker = std::function<OwnPicture(const OwnPictureOrder &order, const StepControl &control)>;

/// A login that lasts as long as this object. It ends without holding up the scene's thread.
class OwnSession
{
public:
    OwnSession() = default;
    virtual ~OwnSession() = default;
    OwnSession(const OwnSession &) = delete;
    OwnSession &operator=(const OwnSession &) = delete;

    [[nodiscard]] virtual qint64 handle() const = 0; ///< of the login, for live streams
    [[nodiscard]] virtual int channelCount() const = 0;

    /// Takes a picture of a channel, from 0, into "snap/<folder>" below the current folder. Any thread but
    /// the scene's, which it blocks until the picture is there or given up.
    [[nodiscard]] virtual OwnPicture takePicture(int channel, const QString &folder,
                                                 const StepControl &control) const = 0;
};

/// A device that a session is wanted with.
struct OwnSessionOrder
{
    QString ipport;
    QString account;
    QString password;
    std::shared_ptr<OwnSession> present = {}; ///< goes on where the device answers in it; null for none
};

/// What came of it.
struct OwnSessionOffer
{
    int result = resultCode(LoginResult::NotSupported); ///< a LoginResult
    QVariantList channels = {};               ///< maps of "channel" (from 0), "name" and "connected"
    std::shared_ptr<OwnSession> session = {}; ///< the present one, or a new one; null on failure
};

/// Runs once, and blocks its thread for the waits of the library.
using OwnSessionStep = std::function<OwnSessionOffer(const StepControl &control)>;
