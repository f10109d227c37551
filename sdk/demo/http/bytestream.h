// The bytes of a connection, plain or encrypted.
#pragma once

#include <chrono>
#include <cstddef>

#include <sys/types.h>

namespace sdk::demo {

/// The transport of an HTTP connection. Blocking, used by one thread. A shutdown() of its socket on another
/// thread ends receive() and send().
class ByteStream
{
public:
    ByteStream() = default;
    ByteStream(const ByteStream &) = delete;
    ByteStream &operator=(const ByteStream &) = delete;
    virtual ~ByteStream() = default;

    /// Waits for bytes, up to `patience` of real time, and receives up to `size` of them. Returns their
    /// number; 0 or less at the end of the stream, after a timeout and on an error.
    [[nodiscard]] virtual ssize_t receive(char *bytes, std::size_t size,
                                          std::chrono::milliseconds patience) = 0;

    /// Blocks until the connection takes bytes, up to the socket's SO_SNDTIMEO. Returns the number of sent
    /// bytes, which may be less than `size`; 0 or less if the connection is closed, and after that time.
    [[nodiscard]] virtual ssize_t send(const char *bytes, std::size_t size) = 0;

    /// Ends the sending direction: the client receives the end of the stream. receive() still works.
    virtual void finishSending() = 0;
};

/// Unencrypted, over a connected socket, which the caller closes after the destruction of the stream.
class PlainStream : public ByteStream
{
public:
    explicit PlainStream(int socket) : m_socket(socket) {}

    [[nodiscard]] ssize_t receive(char *bytes, std::size_t size, std::chrono::milliseconds patience) override;
    [[nodiscard]] ssize_t send(const char *bytes, std::size_t size) override;
    void finishSending() override;

private:
    const int m_socket;
};

/// Whether receive() does not block within `patience` of real time: there are bytes, the end of the stream or
/// an error. Blocks until then.
[[nodiscard]] bool isReadable(int socket, std::chrono::milliseconds patience);

} // namespace sdk::demo
