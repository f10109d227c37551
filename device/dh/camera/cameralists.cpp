#include "device/dh/camera/cameralists.h"

#include <QCoreApplication>

OfferedValues::OfferedValues(const QStringList &names, std::uint32_t mask)
{
    for (int value = 0; value < names.size() && value < 32; ++value) {
        if ((mask >> value & 1) != 0) {
            m_names.append(names.at(value));
            m_values.append(value);
        }
    }
}

std::optional<int> OfferedValues::valueAt(int index) const
{
    return index >= 0 && index < m_values.size() ? std::optional(m_values.at(index)) : std::nullopt;
}

namespace {

class CameraTexts
{
    Q_DECLARE_TR_FUNCTIONS(CameraOptions)
public:
    static QStringList antiFlicker() { return {tr("室外"), QStringLiteral("50Hz"), QStringLiteral("60Hz")}; }
    static QStringList exposure() { return {tr("自动"), tr("手动"), tr("增益优先"), tr("快门优先")}; }
    static QStringList whiteBalance()
    {
        return {tr("自动"), tr("自然光"), tr("路灯"), tr("室外"), tr("手动"), tr("区域自定义")};
    }
    static QStringList dayNight() { return {tr("彩色"), tr("自动"), tr("黑白")}; }
    static QStringList offManualAutomatic() { return {tr("关闭"), tr("手动"), tr("自动")}; }
    static QStringList mixedLight() { return {tr("红外"), tr("白光"), tr("智能")}; }
};

} // namespace

QStringList CameraNames::antiFlickerTypes()
{
    return CameraTexts::antiFlicker();
}

QStringList CameraNames::exposureTypes()
{
    return CameraTexts::exposure();
}

QStringList CameraNames::whiteBalanceTypes()
{
    return CameraTexts::whiteBalance();
}

QStringList CameraNames::dayNightTypes()
{
    return CameraTexts::dayNight();
}

QStringList CameraNames::defogModes()
{
    return CameraTexts::offManualAutomatic();
}

QStringList CameraNames::lightControls()
{
    return CameraTexts::offManualAutomatic();
}

QStringList CameraNames::mixedLights()
{
    return CameraTexts::mixedLight();
}
