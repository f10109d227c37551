// Executes the operations of the configuration pages.
#pragma once

#include "device/dh/configuration/sessionstate.h"
#include "device/registry/backendsignals.h"
#include "device/registry/pagestep.h"

#include <functional>
#include <vector>

/// Executes operations on one SessionState and collects their signals; the caller emits them. Any thread, but
/// one thread at a time. Blocks for the timeouts of the device library. While the device is being upgraded,
/// it is read but nothing is written to it: an operation that would write reports LoginResult::Upgrading by
/// its signal or as the result of the channel's name. The operations are described in SessionOperations and
/// CDeviceBase.
class SessionRun final : public SessionOperations
{
public:
    /// `isUpgrading` returns whether the firmware of the device is being upgraded; it must be callable on
    /// the thread of the operations, and may be empty if only getConfigData() is called. `beforeImageChange`
    /// is called with the channel (from 0) before each change of an image setting, except of the mode and of
    /// the channel name, also if the change is then ignored or refused; it may be empty. `state` must outlive
    /// this object.
    SessionRun(SessionState &state, std::function<bool()> isUpgrading,
               std::function<void(int channel)> beforeImageChange = {});

    void getEncodeCaps() override;
    void getEncodeInfo() override;
    void confirmConfigData() override;
    [[nodiscard]] QVariant getConfigData(const QString &key, const QVariant &channel) override;
    void setConfigData(const QString &key, const QVariant &value, const QString &otype) override;
    void getCameraConfig() override;
    void getVideoIn() override;
    void getVideoInByChangeChannel() override;
    [[nodiscard]] QVariantList getDeviceChannelData(const QString &key, int channelNum) override;

    [[nodiscard]] bool isDeviceAway() const override { return m_isDeviceAway; }

    /// A function that emits one signal of a back end with its arguments.
    using SignalCall = BackEndSignals::Emission;

    /// Returns and clears the collected signals, in the order of the operations.
    [[nodiscard]] std::vector<SignalCall> takeSignals();

private:
    template<auto signal, typename... Arguments>
    void collect(const Arguments &...arguments)
    {
        m_signals.push_back(BackEndSignals::emission<signal>(arguments...));
    }
    /// Collects signalCDeviceGetDeviceCapRet with this result.
    void noteResult(int result);
    void noteUpgrading();
    /// Collects signalCDeviceSettingWritten.
    void noteWritten(const QString &setting, int channel, const QString &value);
    /// The main stream of the encode page as a short text.
    [[nodiscard]] QString encodeText() const;
    void setEncodeValue(const QString &key, const QVariant &value);
    void setCameraValue(const QString &key, const QVariant &value, const QString &subKey);
    /// noteWritten() for a setting of the image page.
    void noteCameraValue(const QString &key, const QVariant &value, const QString &subKey);
    void writeChannelName(const QString &name, const QString &channel);
    /// The number of channels for a request of `wanted` channels (0 or less: all); 0 without a session.
    [[nodiscard]] int askedChannels(int wanted) const;

    SessionState &m_state;
    const std::function<bool()> m_isUpgrading;
    const std::function<void(int channel)> m_beforeImageChange;
    std::vector<SignalCall> m_signals;
    bool m_isDeviceAway = false;
};
