// A separate session with a device, in addition to the current one.
#pragma once

#include "device/registry/devicestep.h"

#include <QString>
#include <QVariantList>
#include <QtGlobal>

#include <functional>
#include <memory>

/// The result of a snapshot of a channel.
struct OwnImage
{
    QString path = {};    ///< "file:///" and the absolute path of the file; empty on failure
    QString message = {}; ///< reason of the failure in the user's language
};

/// A snapshot to be taken in a session.
struct OwnImageOrder
{
    qint64 handle = 0;    ///< login handle of the session
    int channelCount = 0; ///< of the device
    int channel = 0;      ///< from 0
    QString folder;       ///< name of the device's folder in the folder of snapshots; created if missing
};

/// Takes a snapshot. Any thread except the main thread; blocks it until the image is saved or has failed.
using OwnImageTaker = std::function<OwnImage(const OwnImageOrder &order, const StepControl &control)>;

/// A login to a device that lasts as long as this object. The destructor logs out: on the main thread it
/// returns immediately and the logout runs in the background; on another thread it blocks for the device. The
/// back end logs out at its end, also if this object still exists; the handle is invalid then.
class OwnSession
{
public:
    OwnSession() = default;
    virtual ~OwnSession() = default;
    OwnSession(const OwnSession &) = delete;
    OwnSession &operator=(const OwnSession &) = delete;

    [[nodiscard]] virtual qint64 handle() const = 0;    ///< login handle, for live streams; never 0
    [[nodiscard]] virtual int channelCount() const = 0; ///< number of channels of the device

    /// Saves a snapshot of a channel (from 0) in the folder of this name in the folder of snapshots. Any
    /// thread except the main thread; blocks it until the image is saved or has failed.
    [[nodiscard]] virtual OwnImage takeImage(int channel, const QString &folder,
                                             const StepControl &control) const = 0;
};

/// A request for a session.
struct OwnSessionOrder
{
    QString ipport; ///< "address:port" of the device
    QString account;
    QString password;
    /// An existing session with the same device; null for none. If the device responds in it, no login is
    /// made, and `account` and `password` are not used. No login is made either if the device no longer
    /// accepts the login of this session: the result is SessionEnded or the reason of the refusal then. If
    /// the device does not respond in it, a new login is tried.
    std::shared_ptr<OwnSession> present = {};
};

/// The response to an OwnSessionOrder.
struct OwnSessionOffer
{
    int result = resultCode(LoginResult::NotSupported); ///< a LoginResult
    QVariantList channels = {}; ///< of a new session: maps with the keys of ChannelKey; otherwise empty
    std::shared_ptr<OwnSession> session = {}; ///< the present session or a new one; null on failure
};

/// Opens a session. Must be called at most once, on any thread except the main thread. Blocks it for the
/// timeouts of the network library.
using OwnSessionStep = std::function<OwnSessionOffer(const StepControl &control)>;
