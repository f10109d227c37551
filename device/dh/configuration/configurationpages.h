// The configuration pages: their operations on the current session's device.
#pragma once

#include "device/dh/configuration/sessionrun.h"
#include "device/registry/backendsignals.h"
#include "device/registry/scenestep.h"
#include "sdk/sdklibraries.h"

#include <functional>

class CurrentSession;
class PageHold;

/// Lives on the scene's thread; its steps run on any other.
class ConfigurationPages
{
public:
    ConfigurationPages(sdk::SdkLibraries libraries, const PageHold &hold, CurrentSession &session,
                       BackEndSignals &backEndSignals);

    /// Does operations on this thread, which they block for the device, and emits their signals.
    void perform(const std::function<void(SessionOperations &operations)> &operations);

    /// As CDeviceBase::sessionStep().
    [[nodiscard]] SceneStep step(const SessionJob &job);

    /// As SessionOperations::getConfigData(), and the keys "loginHandle", the current session's handle or 0,
    /// which may be read on any thread, "sessionDevice", its address and port, and "library", a map of what
    /// the network library can do at all.
    [[nodiscard]] QVariant value(const QString &key, const QVariant &channel) const;

private:
    void emitNews(const std::vector<SessionRun::News> &news);
    [[nodiscard]] std::function<bool()> upgradeCheck(const QString &ipport) const;
    [[nodiscard]] QVariantMap libraryValues() const;

    const sdk::SdkLibraries m_libraries;
    const PageHold &m_hold;
    CurrentSession &m_session;
    BackEndSignals &m_signals;
};
