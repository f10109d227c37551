// The bytes of a connection, plain or encrypted.
#pragma once

#include <chrono>
#include <cstddef>

#include <sys/types.h>

namespace sdk::demo {

/// Not thread-safe. A shutdown() of its socket on another thread ends its waits.
class ByteStream
{
public:
    ByteStream() = default;
    ByteStream(const ByteStream &) = delete;
    ByteStream &operator=(const ByteStream &) = delete;
    virtual ~ByteStream() = default;

    /// Waits for bytes, up to `patience`. Returns their number; 0 or less at the end of the stream and after
    /// a timeout.
    [[nodiscard]] virtual ssize_t receive(char *bytes, std::size_t size,
                                          std::chrono::milliseconds patience) = 0;

    /// Returns the number of sent bytes; 0 or less if the connection is closed.
    [[nodiscard]] virtual ssize_t send(const char *bytes, std::size_t size) = 0;

    /// Ends the sending direction.
    virtual void finishSending() = 0;
};

/// Over a connected socket, which the caller closes.
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

/// Whether bytes, or the end, can be received within `patience`.
[[nodiscard]] bool isReadable(int socket, std::chrono::milliseconds patience);

} // namespace sdk::demo
