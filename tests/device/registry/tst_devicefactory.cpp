#include "device/registry/devicefactory.h"
#include "device/registry/devicehik.h"
#include "device/registry/deviceol.h"
#include "tests/datatable.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <array>
#include <cstring>
#include <memory>

namespace {

/// The index of a virtual function in the table of its class. The Itanium ABI stores it in the pointer to the
/// function.
template<typename Function>
int slotOf(Function function)
{
    std::array<std::ptrdiff_t, 2> words = {};
    static_assert(sizeof(function) == sizeof(words));
    std::memcpy(words.data(), &function, sizeof(words));
    return static_cast<int>((words[0] - 1) / std::ptrdiff_t(sizeof(void *)));
}

template<typename... Functions>
auto slotsOf(Functions... functions)
{
    return std::array{slotOf(functions)...};
}

/// A back end that records its calls.
class NotingBackEnd : public CDeviceBase
{
    Q_OBJECT
public:
    NotingBackEnd() : CDeviceBase(nullptr) {}

    void setDefaultAccount(const QString &account, const QString &password) override
    {
        calls.append("setDefaultAccount " + account + ' ' + password);
    }
    void snapPictureToFile(const QString &kind, const QVariant &channelNum, const QString &address) override
    {
        calls.append("snapPictureToFile " + kind + ' ' + channelNum.toString() + ' ' + address);
    }
    QVariantMap getDeviceDetail(const QString &) override { return {{"mac", "02:aa"}, {"name", "大厅"}}; }

    QStringList calls;
    bool upgrading = false;
};

} // namespace

class TestDeviceFactory : public QObject
{
    Q_OBJECT
private:
    std::shared_ptr<NotingBackEnd> m_backEnd = std::make_shared<NotingBackEnd>();
    CDeviceFactory m_factory{{
        {"dh",
         [this] {
             return m_backEnd;
         }},
        {"hik",
         [] {
             return std::make_shared<CDeviceHik>(nullptr);
         }},
        {"ol",
         [] {
             return std::make_shared<CDeviceOL>(nullptr);
         }},
    }};

private Q_SLOTS:
    void init()
    {
        m_backEnd->calls.clear();
        m_backEnd->upgrading = false;
    }

    /// Separately built back ends depend on these indexes.
    void operationsOfABackEndKeepTheirIndexes()
    {
        constexpr int slotsOfQObject = 12;
        const std::array slots = slotsOf(
            &CDeviceBase::startSearch, &CDeviceBase::setSearchByIPInfo, &CDeviceBase::filterData,
            &CDeviceBase::filterDataIPV6, &CDeviceBase::modifyIP, &CDeviceBase::setDefaultAccount,
            &CDeviceBase::setInitAccount, &CDeviceBase::setDeleteDevice, &CDeviceBase::setBatchDeleteDevice,
            &CDeviceBase::getDeviceInfo, &CDeviceBase::getDeviceDetail,
            &CDeviceBase::getDeviceDetailByAddress, &CDeviceBase::getLoginDevice,
            &CDeviceBase::setUpgradeFilePath, &CDeviceBase::startUpgrade,
            &CDeviceBase::startUpgradeByDocument, &CDeviceBase::stopUpgrade,
            &CDeviceBase::importUpgradeDocument, &CDeviceBase::findAndLoginDevice,
            &CDeviceBase::updataDeviceInfo, &CDeviceBase::getCameraConfig, &CDeviceBase::getEncodeCaps,
            &CDeviceBase::getConfigData, &CDeviceBase::setConfigData, &CDeviceBase::getDeviceChannelData,
            &CDeviceBase::confirmConfigData, &CDeviceBase::getVideoIn,
            &CDeviceBase::getVideoInByChangeChannel, &CDeviceBase::copyConfigToDevice,
            &CDeviceBase::getEncodeInfo, &CDeviceBase::unusedOperation, &CDeviceBase::systemConfig,
            &CDeviceBase::snapPictureToFile, &CDeviceBase::hasDeviceUpgrading, &CDeviceBase::importDevice,
            &CDeviceBase::exportDevice, &CDeviceBase::unusedListOperation);
        for (std::size_t index = 0; index < slots.size(); ++index)
            QCOMPARE(slots[index], slotsOfQObject + static_cast<int>(index));
    }

    void relaysEverySignalWithItsArguments()
    {
        const QMetaObject &base = CDeviceBase::staticMetaObject;
        const QMetaObject &factory = CDeviceFactory::staticMetaObject;
        int unrelayed = 0;
        for (int index = factory.methodOffset(); index < factory.methodCount(); ++index)
            unrelayed += factory.method(index).methodType() == QMetaMethod::Signal ? 1 : 0;
        for (int index = base.methodOffset(); index < base.methodCount(); ++index) {
            const QMetaMethod signal = base.method(index);
            if (signal.methodType() != QMetaMethod::Signal)
                continue;
            const QByteArray twin = signal.methodSignature().replace("signalCDevice", "signal");
            const int twinIndex = factory.indexOfSignal(twin.constData());
            QVERIFY2(twinIndex >= 0, twin.constData());
            QSignalSpy spy(&m_factory, factory.method(twinIndex));

            int number = 40 + index;
            QStringList texts;
            for (const char *name : {"first", "second", "third"})
                texts.append(QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(index));
            qsizetype usedTexts = 0;
            QVariantList list = {index, texts.at(0)};
            bool flag = true;
            QVariantList expected;
            std::array<void *, 5> arguments = {};
            for (int argument = 0; argument < signal.parameterCount(); ++argument) {
                const QMetaType type = signal.parameterMetaType(argument);
                if (type == QMetaType::fromType<int>())
                    arguments[argument + 1] = &number;
                else if (type == QMetaType::fromType<bool>())
                    arguments[argument + 1] = &flag;
                else if (type == QMetaType::fromType<QVariantList>())
                    arguments[argument + 1] = &list;
                else
                    arguments[argument + 1] = &texts[usedTexts++];
                expected.append(QVariant(type, arguments[argument + 1]));
            }
            QMetaObject::activate(m_backEnd.get(), &base, index - base.methodOffset(), arguments.data());
            QCOMPARE(spy.size(), 1);
            QCOMPARE(spy.at(0), expected);
            --unrelayed;
        }
        QCOMPARE(unrelayed, 0);
    }

    void forwardsToTheNamedFamily()
    {
        m_factory.setDefaultAccount("hik", "admin", "1");
        m_factory.setDefaultAccount("dh", "root", "2");
        m_factory.startSnap("dh", 3, "10.0.0.1:37777");
        QCOMPARE(m_backEnd->calls,
                 QStringList({"setDefaultAccount root 2", "snapPictureToFile liveCapture 3 10.0.0.1:37777"}));
        QCOMPARE(m_factory.getDeviceDetailString("dh", "02:aa"),
                 "标识\n名称: 大厅\n\n网络\nMAC: 02:aa\n\n添加与账号\n添加方式: 搜索\n");
    }

    void anUnknownOrEmptyFamilyGivesEmptyValues_data()
    {
        const auto row = dataTable<QString>({"family"});
        for (const char *family : {"hik", "ol", "unknown", ""})
            row(family, QString(family));
    }

    /// Calls every operation that takes a family with arguments of the correct types.
    void anUnknownOrEmptyFamilyGivesEmptyValues()
    {
        QFETCH(QString, family);
        const QMetaObject *meta = m_factory.metaObject();
        int called = 0;
        for (int index = meta->methodOffset(); index < meta->methodCount(); ++index) {
            const QMetaMethod method = meta->method(index);
            if (method.methodType() != QMetaMethod::Method || method.parameterNames().value(0) != "family")
                continue;
            std::vector<QVariant> values;
            std::vector<void *> arguments = {nullptr};
            values.reserve(method.parameterCount() + 1);
            const QMetaType returned = method.returnMetaType();
            if (returned != QMetaType::fromType<void>())
                arguments[0] = values.emplace_back(returned).data();
            for (int argument = 0; argument < method.parameterCount(); ++argument) {
                QVariant value(method.parameterMetaType(argument));
                if (argument == 0)
                    value = family;
                arguments.push_back(values.emplace_back(value).data());
            }
            QVERIFY(m_factory.qt_metacall(QMetaObject::InvokeMetaMethod, index, arguments.data()) < 0);
            if (arguments[0])
                QCOMPARE(values.front(), QVariant(returned));
            ++called;
        }
        QVERIFY(called >= 38);
        QVERIFY(m_backEnd->calls.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestDeviceFactory)
#include "tst_devicefactory.moc"
