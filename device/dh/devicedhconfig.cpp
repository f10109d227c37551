// The configuration pages: the operations, on the scene's thread and on any other.
#include "device/dh/devicedh.h"
#include "device/dh/upgrade/upgraderound.h"

void CDeviceDH::perform(const std::function<void(SessionRun &run)> &operations)
{
    SessionRun run(*m_state, upgradeCheck(m_state->ipport));
    operations(run);
    tell(run.takeNews());
}

void CDeviceDH::tell(const std::vector<SessionRun::News> &news)
{
    for (const SessionRun::News &piece : news)
        piece(*this);
}

std::function<bool()> CDeviceDH::upgradeCheck(const QString &ipport) const
{
    return [this, ipport] {
        return m_upgrades->isUpgradingAt(ipport);
    };
}

SceneStep CDeviceDH::sessionStep(const SessionJob &job)
{
    return [this, job, state = std::make_shared<SessionState>(*m_state)](const StepControl &control) {
        const BatchEngine::Hold hold = holdDevice(state->ipport, control);
        if (control.isStopped())
            return SceneOutcome();
        SessionRun run(*state, upgradeCheck(state->ipport));
        const QVariant value = job(run, control);
        return SceneOutcome{.value = value, .take = [this, state, news = run.takeNews()] {
                                if (state->session.handle() != m_session.handle)
                                    return;
                                m_state = state;
                                tell(news);
                            }};
    };
}

void CDeviceDH::getEncodeCaps()
{
    perform([](SessionRun &run) { run.getEncodeCaps(); });
}

void CDeviceDH::getEncodeInfo()
{
    perform([](SessionRun &run) { run.getEncodeInfo(); });
}

QVariant CDeviceDH::getConfigData(const QString &key, const QVariant &channel)
{
    if (key == QLatin1String("loginHandle"))
        return QVariant::fromValue<qint64>(m_loginHandle);
    if (key == QLatin1String("sessionDevice"))
        return m_session.ipport;
    if (key == QLatin1String("library"))
        return libraryValues();
    return SessionRun(*m_state, {}).getConfigData(key, channel);
}

QVariantMap CDeviceDH::libraryValues() const
{
    sdk::ProviderInformation information{};
    information.size = sizeof(information);
    if (m_libraries.net)
        m_libraries.net->NetGetProviderInformation(information);
    const auto has = [&information](sdk::ProviderFunction function) {
        return (information.missingFunctions >> static_cast<std::uint32_t>(function) & 1) == 0;
    };
    return {{QStringLiteral("defaultPort"), information.defaultPort},
            {QStringLiteral("videoStandard"), has(sdk::ProviderFunction::VideoStandard)},
            {QStringLiteral("automaticMaintenance"), has(sdk::ProviderFunction::AutomaticMaintenance)},
            {QStringLiteral("timeServerDetails"), has(sdk::ProviderFunction::TimeServerDetails)}};
}

void CDeviceDH::setConfigData(const QString &key, const QVariant &value, const QString &otype)
{
    perform([&](SessionRun &run) { run.setConfigData(key, value, otype); });
}

QVariantList CDeviceDH::getDeviceChannelData(const QString &key, int channelNum)
{
    QVariantList data;
    perform([&](SessionRun &run) { data = run.getDeviceChannelData(key, channelNum); });
    return data;
}

void CDeviceDH::confirmConfigData()
{
    perform([](SessionRun &run) { run.confirmConfigData(); });
}

void CDeviceDH::getCameraConfig()
{
    perform([](SessionRun &run) { run.getCameraConfig(); });
}

void CDeviceDH::getVideoIn()
{
    perform([](SessionRun &run) { run.getVideoIn(); });
}

void CDeviceDH::getVideoInByChangeChannel()
{
    perform([](SessionRun &run) { run.getVideoInByChangeChannel(); });
}
