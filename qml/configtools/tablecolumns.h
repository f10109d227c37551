// Which columns of a table the user sees, in which order and how wide.
#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// The columns of a table as the user has arranged them, named by their keys. A column keeps its place and
/// its width while it is hidden. Fixed columns are always shown, behind all others.
///
/// The text form lists all columns in their order, parted by blanks, such as "state name:180 -mac": a hidden
/// one has "-" in front, one with a width of its own has that behind. The text of the default is empty. A
/// text from elsewhere may hold anything: items that are no columns of the table are left out, a
/// width that makes no sense is that of the default, and columns that the text lacks stand where the default
/// has them.
///
/// Lives on the scene's thread.
class TableColumns : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList keys READ keys WRITE setKeys NOTIFY keysChanged) ///< in the order of the default
    Q_PROPERTY(QStringList hiddenKeys READ hiddenKeys WRITE setHiddenKeys NOTIFY keysChanged) ///< by default
    Q_PROPERTY(QStringList fixedKeys READ fixedKeys WRITE setFixedKeys NOTIFY keysChanged)
    Q_PROPERTY(QStringList shown READ shown NOTIFY shownChanged)
    Q_PROPERTY(QVariantMap widths READ widths NOTIFY widthsChanged) ///< those that the user has chosen
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
public:
    static constexpr int leastWidth = 24;
    static constexpr int mostWidth = 2000;
    static constexpr qsizetype longestText = 4096; ///< a longer one counts as empty

    using QObject::QObject;

    [[nodiscard]] QStringList keys() const { return m_keys; }
    void setKeys(const QStringList &keys);
    [[nodiscard]] QStringList hiddenKeys() const { return m_hiddenKeys; }
    void setHiddenKeys(const QStringList &keys);
    [[nodiscard]] QStringList fixedKeys() const { return m_fixedKeys; }
    void setFixedKeys(const QStringList &keys);

    [[nodiscard]] QStringList shown() const; ///< in their order
    [[nodiscard]] QVariantMap widths() const;
    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString &text);

    Q_INVOKABLE [[nodiscard]] bool isShown(const QString &key) const;

    /// False for a fixed column and for the last one of the others that is shown.
    Q_INVOKABLE [[nodiscard]] bool canHide(const QString &key) const;

    Q_INVOKABLE void setShown(const QString &key, bool shown);

    /// Gives a shown column another place among the shown ones, at most that before the fixed ones.
    Q_INVOKABLE void move(const QString &key, int place);

    /// Within leastWidth and mostWidth.
    Q_INVOKABLE void setWidth(const QString &key, int width);

    /// Arranges all columns as the default has them.
    Q_INVOKABLE void reset();

Q_SIGNALS:
    void keysChanged();
    void shownChanged();
    void widthsChanged();
    void textChanged();

private:
    struct Column
    {
        QString key;
        int width = 0; ///< 0: that of the default
        bool isShown = true;

        bool operator==(const Column &) const = default;
    };

    [[nodiscard]] bool isFixed(const QString &key) const { return m_fixedKeys.contains(key); }
    [[nodiscard]] qsizetype placeOf(const QString &key) const; ///< in m_columns
    [[nodiscard]] QList<Column> defaultColumns() const;
    [[nodiscard]] QList<Column> read(const QString &text) const;
    [[nodiscard]] QString write() const;
    void arrange(QList<Column> columns);
    void keep(QList<Column> columns);

    QStringList m_keys;
    QStringList m_hiddenKeys;
    QStringList m_fixedKeys;
    QList<Column> m_columns; ///< all of them, in their order
    QString m_text;
};
