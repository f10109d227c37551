// The families that the scene writes in.
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Names of the packaged and installed typefaces, ready for use once this object exists. It is C++ because
/// the scene's font type names one family only, and the Chinese face has to follow the Latin one by rule:
/// left to itself the system may well take Japanese shapes for Chinese text.
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
    [[nodiscard]] QString figures() const { return m_figures; } ///< all figures of one width
    [[nodiscard]] QString icons() const { return m_icons; }

private:
    QString m_text;
    QString m_figures;
    QString m_icons;
};
