#pragma once

#include <QObject>
#include <QString>

/// Strings for fields of a device with a limited number of bytes, in UTF-8. For QML and C++.
class ByteText : public QObject
{
    Q_OBJECT
    /// Maximum length of the name of a channel in bytes.
    Q_PROPERTY(int channelNameBytes READ channelNameBytes CONSTANT)
public:
    explicit ByteText(QObject *parent = nullptr) : QObject(parent) {}

    [[nodiscard]] static int channelNameBytes();

    /// The number of bytes of a text in UTF-8.
    Q_INVOKABLE [[nodiscard]] static int bytes(const QString &text);

    /// The longest prefix of `text` that fits into `bytes` and does not divide a character as the user sees
    /// it (a grapheme).
    Q_INVOKABLE [[nodiscard]] static QString truncated(const QString &text, int bytes);

    /// `text` without invisible characters: control characters, line separators and direction marks.
    [[nodiscard]] static QString withoutInvisible(QString text);
};
