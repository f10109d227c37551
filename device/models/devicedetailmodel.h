// What is known of a device, as the detail panel shows it.
#pragma once

#include "device/registry/devicedetail.h"

#include <QAbstractListModel>

/// The lines of DeviceDetail, those that hold the searched text. Roles are "group", "label" and "value".
/// Lives on the scene's thread.
class DeviceDetailModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY linesChanged)
    Q_PROPERTY(int totalCount READ totalCount NOTIFY linesChanged) ///< also those that are not shown
    Q_PROPERTY(QString text READ text NOTIFY linesChanged)         ///< of all lines
    /// For a file with that text, by the device's address.
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

    /// Takes what is known of another device.
    Q_INVOKABLE void load(const QVariantMap &detail);

    /// Adds what has come to be known since.
    Q_INVOKABLE void add(const QVariantMap &detail);

    /// A shown line for the clipboard, empty when there is none.
    Q_INVOKABLE [[nodiscard]] QString lineText(int row) const;

    /// Writes all lines to a file, which is whole or as it was. Returns false when it cannot be written; the
    /// log says why.
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
