// A separate session with a device, in addition to the current one.
#pragma once

#include "device/registry/devicestep.h"

#include <QString>
#include <QVariantList>
#include <QtGlobal>

#include <functional>
#include <memory>

/// A snapshot of a channel.
struct OwnImage
{
    QString path = {};    ///< "file:///" URL; empty on failure
    QString message = {}; ///< reason of the failure in the user's language
};

/// A snapshot to be taken in a session.
struct OwnImageOrder
{
    qint64 handle = 0; ///< of the session
    int channelCount = 0;
    int channel = 0; ///< from 0
    QString folder;  ///< name of a folder in the folder of snapshots
};

/// Takes a snapshot. Any thread; blocks it until the end.
using OwnImageTaker = std::function<OwnImage(const OwnImageOrder &order, const StepControl &control)>;

/// A session that lasts as long as this object. The destructor logs out: in the background on the main
/// thread, otherwise it blocks for the device.
class OwnSession
{
public:
    OwnSession() = default;
    virtual ~OwnSession() = default;
    OwnSession(const OwnSession &) = delete;
    OwnSession &operator=(const OwnSession &) = delete;

    [[nodiscard]] virtual qint64 handle() const = 0; ///< of the session, for live streams
    [[nodiscard]] virtual int channelCount() const = 0;

    /// Takes a snapshot of a channel (from 0) into `folder` in the folder of snapshots. Any thread
    /// except the main thread; blocks it until the end.
    [[nodiscard]] virtual OwnImage takeImage(int channel, const QString &folder,
                                             const StepControl &control) const = 0;
};

/// A request for a session.
struct OwnSessionOrder
{
    QString ipport; ///< "address:port" of the device
    QString account;
    QString password;
    /// A session with the same device, kept if the device responds in it; null for none.
    std::shared_ptr<OwnSession> present = {};
};

/// The response to an OwnSessionOrder.
struct OwnSessionOffer
{
    int result = resultCode(LoginResult::NotSupported); ///< a LoginResult
    QVariantList channels = {}; ///< of a new session: maps with the keys of ChannelKey; otherwise empty
    std::shared_ptr<OwnSession> session = {}; ///< the present session or a new one; null on failure
};

/// Runs once. Blocks its thread for the timeouts of the library.
using OwnSessionStep = std::function<OwnSessionOffer(const StepControl &control)>;
