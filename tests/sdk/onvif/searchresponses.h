// Collects the responses of device searches of the network library.
#pragma once

#include "sdk/blocktext.h"
#include "sdk/netlibrary.h"
#include "sdk/searchblocks.h"

#include <QHash>
#include <QStringList>

#include <array>
#include <chrono>
#include <mutex>

/// The responses of one or several searches, by the addresses of the devices. Thread-safe. Must outlive the
/// searches.
class SearchResponses
{
public:
    /// The response handler of a search; `user` is a SearchResponses. Called on threads of the library.
    static void take(std::int64_t, const sdk::SearchResponse *response, void *user)
    {
        auto *self = static_cast<SearchResponses *>(user);
        const std::scoped_lock lock(self->m_mutex);
        self->m_responses.insert(textOf(response->device.address), *response);
        self->m_uuids.insert(textOf(response->device.address), textOf(response->device.uuid));
    }

    /// The UUIDs of all devices that were reported with the address, in alphabetical order; one for each
    /// response.
    [[nodiscard]] QStringList uuidsAt(const QString &address) const
    {
        const std::scoped_lock lock(m_mutex);
        QStringList uuids = m_uuids.values(address);
        uuids.sort();
        return uuids;
    }

    /// Whether a device with this address was reported.
    [[nodiscard]] bool has(const QString &address) const
    {
        const std::scoped_lock lock(m_mutex);
        return m_responses.contains(address);
    }

    /// The information of the last response from this address; all fields are empty if there was none.
    [[nodiscard]] sdk::SearchDeviceInformation device(const QString &address) const
    {
        const std::scoped_lock lock(m_mutex);
        return m_responses.value(address).device;
    }

    /// Queries a device at its address, and returns its information; all fields are empty without a response
    /// within 3 s. Blocks.
    static sdk::SearchDeviceInformation found(sdk::NetLibrary &net, const QString &address)
    {
        SearchResponses responses;
        sdk::SearchByAddressesRequest request{};
        request.size = sizeof(request);
        request.count = 1;
        sdk::setBlockText(request.addresses[0], address.toStdString());
        net.NetSearchDeviceByIp(request, &SearchResponses::take, &responses, std::chrono::milliseconds(3000));
        return responses.device(address);
    }

    /// The text of a field of a block.
    template<std::size_t size>
    static QString textOf(const std::array<char, size> &field)
    {
        return QString::fromStdString(std::string(sdk::blockText(field)));
    }

private:
    mutable std::mutex m_mutex;
    QHash<QString, sdk::SearchResponse> m_responses;
    QMultiHash<QString, QString> m_uuids; ///< by address
};
