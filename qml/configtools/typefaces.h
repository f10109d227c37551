// The font families of the window.
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Family names of the fonts of the window. The constructor loads the packaged fonts (figures and icons) and
/// sets the substitutes for Chinese text in the process. It is C++ because a QML font has one family only,
/// and the Chinese family must be the explicit substitute of the Latin one: the system may choose Japanese
/// glyphs for Chinese text.
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

    /// For texts. Fixed name of a font that must be installed; Qt replaces a missing one.
    [[nodiscard]] QString text() const { return m_text; }
    // Packaged fonts; empty if the file cannot be loaded.
    [[nodiscard]] QString figures() const { return m_figures; } ///< with digits of equal width
    [[nodiscard]] QString icons() const { return m_icons; }     ///< with a glyph for each icon

private:
    QString m_text;
    QString m_figures;
    QString m_icons;
};
