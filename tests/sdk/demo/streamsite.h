// What the tests of live streams share.
#pragma once

#include "sdk/encodeblocks.h"
#include "sdk/streamblocks.h"
#include "tests/sdk/demo/testsite.h"

#include <QJsonArray>
#include <QSet>

#include <algorithm>
#include <chrono>
#include <functional>

namespace sdk::demo {

/// Keeps the data that it gets, on any thread.
class Watcher
{
public:
    static void handle(std::int64_t streamHandle, std::uint32_t dataType, const std::uint8_t *data,
                       std::uint32_t size, std::int64_t /*parameter*/, void *user)
    {
        auto *watcher = static_cast<Watcher *>(user);
        const std::lock_guard lock(watcher->m_mutex);
        watcher->m_bytes.append(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
        watcher->m_largestPiece = std::max(watcher->m_largestPiece, size);
        watcher->m_handles.insert(streamHandle);
        watcher->m_isPlain = watcher->m_isPlain && dataType == 0 && size > 0;
    }

    [[nodiscard]] QByteArray bytes() const
    {
        const std::lock_guard lock(m_mutex);
        return m_bytes;
    }
    [[nodiscard]] qsizetype size() const { return bytes().size(); }
    [[nodiscard]] std::uint32_t largestPiece() const { return m_largestPiece; }
    [[nodiscard]] QSet<std::int64_t> handles() const { return m_handles; }
    [[nodiscard]] bool isPlain() const { return m_isPlain; }

private:
    mutable std::mutex m_mutex;
    QByteArray m_bytes;
    std::uint32_t m_largestPiece = 0;
    QSet<std::int64_t> m_handles;
    bool m_isPlain = true;
};

inline constexpr std::chrono::milliseconds pictureTime(40);

/// A camera whose streams are small, so that they are quickly encoded.
inline SceneDevice smallCamera(int channels)
{
    SceneDevice device = camera(1, std::chrono::milliseconds(0));
    device.channels.resize(channels);
    const QJsonObject small = {
        {QStringLiteral("sizes"),
         QJsonArray{QStringLiteral("352*288"), QStringLiteral("640*480"), QStringLiteral("1280*720")}},
        {QStringLiteral("audioFormats"), QJsonArray{2, 1, 4, 8}},
        {QStringLiteral("compressions"), QJsonArray{7, 8, 5, 0}}};
    device.capabilities = {{QStringLiteral("encode"),
                            QJsonObject{{QStringLiteral("main"), small}, {QStringLiteral("sub"), small}}}};
    return device;
}

/// A site with a session to a small camera, whose pictures come by steps of the clock.
struct StreamSite : TestSite
{
    explicit StreamSite(const SceneDevice &device)
        : TestSite({device}), login(*net, device.address, device.port)
    {
    }

    std::int64_t watch(Watcher &watcher, std::int32_t channel = 0,
                       LiveStreamKind kind = LiveStreamKind::Main) const
    {
        const std::int64_t handle = net->NetStartRealStream(login.handle, channel, 0, kind);
        return handle != 0 && net->NetSetRealDataCallback(handle, &Watcher::handle, &watcher, 1) ? handle : 0;
    }

    /// Lets that many pictures come from each of `sources` channels.
    void step(int pictures, int sources = 1) const
    {
        for (int picture = 0; picture < pictures; ++picture) {
            QVERIFY(clock->waitForWaiters(sources));
            clock->advance(pictureTime);
        }
        QVERIFY(clock->waitForWaiters(sources));
    }

    template<typename Item>
    void change(EncodeItem number, const std::function<void(Item &)> &change,
                StreamKind kind = StreamKind::MainNormal) const
    {
        Item item = {};
        item.size = sizeof(item);
        item.stream = streamNumber(kind);
        QVERIFY(net->NetGetItem(login.handle, static_cast<std::uint32_t>(number), 0, &item, sizeof(item),
                                std::chrono::seconds(1)));
        change(item);
        QVERIFY(net->NetSetItem(login.handle, static_cast<std::uint32_t>(number), 0, &item, sizeof(item),
                                std::chrono::seconds(1)));
    }

    Login login;
};

} // namespace sdk::demo
