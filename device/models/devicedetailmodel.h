// The lines of the detail panel of a device.
#pragma once

#include "device/registry/devicedetail.h"

#include <QAbstractListModel>

/// The lines of DeviceDetail, filtered: a line is shown if it or the name of its group contains the search
/// text. The case and spaces around the search text are ignored. The roles are "group", "label" and "value".
/// Lives on the main thread.
class DeviceDetailModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY linesChanged)
    Q_PROPERTY(int totalCount READ totalCount NOTIFY linesChanged) ///< including lines that are not shown
    Q_PROPERTY(QString text READ text NOTIFY linesChanged)         ///< all lines, see DeviceDetail::textOf()
    /// Suggested name of a file for the text: address and port with "_" for special characters, and ".txt".
    /// Without an address "device.txt".
    Q_PROPERTY(QString fileName READ fileName NOTIFY linesChanged)
public:
    explicit DeviceDetailModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] QString searchText() const { return m_searchText; }
    void setSearchText(const QString &searchText);
    [[nodiscard]] int totalCount() const { return static_cast<int>(m_lines.size()); }
    [[nodiscard]] QString text() const { return DeviceDetail::textOf(m_lines); }
    [[nodiscard]] QString fileName() const;

    /// Replaces the lines by those of `detail` (keys of CDeviceBase::getDeviceDetail()) and clears the
    /// search text.
    Q_INVOKABLE void load(const QVariantMap &detail);

    /// Adds further details of the same device, for example of CDeviceBase::readDeviceDetail(). A key that
    /// exists already gets the new value. The search text stays.
    Q_INVOKABLE void add(const QVariantMap &detail);

    /// The text of a shown line (label and value), for the clipboard; empty if `row` is out of range.
    Q_INVOKABLE [[nodiscard]] QString lineText(int row) const;

    /// Writes `text` as UTF-8 to a file (a local path) and replaces an existing one. Returns false on
    /// failure: the reason is logged, and an existing file is unchanged.
    Q_INVOKABLE [[nodiscard]] bool write(const QString &path) const;

Q_SIGNALS:
    void searchTextChanged();
    void linesChanged();

private:
    enum Role
    {
        GroupRole = Qt::UserRole,
        LabelRole,
        ValueRole,
    };

    void show();

    QVariantMap m_detail;
    QList<DeviceDetailLine> m_lines;
    QList<DeviceDetailLine> m_shown;
    QString m_searchText;
};
