// Work that a page waits for while the scene goes on.
#include "device/registry/devicefactory.h"

SceneStep CDeviceFactory::loginStep(const QString &family, const QString &ipport, const QString &account,
                                    const QString &password)
{
    return forward(family, &CDeviceBase::loginStep, ipport, account, password);
}

SceneStep CDeviceFactory::sessionStep(const QString &family, const SessionJob &job)
{
    return forward(family, &CDeviceBase::sessionStep, job);
}

SceneStep CDeviceFactory::detailStep(const QString &family, const QString &ipport)
{
    return forward(family, &CDeviceBase::detailStep, ipport);
}

OwnSessionStep CDeviceFactory::ownSessionStep(const QString &family, const OwnSessionOrder &order)
{
    return forward(family, &CDeviceBase::ownSessionStep, order);
}

void CDeviceFactory::runForScene(const QString &family, const SceneStep &step, const std::stop_token &stop,
                                 const std::function<void(const SceneOutcome &outcome)> &ended)
{
    forward(family, &CDeviceBase::runForScene, step, stop, ended);
}
