#pragma once

#include <QString>

#include <array>
#include <atomic>
#include <mutex>

/// The latest lines of the log, in memory of fixed size, for a crash report.
class RecentLog
{
public:
    static constexpr std::size_t maximumLines = 200;
    static constexpr std::size_t maximumBytes = 400; ///< of a line; the rest is cut off

    RecentLog() = default;
    RecentLog(const RecentLog &) = delete;
    RecentLog &operator=(const RecentLog &) = delete;

    /// Adds the first line of a message, in UTF-8, with passwords replaced. Any thread.
    void add(QStringView message);

    /// Writes the lines in the order of their arrival, each with "\n" at its end, into an open file. Failed
    /// writes are ignored. Async-signal-safe: takes no lock, so that a line that another thread is adding may
    /// be incomplete.
    void writeTo(int descriptor) const;

    /// The message with "***" in place of secrets: the value after a name that contains pass, pwd or secret
    /// (in any case) and "=", ":" or ">"; the password in "//user:password@"; the rest of the line after
    /// "Authorization:" and its scheme; everything after "Response Body: ". A value in quotation marks ends
    /// with its quotation mark, any other value before a space, "&", "<" or a quotation mark.
    [[nodiscard]] static QString withoutPasswords(QStringView message);

private:
    std::mutex m_mutex; ///< between threads that add lines
    std::array<std::array<char, maximumBytes + 1>, maximumLines> m_lines = {}; ///< each ends with 0
    std::atomic<std::size_t> m_added = 0;
};
