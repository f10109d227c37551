// The results of device searches.
#pragma once

#include "sdk/blocktext.h"
#include "sdk/netlibrary.h"
#include "sdk/searchblocks.h"

#include <QHash>
#include <QStringList>

#include <array>
#include <chrono>
#include <mutex>

/// The results of a search by address.
class SearchResponses
{
public:
    static void take(std::int64_t, const sdk::SearchResponse *response, void *user)
    {
        auto *self = static_cast<SearchResponses *>(user);
        const std::scoped_lock lock(self->m_mutex);
        self->m_responses.insert(textOf(response->device.address), *response);
        self->m_uuids.insert(textOf(response->device.address), textOf(response->device.uuid));
    }

    /// The UUIDs of all devices that were reported with the address.
    [[nodiscard]] QStringList uuidsAt(const QString &address) const
    {
        const std::scoped_lock lock(m_mutex);
        QStringList uuids = m_uuids.values(address);
        uuids.sort();
        return uuids;
    }

    [[nodiscard]] bool has(const QString &address) const
    {
        const std::scoped_lock lock(m_mutex);
        return m_responses.contains(address);
    }

    [[nodiscard]] sdk::SearchDeviceInformation device(const QString &address) const
    {
        const std::scoped_lock lock(m_mutex);
        return m_responses.value(address).device;
    }

    /// The information of a device that is queried at its address; empty without a response.
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
