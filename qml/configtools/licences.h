// Licences of the software of others.
#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// The text of the about box about the software of others: the list of components, then the licences of the
/// fonts in the application. The constructor reads it from the resources; a missing resource is left out.
class Licences : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QStringList lines READ lines CONSTANT)
    Q_PROPERTY(QString text READ text CONSTANT)
public:
    explicit Licences(QObject *parent = nullptr);

    /// The lines of the text, for a list.
    [[nodiscard]] const QStringList &lines() const { return m_lines; }
    /// All lines in one text, for screen readers.
    [[nodiscard]] QString text() const { return m_lines.join(u'\n'); }

private:
    QStringList m_lines;
};
