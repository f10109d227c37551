// TLS connections, and the self-signed certificate of a device.
#pragma once

#include "sdk/demo/http/bytestream.h"

#include <memory>
#include <string>

struct ssl_ctx_st;
struct ssl_st;

namespace sdk::demo {

/// The key of a device and its self-signed certificate, as a TLS context. Immutable, thread-safe.
class DeviceKey
{
public:
    /// Generates a key (EC, P-256) and a certificate that is valid for ten years from now. `name` is the
    /// common name of the certificate (UTF-8). Returns null if the TLS library fails.
    [[nodiscard]] static std::shared_ptr<const DeviceKey> make(const std::string &name);

    /// Owned by this object.
    [[nodiscard]] ssl_ctx_st *context() const { return m_context.get(); }

private:
    explicit DeviceKey(std::shared_ptr<ssl_ctx_st> context) : m_context(std::move(context)) {}

    const std::shared_ptr<ssl_ctx_st> m_context;
};

/// The device's end of a TLS connection, over a connected socket. Bytes may be received and sent only after a
/// successful accept().
class EncryptedStream : public ByteStream
{
public:
    /// `socket` is connected and blocking; the caller closes it after the destruction of the stream.
    EncryptedStream(int socket, std::shared_ptr<const DeviceKey> key);
    ~EncryptedStream() override;

    /// Performs the handshake, and blocks until its end or a timeout of the socket (SO_RCVTIMEO,
    /// SO_SNDTIMEO). To be called once. Returns false if the client refuses the certificate, does not use TLS
    /// or does not continue. Blocks SIGPIPE on the calling thread permanently.
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
