// The arrangement of a table's columns.
#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// The arrangement of a table's columns, which are identified by keys: the shown columns, their order and
/// their widths. A hidden column keeps its position and width. Fixed columns are always shown, after all
/// others. The object writes no file: its owner stores `text` and sets it at the next start.
///
/// `text` lists all columns in order, separated by spaces, such as "state name:180 -mac": "-" marks a hidden
/// column, ":180" a width that the user has set, in pixels. The default arrangement has the empty text. Text
/// is not trusted: unknown columns are ignored, an invalid width means the default width, and missing columns
/// are inserted after their predecessor in the default order. Text that hides all columns that are not fixed
/// counts as empty. A key that is listed twice counts once, at its first position.
///
/// A key has no spaces and no ":", and does not begin with "-". Main thread.
class TableColumns : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList keys READ keys WRITE setKeys NOTIFY keysChanged) ///< all columns in default order
    Q_PROPERTY(
        QStringList hiddenKeys READ hiddenKeys WRITE setHiddenKeys NOTIFY keysChanged) ///< hidden by default
    Q_PROPERTY(QStringList fixedKeys READ fixedKeys WRITE setFixedKeys NOTIFY keysChanged)
    /// Keys of the shown columns in display order.
    Q_PROPERTY(QStringList shown READ shown NOTIFY shownChanged)
    Q_PROPERTY(QVariantMap widths READ widths NOTIFY widthsChanged) ///< set by the user, in pixels, by key
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
public:
    static constexpr int leastWidth = 24;          ///< pixels
    static constexpr int mostWidth = 2000;         ///< pixels
    static constexpr qsizetype longestText = 4096; ///< characters; longer text counts as empty

    using QObject::QObject;

    [[nodiscard]] QStringList keys() const { return m_keys; }
    void setKeys(const QStringList &keys);
    [[nodiscard]] QStringList hiddenKeys() const { return m_hiddenKeys; }
    void setHiddenKeys(const QStringList &keys);
    [[nodiscard]] QStringList fixedKeys() const { return m_fixedKeys; }
    void setFixedKeys(const QStringList &keys);

    [[nodiscard]] QStringList shown() const; ///< in display order
    [[nodiscard]] QVariantMap widths() const;
    /// The text of the arrangement; after setText() that text, also if it is invalid, until the next change
    /// by a function below.
    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString &text);

    /// Whether the column is shown. False for an unknown key; the functions below ignore unknown keys.
    Q_INVOKABLE [[nodiscard]] bool isShown(const QString &key) const;

    /// False for a hidden or fixed column and for the last shown column that is not fixed.
    Q_INVOKABLE [[nodiscard]] bool canHide(const QString &key) const;

    /// Shows or hides a column. A column is hidden only if canHide().
    Q_INVOKABLE void setShown(const QString &key, bool shown);

    /// Moves a shown column to `index` (from 0) among the shown columns, at most to the position before the
    /// fixed ones. A hidden or fixed column is not moved.
    Q_INVOKABLE void move(const QString &key, int index);

    /// Sets the width in pixels, clamped to the range from leastWidth to mostWidth.
    Q_INVOKABLE void setWidth(const QString &key, int width);

    /// Restores the default arrangement: order, shown columns and widths.
    Q_INVOKABLE void reset();

Q_SIGNALS:
    /// `keys`, `hiddenKeys` or `fixedKeys` has changed. `shown` and `widths` change after this signal.
    void keysChanged();
    void shownChanged(); ///< the shown columns or their order
    void widthsChanged();
    void textChanged();

private:
    struct Column
    {
        QString key;
        int width = 0; ///< pixels; 0: default width
        bool isShown = true;

        bool operator==(const Column &) const = default;
    };

    [[nodiscard]] bool isFixed(const QString &key) const { return m_fixedKeys.contains(key); }
    [[nodiscard]] qsizetype indexOf(const QString &key) const; ///< in m_columns, -1 if unknown
    [[nodiscard]] QList<Column> defaultColumns() const;
    [[nodiscard]] QList<Column> read(const QString &text) const;
    [[nodiscard]] QString write() const;
    void arrange(QList<Column> columns);
    void keep(QList<Column> columns);

    QStringList m_keys;
    QStringList m_hiddenKeys;
    QStringList m_fixedKeys;
    QList<Column> m_columns; ///< all columns in order
    QString m_text;
};
