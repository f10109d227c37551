#pragma once

#include <QObject>
#include <QString>

/// Strings for fields of a device with a limited number of bytes. Bytes are counted in UTF-8. Stateless. For
/// QML and C++.
class ByteText : public QObject
{
    Q_OBJECT
    /// Maximum length of the name of a channel in bytes, without the terminating zero.
    Q_PROPERTY(int channelNameBytes READ channelNameBytes CONSTANT)
public:
    explicit ByteText(QObject *parent = nullptr) : QObject(parent) {}

    [[nodiscard]] static int channelNameBytes();

    /// The number of bytes of a text in UTF-8.
    Q_INVOKABLE [[nodiscard]] static int bytes(const QString &text);

    /// The longest prefix of `text` of up to `bytes` bytes that does not divide a character as the user sees
    /// it (a grapheme). May be empty.
    Q_INVOKABLE [[nodiscard]] static QString truncated(const QString &text, int bytes);

    /// `text` without invisible characters: control characters, line and paragraph separators, and direction
    /// marks.
    [[nodiscard]] static QString withoutInvisible(QString text);
};
