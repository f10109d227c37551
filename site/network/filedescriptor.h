// An open file or socket with an owner.
#pragma once

#include <utility>

#include <unistd.h>

namespace site {

/// Owns an open file or socket by its number, and closes it at the end; -1 for none.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    /// Takes the ownership of `number`. A negative number, as from a failed call, is none.
    explicit FileDescriptor(int number) : m_number(number) {}
    ~FileDescriptor() { reset(); }
    FileDescriptor(FileDescriptor &&other) noexcept : m_number(other.release()) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        reset(other.release());
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    [[nodiscard]] bool isOpen() const { return m_number >= 0; }
    /// -1 for none.
    [[nodiscard]] int number() const { return m_number; }
    /// Returns the number, which the caller closes. This object has none afterwards.
    [[nodiscard]] int release() { return std::exchange(m_number, -1); }
    /// Closes the file, if there is one, and takes the ownership of `number`.
    void reset(int number = -1)
    {
        if (m_number >= 0)
            close(m_number);
        m_number = number;
    }

private:
    int m_number = -1;
};

} // namespace site
