// The bytes of a connection, plain or encrypted.
#pragma once

#include <chrono>
#include <cstddef>

#include <sys/types.h>

namespace sdk::demo {

/// Belongs to one thread; shutdown() of its socket on another one ends what it waits for.
class ByteStream
{
public:
    ByteStream() = default;
    ByteStream(const ByteStream &) = delete;
    ByteStream &operator=(const ByteStream &) = delete;
    virtual ~ByteStream() = default;

    /// Waits for bytes, up to `patience`. Returns how many came; 0 or less at the end and when none came.
    [[nodiscard]] virtual ssize_t receive(char *bytes, std::size_t size,
                                          std::chrono::milliseconds patience) = 0;

    /// Returns how many were sent; 0 or less when the connection cannot be used any more.
    [[nodiscard]] virtual ssize_t send(const char *bytes, std::size_t size) = 0;

    /// Says that nothing more is sent.
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
