// Inputs of the readers under test.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

/// Passes one input to a reader. Returns 0. A violated property ends the process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace fuzz {

inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
}

/// Disables logging. Readers would log a warning for nearly every input.
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
