// The font families of the window.
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Family names of the packaged and installed fonts. The constructor loads the packaged ones. It is C++
/// because a QML font has one family only, and the Chinese family must be the explicit substitute of the
/// Latin one: the system may choose Japanese glyphs for Chinese text.
class Typefaces : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString text READ text CONSTANT)
    Q_PROPERTY(QString figures READ figures CONSTANT)
    Q_PROPERTY(QString icons READ icons CONSTANT)
public:
    explicit Typefaces(QObject *parent = nullptr);

    [[nodiscard]] QString text() const { return m_text; }
    [[nodiscard]] QString figures() const { return m_figures; } ///< digits of equal width
    [[nodiscard]] QString icons() const { return m_icons; }

private:
    QString m_text;
    QString m_figures;
    QString m_icons;
};
