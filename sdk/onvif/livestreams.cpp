#include "sdk/onvif/livestreams.h"

#include "sdk/onvif/soap/logging.h"
#include "sdk/onvif/soap/runningcall.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>
#include <utility>

namespace sdk::onvif {

namespace {

/// Half a second of the largest streams. Later data would be too old for a live view.
constexpr std::size_t maximumWaitingBytes = std::size_t(4) * 1024 * 1024;

/// The first bytes of the container (EBML, RFC 8794).
constexpr std::array<std::uint8_t, 4> headerBegin = {0x1a, 0x45, 0xdf, 0xa3};

bool isHeader(std::span<const std::uint8_t> bytes)
{
    return bytes.size() >= headerBegin.size() &&
           std::equal(headerBegin.begin(), headerBegin.end(), bytes.begin());
}

constexpr auto streamBytes = static_cast<std::uint32_t>(RealDataType::Stream);

NetError errorOf(StreamEnd end)
{
    switch (end) {
    case StreamEnd::Refused:
        return NetError::WrongPassword;
    case StreamEnd::NotFound:
    case StreamEnd::Unsupported:
        return NetError::NotSupported;
    case StreamEnd::Busy:
        return NetError::DeviceBusy;
    case StreamEnd::BadUrl:
    case StreamEnd::Redirected:
    case StreamEnd::Oversized:
    case StreamEnd::Malformed:
        return NetError::ProtocolMismatch;
    case StreamEnd::BadAccount:
        return NetError::InvalidValue;
    case StreamEnd::Rejected:
        return NetError::Refused;
    case StreamEnd::ConnectionRefused:
        return NetError::ConnectFailed;
    case StreamEnd::Unreachable:
    case StreamEnd::NoResponse:
        return NetError::ConnectTimeout;
    default:
        return NetError::NetworkFailure;
    }
}

StreamEndReason reasonOf(StreamEnd end)
{
    switch (end) {
    case StreamEnd::Refused:
        return StreamEndReason::Refused;
    case StreamEnd::ConnectionRefused:
    case StreamEnd::Unreachable:
    case StreamEnd::NoResponse:
    case StreamEnd::NoData:
        return StreamEndReason::ConnectionLost;
    case StreamEnd::NoKeyFrame:
    case StreamEnd::Unsupported:
        return StreamEndReason::NoFrames;
    case StreamEnd::BadUrl:
    case StreamEnd::Redirected:
    case StreamEnd::Oversized:
    case StreamEnd::Malformed:
        return StreamEndReason::Malformed;
    case StreamEnd::NotFound:
    case StreamEnd::Busy:
    case StreamEnd::Rejected:
    case StreamEnd::Ended:
        return StreamEndReason::EndedByDevice;
    case StreamEnd::Stopped:
    case StreamEnd::BadAccount:
    case StreamEnd::Failed:
        break;
    }
    return StreamEndReason::Failed;
}

} // namespace

LiveStream::LiveStream(std::int64_t handle, LLONG loginHandle, std::string profile,
                       std::function<void()> onRefusal)
    : m_handle(handle), m_loginHandle(loginHandle), m_profile(std::move(profile)),
      m_onRefusal(std::move(onRefusal))
{
}

NetError LiveStream::start(const RtspOrder &order)
{
    const auto onData = [this](std::span<const std::uint8_t> bytes) {
        take(bytes);
    };
    const auto onEnd = [this](StreamEnd end, const std::string &text) {
        const std::string_view name = streamEndName(end);
        qCInfo(logOnvif).noquote() << "A live stream has ended:"
                                   << QLatin1StringView(name.data(), static_cast<qsizetype>(name.size()))
                                   << QString::fromStdString(text);
        if (end == StreamEnd::Refused)
            m_onRefusal();
        noteEnd(end);
    };
    try {
        m_stream = std::make_unique<RtspStream>(order, onData, onEnd);
    } catch (const std::system_error &) {
        return NetError::NetworkFailure; // no thread can be created
    }
    const std::stop_callback onCancel(RunningCall::stopOfThisThread(), [this] { m_stream->requestStop(); });
    const std::optional<StreamEnd> end = m_stream->waitForResponse();
    return end ? errorOf(*end) : NetError::None;
}

void LiveStream::take(std::span<const std::uint8_t> bytes)
{
    const std::scoped_lock lock(m_mutex);
    if (m_hasDropped && !isHeader(bytes))
        return; // data after a gap cannot be decoded
    m_hasDropped = false;
    if (m_handler)
        m_handler(m_handle, streamBytes, bytes.data(), static_cast<std::uint32_t>(bytes.size()), 0, m_user);
    else if (!m_hadHandler)
        keep(bytes);
}

void LiveStream::keep(std::span<const std::uint8_t> bytes)
{
    m_hasDropped = m_waiting.size() + bytes.size() > maximumWaitingBytes;
    if (m_hasDropped)
        m_waiting = {};
    else
        m_waiting.insert(m_waiting.end(), bytes.begin(), bytes.end());
}

void LiveStream::setHandler(RealDataHandler handler, void *user)
{
    const std::scoped_lock lock(m_mutex);
    m_handler = handler;
    m_user = user;
    if (!handler)
        return;
    m_hadHandler = true;
    if (m_hasDropped)
        m_stream->restart();
    if (!m_waiting.empty())
        handler(m_handle, streamBytes, m_waiting.data(), static_cast<std::uint32_t>(m_waiting.size()), 0,
                user);
    m_waiting = {};
    reportEnd();
}

void LiveStream::noteEnd(StreamEnd end)
{
    const std::scoped_lock lock(m_mutex);
    if (end != StreamEnd::Stopped)
        m_end = end;
    reportEnd();
}

void LiveStream::reportEnd()
{
    if (!m_end || !m_handler)
        return;
    m_handler(m_handle, static_cast<std::uint32_t>(RealDataType::End), nullptr, 0,
              static_cast<std::int64_t>(reasonOf(*m_end)), m_user);
    m_end.reset();
}

void LiveStream::restart()
{
    m_stream->restart();
}

void LiveStream::stop()
{
    m_stream->stop();
}

std::int64_t LiveStreams::open(LLONG loginHandle, const std::string &profile, const RtspOrder &order,
                               const std::function<void()> &onRefusal, NetError &error)
{
    std::int64_t handle = 0;
    {
        const std::scoped_lock lock(m_mutex);
        handle = ++m_lastHandle;
    }
    const auto stream = std::make_shared<LiveStream>(handle, loginHandle, profile, onRefusal);
    error = stream->start(order);
    if (error != NetError::None)
        return 0;
    const std::scoped_lock lock(m_mutex);
    m_streams.emplace(handle, stream);
    return handle;
}

std::shared_ptr<LiveStream> LiveStreams::stream(std::int64_t handle) const
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_streams.find(handle);
    return found == m_streams.end() ? nullptr : found->second;
}

bool LiveStreams::close(std::int64_t handle)
{
    std::shared_ptr<LiveStream> stream;
    {
        const std::scoped_lock lock(m_mutex);
        const auto found = m_streams.find(handle);
        if (found == m_streams.end())
            return false;
        stream = std::move(found->second);
        m_streams.erase(found);
    }
    stream->stop();
    return true;
}

void LiveStreams::closeAllOf(LLONG loginHandle)
{
    std::vector<std::shared_ptr<LiveStream>> closed;
    {
        const std::scoped_lock lock(m_mutex);
        for (auto entry = m_streams.begin(); entry != m_streams.end();) {
            const bool belongs = entry->second->loginHandle() == loginHandle;
            if (belongs)
                closed.push_back(std::move(entry->second));
            entry = belongs ? m_streams.erase(entry) : std::next(entry);
        }
    }
    for (const std::shared_ptr<LiveStream> &stream : closed)
        stream->stop();
}

void LiveStreams::closeAll()
{
    std::map<std::int64_t, std::shared_ptr<LiveStream>> closed;
    {
        const std::scoped_lock lock(m_mutex);
        closed.swap(m_streams);
    }
    for (const auto &[handle, stream] : closed)
        stream->stop();
}

} // namespace sdk::onvif
