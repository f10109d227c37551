// The inputs of a fuzzer, a program that passes random bytes to a reader of files or responses and detects
// faults.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

/// Passes one input to a reader; each program of this folder implements it for its reader. Called many times.
/// The `size` bytes at `data` are valid during the call. Returns 0. A violated property of the result ends
/// the process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace fuzz {

/// A copy of an input.
inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
}

/// Disables all log messages of the process. Readers would log a warning for nearly every input.
inline void disableLogging()
{
    [[maybe_unused]] static const bool done = [] {
        QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
        return true;
    }();
}

/// An input as a file in a separate temporary folder, for readers that take a path. The destructor removes
/// the folder.
class InputFile
{
public:
    /// Writes the file `name`. Ends the process if that fails.
    InputFile(const QString &name, const QByteArray &bytes) : m_path(m_folder.filePath(name))
    {
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write an input to %s", qUtf8Printable(m_folder.path()));
    }

    [[nodiscard]] QString folder() const { return m_folder.path(); }
    [[nodiscard]] const QString &path() const { return m_path; }

private:
    const QTemporaryDir m_folder;
    const QString m_path;
};

} // namespace fuzz
