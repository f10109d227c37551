// The operations of the configuration pages.
#pragma once

#include "device/dh/configuration/sessionstate.h"
#include "device/registry/scenestep.h"

#include <functional>
#include <vector>

class CDeviceBase;

/// Does the operations on one state, on any thread, and collects their signals. Blocks for the waits
/// of the library.
class SessionRun final : public SessionOperations
{
public:
    /// `isUpgrading` returns, on any thread, whether the firmware of the device is being upgraded. `state`
    /// must outlive this object.
    SessionRun(SessionState &state, std::function<bool()> isUpgrading);

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

    /// A signal of a back end, with its arguments.
    using News = std::function<void(CDeviceBase &backEnd)>;

    /// The signals of the operations in their order. They are returned once.
    [[nodiscard]] std::vector<News> takeNews();

private:
    void note(const News &news);
    /// A result as signalCDeviceGetDeviceCapRet reports it.
    void noteResult(int result);
    void noteUpgrading();
    void setEncodeValue(const QString &key, const QVariant &value);
    void setCameraValue(const QString &key, const QVariant &value, const QString &subKey);
    void writeChannelName(const QString &name, const QString &channel);
    /// Channels that are asked for.
    [[nodiscard]] int askedChannels(int wanted) const;

    SessionState &m_state;
    const std::function<bool()> m_isUpgrading;
    std::vector<News> m_news;
    bool m_isDeviceAway = false;
};
