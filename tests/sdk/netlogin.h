// A login to a device with the network library, for tests.
#pragma once

#include "sdk/blocktext.h"
#include "sdk/loginblocks.h"
#include "sdk/netlibrary.h"

/// Logs in with NetLoginSecure(). Returns the handle of the session; 0 on failure; -1 if the login failed and
/// the error in its output differs from the last error of the library, which is a fault. Blocks.
inline sdk::LLONG logIn(sdk::NetLibrary &net, const char *address, const char *account, const char *password,
                        int port = 80)
{
    sdk::LoginSecureInput input{};
    input.size = sizeof(input);
    input.port = port;
    sdk::setBlockText(input.address, address);
    sdk::setBlockText(input.account, account);
    sdk::setBlockText(input.password, password);
    sdk::LoginSecureOutput output{};
    output.size = sizeof(output);
    const sdk::LLONG session = net.NetLoginSecure(input, output);
    return session > 0 || output.error == net.NetGetLastError() ? session : -1;
}
