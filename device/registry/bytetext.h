#pragma once

#include <QObject>
#include <QString>

/// The scene's way to texts that a device keeps in a field of so many bytes: as UTF-8, in which a letter
/// takes one byte or several.
class ByteText : public QObject
{
    Q_OBJECT
    /// The most bytes that the name of a channel may have.
    Q_PROPERTY(int channelNameBytes READ channelNameBytes CONSTANT)
public:
    explicit ByteText(QObject *parent = nullptr) : QObject(parent) {}

    [[nodiscard]] static int channelNameBytes();

    Q_INVOKABLE [[nodiscard]] static int bytes(const QString &text);

    /// As much of the beginning of `text` as fits into `bytes`, whole letters only: a letter stays together
    /// with its accents, and a sign with what it is joined to.
    Q_INVOKABLE [[nodiscard]] static QString cutTo(const QString &text, int bytes);

    /// `text` without what is not visible but breaks a line or turns the direction of the letters behind it.
    [[nodiscard]] static QString withoutInvisible(QString text);
};
