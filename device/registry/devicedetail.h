// The properties of a device as lines for the user.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QVariantMap>

/// A property of a device, in the user's language.
struct DeviceDetailLine
{
    QString group; ///< name of its group, such as "network"
    QString label;
    QString value;

    /// "label: value"
    [[nodiscard]] QString text() const { return label + QLatin1String(": ") + value; }
};

/// Makes the lines of a device's properties, for a dialog and the clipboard. Stateless.
class DeviceDetail
{
    Q_DECLARE_TR_FUNCTIONS(DeviceDetail)
public:
    /// The lines of a map with the keys of DeviceRowKey and DeviceDetailKey: the values of
    /// CDeviceFactory::getDeviceDetail(), of readDeviceDetail(), or of both. The lines of a group follow each
    /// other. Unknown values and passwords have no line.
    [[nodiscard]] static QList<DeviceDetailLine> linesOf(const QVariantMap &detail);

    /// The lines as one string: for each group a line with its name, then its lines. An empty line separates
    /// two groups.
    [[nodiscard]] static QString textOf(const QList<DeviceDetailLine> &lines);
};
