// What is known of a device, as lines to read.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QVariantMap>

/// One line of it, in the user's language.
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
    /// The lines of a factory's getDeviceDetail(), with what its readDeviceDetail() adds, by groups. What is
    /// not known has no line. Passwords have none.
    [[nodiscard]] static QList<DeviceDetailLine> linesOf(const QVariantMap &detail);

    /// The same as one text: the heading of a group on a line of its own, its lines below, an empty line
    /// between two groups.
    [[nodiscard]] static QString textOf(const QList<DeviceDetailLine> &lines);
};
