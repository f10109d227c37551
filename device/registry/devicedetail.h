// The properties of a device as lines for the user.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QVariantMap>

/// A line of the detail, in the user's language.
struct DeviceDetailLine
{
    QString group;
    QString label;
    QString value;

    [[nodiscard]] QString text() const { return label + QLatin1String(": ") + value; }
};

class DeviceDetail
{
    Q_DECLARE_TR_FUNCTIONS(DeviceDetail)
public:
    /// The lines of the maps of CDeviceFactory::getDeviceDetail() and readDeviceDetail() together, in groups.
    /// Unknown values and passwords have no line.
    [[nodiscard]] static QList<DeviceDetailLine> linesOf(const QVariantMap &detail);

    /// The lines as one string: for each group a line with its name, then its lines. An empty line separates
    /// two groups.
    [[nodiscard]] static QString textOf(const QList<DeviceDetailLine> &lines);
};
