#include "sdk/onvif/firmwareupload.h"

#include "sdk/onvif/soap/httpclient.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace sdk::onvif {

namespace {

using namespace std::chrono_literals;

constexpr auto longestTransfer = 30min;
constexpr std::chrono::seconds longestDelay = 60s;
constexpr int fullPercent = 100;

NetError errorOf(const HttpResponse &response)
{
    if (response.end == HttpEnd::NotReached || response.end == HttpEnd::NoResponse)
        return NetError::ConnectTimeout;
    if (response.end == HttpEnd::UnknownCertificate)
        return NetError::UnknownCertificate;
    if (response.end == HttpEnd::ChangedCertificate)
        return NetError::ChangedCertificate;
    if (response.end != HttpEnd::Responded)
        return NetError::NetworkFailure;
    if (response.status >= 200 && response.status < 300)
        return NetError::None;
    return response.status == 401 ? NetError::WrongPassword : NetError::FirmwareRefused;
}

} // namespace

/// One upload with its thread.
class FirmwareTransfer
{
public:
    struct Receiver
    {
        std::int64_t handle = 0;
        UpgradeProgressHandler handler = nullptr;
        void *user = nullptr;
        std::function<void()> accepted;
    };

    FirmwareTransfer(LLONG loginHandle, FirmwareUpload upload, HttpLogin login, std::string fileName,
                     Receiver receiver, std::shared_ptr<const CertificateDecision> decision)
        : m_loginHandle(loginHandle), m_upload(std::move(upload)), m_login(std::move(login)),
          m_fileName(std::move(fileName)), m_receiver(std::move(receiver)), m_http(std::move(decision))
    {
        m_thread = std::jthread([this](const std::stop_token &stop) { run(stop); });
    }

    [[nodiscard]] LLONG loginHandle() const { return m_loginHandle; }
    [[nodiscard]] bool isWriting() const { return m_phase == UpgradePhase::Writing; }

    void end()
    {
        m_thread.request_stop();
        m_http.cancel();
        if (m_thread.joinable())
            m_thread.join();
    }

private:
    void run(const std::stop_token &stop)
    {
        {
            std::unique_lock lock(m_mutex);
            m_wake.wait_for(lock, stop, std::min(m_upload.delay, longestDelay), [] { return false; });
        }
        if (stop.stop_requested())
            return;
        std::error_code error;
        m_size = static_cast<std::int64_t>(std::filesystem::file_size(m_fileName, error));
        report(UpgradePhase::Sending, 0);
        const HttpResponse response = m_http.postFile(
            m_upload.address, m_fileName, &m_login, [this](std::int64_t sent) { takeProgress(sent); },
            std::chrono::steady_clock::now() + longestTransfer);
        if (stop.stop_requested())
            return;
        const NetError failure = errorOf(response);
        if (failure == NetError::None) {
            m_receiver.accepted();
            report(UpgradePhase::Done, fullPercent);
        } else {
            report(UpgradePhase::Failed, 0, failure);
        }
    }

    void takeProgress(std::int64_t sent)
    {
        if (m_size <= 0)
            return;
        // After a request for the login, which may follow the complete file, all of it is sent again.
        if (sent < std::exchange(m_sent, sent))
            m_percent = -1;
        if (sent >= m_size) {
            if (!isWriting())
                report(UpgradePhase::Writing, 0);
            return;
        }
        const int percent = static_cast<int>(sent * fullPercent / m_size);
        if (percent > m_percent)
            report(UpgradePhase::Sending, percent);
    }

    void report(UpgradePhase phase, int percent, NetError error = NetError::None)
    {
        m_phase = phase;
        m_percent = percent;
        const UpgradeProgress progress = {.size = sizeof(progress),
                                          .phase = phase,
                                          .percent = percent,
                                          .error = static_cast<std::uint32_t>(error)};
        if (m_receiver.handler)
            m_receiver.handler(m_receiver.handle, &progress, m_receiver.user);
    }

    const LLONG m_loginHandle;
    const FirmwareUpload m_upload;
    const HttpLogin m_login;
    const std::string m_fileName;
    const Receiver m_receiver;
    HttpClient m_http;
    std::mutex m_mutex;
    std::condition_variable_any m_wake;
    std::atomic<UpgradePhase> m_phase = UpgradePhase::Sending;
    std::int64_t m_size = 0;
    std::int64_t m_sent = 0; ///< bytes
    int m_percent = -1;      ///< of the phase, as reported; -1 before the first byte of a transmission
    std::jthread m_thread;   ///< the last member: it uses the others
};

FirmwareUploads::FirmwareUploads(std::shared_ptr<const CertificateDecision> decision)
    : m_decision(std::move(decision))
{
}

FirmwareUploads::~FirmwareUploads()
{
    closeAll();
}

bool FirmwareUploads::isReadable(const std::string &fileName)
{
    std::FILE *file = std::fopen(fileName.c_str(), "rb");
    if (file)
        std::fclose(file);
    std::error_code error;
    return file && std::filesystem::file_size(fileName, error) > 0 && !error;
}

std::int64_t FirmwareUploads::open(LLONG loginHandle, const FirmwareUpload &upload, const HttpLogin &login,
                                   const std::string &fileName, UpgradeProgressHandler handler, void *user,
                                   const std::function<void()> &accepted)
{
    const std::scoped_lock lock(m_mutex);
    const std::int64_t handle = ++m_lastHandle;
    try {
        m_transfers.emplace(handle,
                            std::make_shared<FirmwareTransfer>(
                                loginHandle, upload, login, fileName,
                                FirmwareTransfer::Receiver{
                                    .handle = handle, .handler = handler, .user = user, .accepted = accepted},
                                m_decision));
    } catch (const std::system_error &) {
        return 0;
    }
    return handle;
}

NetError FirmwareUploads::close(std::int64_t handle)
{
    std::shared_ptr<FirmwareTransfer> transfer;
    {
        const std::scoped_lock lock(m_mutex);
        const auto found = m_transfers.find(handle);
        if (found == m_transfers.end())
            return NetError::InvalidValue;
        if (found->second->isWriting())
            return NetError::NotSupported;
        transfer = std::move(found->second);
        m_transfers.erase(found);
    }
    transfer->end();
    return NetError::None;
}

void FirmwareUploads::closeAllOf(LLONG loginHandle)
{
    std::vector<std::shared_ptr<FirmwareTransfer>> ended;
    {
        const std::scoped_lock lock(m_mutex);
        for (auto entry = m_transfers.begin(); entry != m_transfers.end();) {
            const bool belongs = entry->second->loginHandle() == loginHandle;
            if (belongs)
                ended.push_back(std::move(entry->second));
            entry = belongs ? m_transfers.erase(entry) : std::next(entry);
        }
    }
    for (const auto &transfer : ended)
        transfer->end();
}

void FirmwareUploads::closeAll()
{
    std::map<std::int64_t, std::shared_ptr<FirmwareTransfer>> ended;
    {
        const std::scoped_lock lock(m_mutex);
        ended.swap(m_transfers);
    }
    for (const auto &[handle, transfer] : ended)
        transfer->end();
}

} // namespace sdk::onvif
