#include "device/dh/configuration/configurationpages.h"

#include "device/dh/configuration/currentsession.h"
#include "device/dh/configuration/devicereservations.h"
#include "device/registry/mapkeys.h"
#include "sdk/netlibrary.h"

#include <utility>

ConfigurationPages::ConfigurationPages(sdk::SdkLibraries libraries, const DeviceReservations &reservations,
                                       CurrentSession &session, BackEndSignals &backEndSignals,
                                       BeforeChange beforeChange)
    : m_libraries(std::move(libraries)), m_reservations(reservations), m_session(session),
      m_signals(backEndSignals), m_beforeChange(std::move(beforeChange))
{
}

void ConfigurationPages::perform(const std::function<void(SessionOperations &operations)> &operations)
{
    SessionRun run(m_session.state(), upgradeCheck(m_session.state().ipport));
    operations(run);
    emitSignals(run.takeSignals());
}

void ConfigurationPages::emitSignals(const std::vector<SessionRun::SignalCall> &calls)
{
    for (const SessionRun::SignalCall &call : calls)
        m_signals.emitNow(call);
}

std::function<bool()> ConfigurationPages::upgradeCheck(const QString &ipport) const
{
    return [this, ipport] {
        return m_reservations.isUpgradingAt(ipport);
    };
}

PageStep ConfigurationPages::step(const SessionJob &job)
{
    return
        [this, job, state = std::make_shared<SessionState>(m_session.state())](const StepControl &control) {
            const BatchEngine::Reservation reservation = m_reservations.reserve(state->ipport, control);
            if (control.isStopped())
                return PageOutcome();
            SessionRun run(*state, upgradeCheck(state->ipport), [this, &state](int channel) {
                m_beforeChange(state->ipport, state->session.handle(), channel);
            });
            const QVariant value = job(run, control);
            return PageOutcome{.value = value, .take = [this, state, calls = run.takeSignals()] {
                                   if (state->session.handle() != m_session.handle())
                                       return;
                                   m_session.setState(state);
                                   emitSignals(calls);
                               }};
        };
}

QVariant ConfigurationPages::value(const QString &key, const QVariant &channel) const
{
    if (key == SessionKey::loginHandle)
        return QVariant::fromValue<qint64>(m_session.sharedHandle());
    if (key == SessionKey::sessionDevice)
        return m_session.ipport();
    if (key == SessionKey::library)
        return libraryValues();
    return SessionRun(m_session.state(), {}).getConfigData(key, channel);
}

QVariantMap ConfigurationPages::libraryValues() const
{
    sdk::ProviderInformation information{};
    information.size = sizeof(information);
    if (m_libraries.net)
        m_libraries.net->NetGetProviderInformation(information);
    const auto has = [&information](sdk::ProviderFunction function) {
        return (information.missingFunctions >> static_cast<std::uint32_t>(function) & 1) == 0;
    };
    return {{LibraryKey::defaultPort, information.defaultPort},
            {LibraryKey::videoStandard, has(sdk::ProviderFunction::VideoStandard)},
            {LibraryKey::automaticMaintenance, has(sdk::ProviderFunction::AutomaticMaintenance)},
            {LibraryKey::timeServerDetails, has(sdk::ProviderFunction::TimeServerDetails)}};
}
