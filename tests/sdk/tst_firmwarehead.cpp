// Headers and names of firmware files, including invalid ones.
#include "sdk/firmwarehead.h"
#include "tests/datatable.h"

using namespace sdk;
using Kind = FirmwareHeadReading::Kind;
Q_DECLARE_METATYPE(Kind)

namespace {

QByteArray line(const std::vector<std::string> &models)
{
    QByteArrayList parts;
    for (const std::string &model : models)
        parts.append(QByteArray::fromStdString(model));
    return parts.join(',');
}

FirmwareHeadReading readingOf(const QByteArray &bytes)
{
    return readFirmwareHead({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace

class FirmwareHeadTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsHeaders_data()
    {
        const auto addRow =
            dataTable<QByteArray, Kind, QByteArray, QByteArray>({"bytes", "kind", "models", "version"});
        const auto row = [&addRow](const char *title, const QByteArray &bytes, Kind kind,
                                   const QByteArray &models = {}, const QByteArray &version = {}) {
            addRow(title, bytes, kind, models, version);
        };
        const QByteArray first = "BRELM-FIRMWARE 1\n";
        const QByteArray version = "version=2.900.0\n";
        row("complete", first + "model=A-1, B-2230-IR\n" + version + "\n\0\xff", Kind::Known, "A-1,B-2230-IR",
            "2.900.0");
        row("other line ends", "BRELM-FIRMWARE 1\r\nmodel=A-1\r\nversion=1.2\r\n\r\n", Kind::Known, "A-1",
            "1.2");
        row("characters after the version", first + "version=V3.000.1.R\n\n", Kind::Known, "", "3.000.1.R");
        row("nothing", "", Kind::Unknown);
        row("other file", QByteArray("PK\x03\x04", 4), Kind::Unknown);
        row("other generation", "BRELM-FIRMWARE 2\n" + version + "\n", Kind::Damaged);
        row("no end", first + version, Kind::Damaged);
        row("no version", first + "model=A-1\n\n", Kind::Damaged);
        row("version in words", first + "version=new\n\n", Kind::Damaged);
        row("version too long", first + "version=2." + QByteArray(62, '1') + "\n\n", Kind::Damaged);
        row("model too long", first + "model=" + QByteArray(33, 'A') + "\n" + version + "\n", Kind::Damaged);
        row("65 models", first + "model=" + QByteArray("A,").repeated(64) + "A\n" + version + "\n",
            Kind::Damaged);
        row("no key", first + "=1\n" + version + "\n", Kind::Damaged);
        row("too long", first + "x=" + QByteArray(4096, '1') + "\n" + version + "\n", Kind::Damaged);
    }

    void readsHeaders()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(Kind, kind);
        const FirmwareHeadReading reading = readingOf(bytes);
        QCOMPARE(reading.kind, kind);
        QTEST(line(reading.head.models), "models");
        QTEST(QByteArray::fromStdString(reading.head.version), "version");
    }

    void readsFileNames_data()
    {
        // reported: "models version"; empty: nothing
        const auto row = namedTable<QByteArray, QByteArray>({"name", "reported"});
        row("B-2230-IR_2.900.0.bin", "B-2230-IR 2.900.0");
        row("A-1,B-2_v2.900.0_20240506.img", "A-1,B-2 2.900.0");
        row("A-1_V1.2", "A-1 1.2");
        row("A-1_3.000.1.R.bin", "A-1 3.000.1.R");
        row("A-1_2.R.bin", "");
        row("firmware.bin", "");
        row("new firmware_2.bin", "");
        row("General_final.bin", "");
        row("Upgrade_2.900.0.bin", "");
        row("_2.900.0.bin", "");
        row("升级_2.900.0.bin", "");
        row("", "");
    }

    void readsFileNames()
    {
        QFETCH(QByteArray, name);
        const std::optional<FirmwareHead> head = firmwareHeadOfName(name.toStdString());
        QTEST(head ? line(head->models) + ' ' + QByteArray::fromStdString(head->version) : QByteArray(),
              "reported");
    }

    void comparesVersions_data()
    {
        const auto row = namedTable<QByteArray, QByteArray, bool>({"one", "other", "isSame"});
        row("3.000.1", "v3.000.1 ", true);
        row("3.000.1", "3.000.1.R", true);
        row("3.000.1", "3.000.1.", true);
        row("3.000.1", "3.000.1R, build 2026-01-01", true);
        row("3.000.1.R", "V3.000.1.r 2026-01-01", true);
        row("3.000.1.R", "3.000.1.T", false);
        row("3.000.1", "3.000.10", false);
        row("3.000.1", "3.000", false);
        row("", "", false);
        row("new", "new", false);
    }

    void comparesVersions()
    {
        QFETCH(QByteArray, one);
        QFETCH(QByteArray, other);
        const auto isSame = [](const QByteArray &left, const QByteArray &right) {
            return isSameVersion(left.toStdString(), right.toStdString());
        };
        QTEST(isSame(one, other), "isSame");
        QTEST(isSame(other, one), "isSame");
    }
};

QTEST_GUILESS_MAIN(FirmwareHeadTest)
#include "tst_firmwarehead.moc"
