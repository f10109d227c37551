#include "tablecolumns.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr QLatin1Char hiddenSign('-');
constexpr QLatin1Char widthSign(':');

/// The width at the end of an item. Empty if there is none or it is out of range.
std::optional<int> widthIn(QStringView item)
{
    bool isNumber = false;
    const int width = item.mid(item.indexOf(widthSign) + 1).toInt(&isNumber);
    const bool isUsable = item.contains(widthSign) && isNumber && width >= TableColumns::leastWidth &&
                          width <= TableColumns::mostWidth;
    return isUsable ? std::optional(width) : std::nullopt;
}

} // namespace

void TableColumns::setKeys(const QStringList &keys)
{
    if (std::exchange(m_keys, keys) == keys)
        return;
    Q_EMIT keysChanged();
    arrange(read(m_text));
}

void TableColumns::setHiddenKeys(const QStringList &keys)
{
    if (std::exchange(m_hiddenKeys, keys) == keys)
        return;
    Q_EMIT keysChanged();
    arrange(read(m_text));
}

void TableColumns::setFixedKeys(const QStringList &keys)
{
    if (std::exchange(m_fixedKeys, keys) == keys)
        return;
    Q_EMIT keysChanged();
    arrange(read(m_text));
}

void TableColumns::setText(const QString &text)
{
    if (std::exchange(m_text, text) == text)
        return;
    arrange(read(text));
    Q_EMIT textChanged();
}

QStringList TableColumns::shown() const
{
    QStringList keys;
    for (const Column &column : m_columns) {
        if (column.isShown)
            keys.append(column.key);
    }
    return keys;
}

QVariantMap TableColumns::widths() const
{
    QVariantMap widths;
    for (const Column &column : m_columns) {
        if (column.width > 0)
            widths.insert(column.key, column.width);
    }
    return widths;
}

qsizetype TableColumns::indexOf(const QString &key) const
{
    const auto found = std::find_if(m_columns.cbegin(), m_columns.cend(),
                                    [&key](const Column &column) { return column.key == key; });
    return found == m_columns.cend() ? -1 : std::distance(m_columns.cbegin(), found);
}

bool TableColumns::isShown(const QString &key) const
{
    const qsizetype index = indexOf(key);
    return index >= 0 && m_columns.at(index).isShown;
}

bool TableColumns::canHide(const QString &key) const
{
    return isShown(key) && !isFixed(key) &&
           std::any_of(m_columns.cbegin(), m_columns.cend(), [&](const Column &column) {
               return column.isShown && column.key != key && !isFixed(column.key);
           });
}

void TableColumns::setShown(const QString &key, bool shown)
{
    const qsizetype index = indexOf(key);
    if (index < 0 || (!shown && !canHide(key)))
        return;
    QList<Column> columns = m_columns;
    columns[index].isShown = shown;
    keep(std::move(columns));
}

void TableColumns::move(const QString &key, int index)
{
    if (!isShown(key) || isFixed(key) || shown().indexOf(key) == index)
        return;
    QList<Column> columns = m_columns;
    const Column moved = columns.takeAt(indexOf(key));
    qsizetype target = 0;
    int before = 0;
    for (qsizetype other = 0; other < columns.size() && before < index; ++other) {
        const Column &column = columns.at(other);
        if (isFixed(column.key))
            break;
        before += column.isShown ? 1 : 0;
        target = other + 1;
    }
    columns.insert(target, moved);
    keep(std::move(columns));
}

void TableColumns::setWidth(const QString &key, int width)
{
    const qsizetype index = indexOf(key);
    if (index < 0)
        return;
    QList<Column> columns = m_columns;
    columns[index].width = std::clamp(width, leastWidth, mostWidth);
    keep(std::move(columns));
}

void TableColumns::reset()
{
    keep(defaultColumns());
}

QList<TableColumns::Column> TableColumns::defaultColumns() const
{
    QList<Column> columns;
    for (const QString &key : m_keys)
        columns.append({.key = key, .isShown = isFixed(key) || !m_hiddenKeys.contains(key)});
    std::stable_partition(columns.begin(), columns.end(),
                          [this](const Column &column) { return !isFixed(column.key); });
    return columns;
}

QList<TableColumns::Column> TableColumns::read(const QString &text) const
{
    QList<Column> usual = defaultColumns();
    if (text.size() > longestText)
        return usual;
    QList<Column> columns;
    QList<Column> fixed;
    QStringList left = m_keys;
    const QStringList items = text.simplified().split(QLatin1Char(' '));
    for (const QString &item : items) {
        const bool isHidden = item.startsWith(hiddenSign);
        QString key = item.mid(isHidden ? 1 : 0);
        key = key.left(key.indexOf(widthSign)); // the entire key without a separator
        if (!left.removeOne(key))
            continue;
        const Column column = {
            .key = key, .width = widthIn(item).value_or(0), .isShown = isFixed(key) || !isHidden};
        (isFixed(key) ? fixed : columns).append(column);
    }
    const auto isAbsent = [&left](const Column &column) {
        return left.contains(column.key);
    };
    for (qsizetype index = 0; index < usual.size(); ++index) {
        if (!isAbsent(usual.at(index)))
            continue;
        QList<Column> &group = isFixed(usual.at(index).key) ? fixed : columns;
        // After its predecessor in the default order.
        const auto after = std::find_if(group.cbegin(), group.cend(), [&](const Column &column) {
            return index > 0 && column.key == usual.at(index - 1).key;
        });
        group.insert(after == group.cend() ? group.cbegin() : std::next(after), usual.at(index));
    }
    const bool isAnyShown =
        std::any_of(columns.cbegin(), columns.cend(), [](const Column &column) { return column.isShown; });
    return isAnyShown || columns.isEmpty() ? columns + fixed : usual;
}

QString TableColumns::write() const
{
    if (m_columns == defaultColumns())
        return {};
    QStringList items;
    for (const Column &column : m_columns) {
        QString item = column.isShown ? column.key : hiddenSign + column.key;
        if (column.width > 0)
            item += widthSign + QString::number(column.width);
        items.append(item);
    }
    return items.join(QLatin1Char(' '));
}

void TableColumns::arrange(QList<Column> columns)
{
    const QStringList shownBefore = shown();
    const QVariantMap widthsBefore = widths();
    m_columns = std::move(columns);
    if (widths() != widthsBefore)
        Q_EMIT widthsChanged();
    if (shown() != shownBefore)
        Q_EMIT shownChanged();
}

void TableColumns::keep(QList<Column> columns)
{
    arrange(std::move(columns));
    const QString text = write();
    if (std::exchange(m_text, text) != text)
        Q_EMIT textChanged();
}
