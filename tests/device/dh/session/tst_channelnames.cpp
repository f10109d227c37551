// The names of channels on a simulated recorder: read, edited and written one by one.
#include "device/forms/channelnameform.h"
#include "device/registry/bytetext.h"
#include "device/work/sessionwork.h"
#include "tests/datatable.h"
#include "tests/device/dh/configsite.h"

using sdk::demo::Fault;
using sdk::demo::SceneDevice;

namespace {

SceneDevice recorder(int channels = 16)
{
    SceneDevice device = configDevice(1, "NVR", channels);
    device.channels[0].name = "大门";
    device.channels[1].name = "Lagerhalle Süd";
    device.channels[2].connected = false;
    return device;
}

} // namespace

class TestChannelNames : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<ConfigSite> m_site;
    SceneDevice m_device;

    void open(const SceneDevice &device)
    {
        m_site.reset();
        m_device = device;
        m_site = std::make_unique<ConfigSite>(QList<SceneDevice>{device});
        QCOMPARE(m_site->login(device), 0);
    }

    QVariantList names(int count) const
    {
        return m_site->factory->getDeviceChannelData("dh", "channelNames", count);
    }

    void setFault(Fault fault, int number = 0) const
    {
        m_site->site->setFault(m_device.mac, {.fault = fault, .number = number, .text = {}});
    }

    /// A form with the names of the current device.
    std::unique_ptr<ChannelNameForm> form() const
    {
        auto form = std::make_unique<ChannelNameForm>();
        form->load(names(0), m_site->factory->getDeviceChannelData("dh", "channelsConnected", 0));
        auto *work = new SessionWork(form.get());
        work->setDeviceFactory(m_site->factory.get());
        connect(form.get(), &ChannelNameForm::writeRequested, work, &SessionWork::writeName);
        connect(work, &SessionWork::ended, form.get(), [form = form.get()](const QVariant &value) {
            form->takeWritten(form->savingRow(), value.toMap().value("result").toInt(),
                              value.toMap().value("name"));
        });
        return form;
    }

    void reportSaving() const { m_site->set("channelNamesSaved", true); }

    /// Saves the changes and returns the result of a row.
    static ChannelNameForm::Trouble saved(ChannelNameForm &form, int row)
    {
        QSignalSpy saved(&form, &ChannelNameForm::saved);
        form.save();
        return saved.wait() ? troubleOf(form, row) : ChannelNameForm::Unknown;
    }

    /// Saves new names of three channels and returns the arguments of saved().
    static QVariantList resultOfSaving(ChannelNameForm &form, const QString &name)
    {
        for (const int row : {3, 4, 5})
            form.set(row, name + QString::number(row));
        QSignalSpy saved(&form, &ChannelNameForm::saved);
        form.save();
        return saved.wait() ? saved.takeFirst() : QVariantList();
    }
    static ChannelNameForm::Trouble troubleOf(const ChannelNameForm &form, int row)
    {
        return static_cast<ChannelNameForm::Trouble>(form.get(row).value("trouble").toInt());
    }

private Q_SLOTS:
    void cleanup() { m_site.reset(); }

    void aWriteIsOneRequestWithItsResult()
    {
        open(recorder());
        QSignalSpy finished(m_site->factory.get(), &CDeviceFactory::signalSetChannelNameFinished);
        m_site->set("channelName", "后门", "5");
        QCOMPARE(m_site->askedItems("NetSetItem"), QStringList({"1108/0@5 260 5000"}));
        const auto result = [this](int channel) {
            return m_site->factory->getConfigData("dh", "channelNameResult", channel).toInt();
        };
        QCOMPARE(result(5), 0);
        QCOMPARE(result(6), -1);
        QCOMPARE(names(0).value(5).toString(), "后门");

        setFault(Fault::RefusesItem, 1108);
        m_site->set("channelName", "东门", "5");
        QCOMPARE(result(5), 999);
        QCOMPARE(finished.size(), 0); // the save continues
        for (const char *channel : {"16", "-1", "", "x"}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("there is no channel.*"));
            m_site->set("channelName", "x", channel);
        }
        QCOMPARE(m_site->asked("NetSetItem").size(), 2);
    }

    void aSaveEndsEarly_data()
    {
        const auto row = dataTable<bool, QVariantList, int>({"isAway", "outcome", "requests"});
        row("the device is offline", true, QVariantList({3, 0, 3}), 1);
        row("the user stops it", false, QVariantList({3, 1, -1}), 1);
    }

    void aSaveEndsEarly()
    {
        QFETCH(const bool, isAway);
        open(recorder());
        const auto names = form();
        if (isAway)
            setFault(Fault::NoAnswer);
        connect(names.get(), &ChannelNameForm::savingChanged, names.get(), [form = names.get(), isAway] {
            if (!isAway && form->savingRow() == 4)
                form->stopSaving();
        });
        QTEST(resultOfSaving(*names, "Hof "), "outcome");
        QTEST(static_cast<int>(m_site->asked("NetSetItem").size()), "requests");
        QVERIFY(!names->isSaving());
    }

    void textsAreTruncatedBetweenCharacters_data()
    {
        const auto row = dataTable<QString, int, QString>({"text", "bytes", "truncated"});
        row("inside a character", "大门", 5, "大");
        row("combining accent", "ae\u0301", 2, "a");
        row("outside the basic multilingual plane", "a😀b", 4, "a");
        row("joined characters", "a👨‍👩‍👧", 12, "a");
    }

    void textsAreTruncatedBetweenCharacters()
    {
        QFETCH(const QString, text);
        QFETCH(const int, bytes);
        QTEST(ByteText::truncated(text, bytes), "truncated");
    }

    void changesCountUntilTheyAreSavedOrReverted()
    {
        open(recorder());
        const auto names = form();
        QCOMPARE(names->rowCount(), 16);
        QCOMPARE(names->get(2).value("connected").toBool(), false);
        QCOMPARE(names->get(3).value("connected").toBool(), true);
        names->set(0, " 正门 ");
        names->set(1, "");
        names->set(3, "Hof");
        QCOMPARE(names->changedCount(), 3);
        QCOMPARE(troubleOf(*names, 1), ChannelNameForm::Empty);
        names->restoreName(1);
        QCOMPARE(names->changedCount(), 2);

        names->restoreName(3);
        QCOMPARE(saved(*names, 0), ChannelNameForm::None);
        QCOMPARE(names->get(0).value("name").toString(), "正门"); // without the spaces
        names->set(3, "Hof");
        setFault(Fault::RefusesItem, 1108);
        QCOMPARE(saved(*names, 3), ChannelNameForm::Refused);
        QCOMPARE(names->changedCount(), 1); // can be retried
        QCOMPARE(names->failedCount(), 1);
        setFault(Fault::NoAnswer);
        QCOMPARE(saved(*names, 3), ChannelNameForm::NoResponse);
        names->set(3, "Hof 1");
        QCOMPARE(troubleOf(*names, 3), ChannelNameForm::None);
    }

    void aNameTypedDuringItsWriteIsKept()
    {
        open(recorder());
        const auto names = form();
        names->set(3, "Hof");
        connect(names.get(), &ChannelNameForm::writeRequested, names.get(),
                [form = names.get()](int row) { form->set(row, "Tor"); });
        QCOMPARE(saved(*names, 3), ChannelNameForm::None);
        const QVariantMap row = names->get(3);
        QCOMPARE(row.value("saved").toString() + ", now " + row.value("name").toString(), "Hof, now Tor");
        QCOMPARE(names->changedCount(), 1);
    }

    void aRefusedNameThatIsEditedMeanwhileIsReported()
    {
        open(recorder());
        setFault(Fault::RefusesItem, 1108);
        const auto names = form();
        connect(names.get(), &ChannelNameForm::savingChanged, names.get(), [form = names.get()] {
            if (form->savingRow() == 4)
                form->set(3, "Tor");
        });
        QCOMPARE(resultOfSaving(*names, "Hof "), QVariantList({3, 0, 3}));
        QCOMPARE(names->get(3).value("name").toString(), "Tor");
    }

    void anUnreadNameCanBeSet()
    {
        open(recorder());
        setFault(Fault::WithholdsItem, 1108);
        const auto names = form();
        QCOMPARE(names->unknownCount(), 15);
        QCOMPARE(names->changedCount(), 0);
        QCOMPARE(troubleOf(*names, 0), ChannelNameForm::Unknown);
        names->set(0, "Hof");
        QCOMPARE(saved(*names, 0), ChannelNameForm::None);
        QCOMPARE(names->changedCount(), 0);
    }
};

QTEST_GUILESS_MAIN(TestChannelNames)
#include "tst_channelnames.moc"
