// String fields of blocks, the structs of the network library: reading them from requests, and writing them
// with a device's faults applied.
#pragma once

#include "sdk/blocktext.h"
#include "sdk/demo/scene/scene.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>
#include <string_view>

namespace sdk::demo {

/// The string of a field, from the local 8-bit encoding.
template<std::size_t size>
[[nodiscard]] QString textOf(const std::array<char, size> &field)
{
    const std::string_view text = blockText(field);
    return QString::fromLocal8Bit(text.data(), static_cast<qsizetype>(text.size()));
}

/// Writes `text` in the local 8-bit encoding, without faults. A string that does not fit with its terminating
/// zero is truncated.
template<std::size_t size>
void writePlain(std::array<char, size> &field, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    setBlockText(field, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

/// Writes strings to fields with the faults that the device has at the construction: with Fault::OddBytes
/// unusual bytes are appended, with Fault::OverLongTexts the string is repeated up to the last byte of the
/// field, without a terminating zero. Without these faults it writes as writePlain(). Does not refer to the
/// device.
class FieldWriter
{
public:
    explicit FieldWriter(const SceneDevice &device)
        : m_oddBytes(device.hasFault(Fault::OddBytes)), m_overLong(device.hasFault(Fault::OverLongTexts))
    {
    }

    template<std::size_t size>
    void write(std::array<char, size> &field, const QString &text) const
    {
        write(field.data(), size, text);
    }

private:
    void write(char *destination, std::size_t size, const QString &text) const;

    bool m_oddBytes;
    bool m_overLong;
};

} // namespace sdk::demo
