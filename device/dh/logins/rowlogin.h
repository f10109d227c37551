// Logging in to a device by hand, to make its row.
#pragma once

#include "device/registry/devicestep.h"
#include "device/registry/loginresult.h"
#include "sdk/sdklibraries.h"
#include "sdk/searchblocks.h"

#include <QJsonObject>
#include <QString>

#include <optional>

/// How a device is reached.
enum class ReachedBy : int
{
    Address = 0, ///< by its IPv4 address
    P2P = 1,     ///< by its P2P ID, through a local port of the port agent
};

/// A device to log in to.
struct RowLoginRequest
{
    QString address; ///< IPv4 text, or the P2P ID
    QString account;
    QString password;
    int port = 0; ///< of the device, or the local port that leads to it
    ReachedBy reachedBy = ReachedBy::Address;
    QString devicePort; ///< with P2P: the device's own port
};

/// What came of it.
struct RowLoginOutcome
{
    LoginResult result = LoginResult::Unknown;
    QJsonObject row;                         ///< of a successful login; its "num" is left to the store
    std::optional<sdk::SearchAnswer> record; ///< what the device answered to a search of its address alone
};

/// Logs in, reads what a row tells about the device, and logs out again. Blocks for the waits of the library,
/// up to 5 s for each query. Queries that fail leave their part of the row empty. NotDone when `control`
/// ended it between two requests.
[[nodiscard]] RowLoginOutcome loginForRow(const sdk::SdkLibraries &libraries, const RowLoginRequest &request,
                                          const StepControl &control = StepControl());
