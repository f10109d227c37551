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
class SearchAnswers
{
public:
    static void take(std::int64_t, const sdk::SearchAnswer *answer, void *user)
    {
        auto *self = static_cast<SearchAnswers *>(user);
        const std::scoped_lock lock(self->m_mutex);
        self->m_answers.insert(textOf(answer->device.address), *answer);
        self->m_uuids.insert(textOf(answer->device.address), textOf(answer->device.uuid));
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
        return m_answers.contains(address);
    }

    [[nodiscard]] sdk::SearchDeviceInformation device(const QString &address) const
    {
        const std::scoped_lock lock(m_mutex);
        return m_answers.value(address).device;
    }

    /// The information of a device that is queried at its address; empty without a response.
    static sdk::SearchDeviceInformation found(sdk::NetLibrary &net, const QString &address)
    {
        SearchAnswers answers;
        sdk::SearchByAddressesRequest request{};
        request.size = sizeof(request);
        request.count = 1;
        sdk::setBlockText(request.addresses[0], address.toStdString());
        net.NetSearchDeviceByIp(request, &SearchAnswers::take, &answers, std::chrono::milliseconds(3000));
        return answers.device(address);
    }

    template<std::size_t size>
    static QString textOf(const std::array<char, size> &field)
    {
        return QString::fromStdString(std::string(sdk::blockText(field)));
    }

private:
    mutable std::mutex m_mutex;
    QHash<QString, sdk::SearchAnswer> m_answers;
    QMultiHash<QString, QString> m_uuids; ///< by address
};
