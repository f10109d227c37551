// TLS connections, and the self-signed certificate of a device.
#pragma once

#include "sdk/demo/http/bytestream.h"

#include <memory>
#include <string>

struct ssl_ctx_st;
struct ssl_st;

namespace sdk::demo {

/// The key of a device and its self-signed certificate. Thread-safe.
class DeviceKey
{
public:
    /// Generates a key. Returns null if the library fails. `name` is the common name of the certificate.
    [[nodiscard]] static std::shared_ptr<const DeviceKey> make(const std::string &name);

    [[nodiscard]] ssl_ctx_st *context() const { return m_context.get(); }

private:
    explicit DeviceKey(std::shared_ptr<ssl_ctx_st> context) : m_context(std::move(context)) {}

    const std::shared_ptr<ssl_ctx_st> m_context;
};

/// The device's end of a TLS connection.
class EncryptedStream : public ByteStream
{
public:
    /// `socket` is connected and blocking; the caller closes it.
    EncryptedStream(int socket, std::shared_ptr<const DeviceKey> key);
    ~EncryptedStream() override;

    /// Performs the handshake. Returns false if the client refuses the certificate or does not use TLS. From
    /// then on SIGPIPE is blocked on the calling thread.
    [[nodiscard]] bool accept();

    [[nodiscard]] ssize_t receive(char *bytes, std::size_t size, std::chrono::milliseconds patience) override;
    [[nodiscard]] ssize_t send(const char *bytes, std::size_t size) override;
    void finishSending() override;

private:
    const int m_socket;
    const std::shared_ptr<const DeviceKey> m_key;
    ssl_st *const m_tls; ///< owned
};

} // namespace sdk::demo
