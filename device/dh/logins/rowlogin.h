// Logs in to one device to make its row.
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

/// Parameters of loginForRow().
struct RowLoginRequest
{
    QString address; ///< IPv4 text, or the P2P ID
    QString account;
    QString password;
    int port = 0; ///< port of the device, or local port of the tunnel
    ReachedBy reachedBy = ReachedBy::Address;
    QString devicePort; ///< with P2P: port of the device itself
};

/// Result of loginForRow().
struct RowLoginOutcome
{
    LoginResult result = LoginResult::Unknown;
    QJsonObject row;                         ///< of a successful login; the store sets "num"
    std::optional<sdk::SearchAnswer> record; ///< response to a directed search of the address
};

/// Logs in, queries the values of a row, and logs out. Blocks for the timeouts of the library, up to 5 s for
/// each query. A failed query leaves its part of the row empty. NotDone if `control` ends the step between
/// two requests. Any thread.
[[nodiscard]] RowLoginOutcome loginForRow(const sdk::SdkLibraries &libraries, const RowLoginRequest &request,
                                          const StepControl &control = StepControl());
