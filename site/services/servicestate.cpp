#include "site/services/servicestate.h"

namespace site {

namespace {

// Stored among the configurations, under a name that no protocol uses.
const QString &stateName()
{
    static const QString name = QStringLiteral("Services");
    return name;
}

} // namespace

QJsonValue serviceState(const sdk::demo::SceneDevice &device, const QString &key)
{
    return device.configuration.value(stateName()).toObject().value(key);
}

void setServiceState(sdk::demo::SceneDevice &device, const QString &key, const QJsonValue &value)
{
    QJsonObject state = device.configuration.value(stateName()).toObject();
    state.insert(key, value);
    device.configuration.insert(stateName(), state);
}

} // namespace site
