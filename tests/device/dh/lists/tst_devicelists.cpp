#include "sdk/demo/demop2pagentlibrary.h"
#include "sheets/qexcel.h"
#include "tests/datatable.h"
#include "tests/device/dh/factorysite.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"

#include <QElapsedTimer>
#include <QJSEngine>
#include <QProcess>
#include <QTemporaryDir>

namespace {

const QString camera = QStringLiteral("02:1a:c5:00:00:01");
const QString plateCamera = QStringLiteral("02:1a:c5:00:00:02");
const QString videoWall = QStringLiteral("02:1a:c5:00:00:03");
const QString remote = QStringLiteral("02:1a:c5:00:00:04");
const QString newCamera = QStringLiteral("02:1a:c5:00:00:05");
const QString remoteId = QStringLiteral("OV7QK2M4");

const QByteArray headers =
    "设备分类,设备类型,接入协议,添加模式,设备名称,IP地址/域名/注册ID/设备序列号,设备端口,组织,"
    "服务IP,用户名,密码,型号,MAC,序列号,版本号,子网掩码,网关,初始化状态,结果\n";
const QByteArray cameraLine =
    "Encoder,IPC,General,IpAddress,东门,192.168.1.10,37777,,127.0.0.1,admin,secret1,"
    "B-2230-IR,02:1a:c5:00:00:01,S1,2.840.1,255.255.255.0,192.168.1.1,INITIALIZED,\n";

} // namespace

/// Export and import of device lists on a simulated site.
class TestDeviceLists : public QObject, private FactorySite
{
    Q_OBJECT
private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QJSEngine m_engine;
    int m_total = 0;
    int m_failed = 0;

    bool import(const QString &path)
    {
        QJSValue msg = m_engine.newObject();
        const bool imported = m_factory->importDevice("dh", path, msg);
        m_total = msg.property("total").toInt();
        m_failed = msg.property("errcount").toInt();
        return imported;
    }

    QString write(const QString &name, const QByteArray &text) const
    {
        const QString path = m_folder->filePath(name);
        return writeFile(path, text) ? path : QString();
    }
    QByteArray read(const QString &name) const { return fileContents(m_folder->filePath(name)); }

    bool exported(const QStringList &macs, const QString &name) const
    {
        return m_factory->exportDevice("dh", m_folder->path(), macs, name);
    }

    qsizetype logins() const { return asked("NetLogin"); }
    qsizetype rowCount() const { return m_factory->filterData("dh", "nofilter").size(); }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QList<sdk::demo::SceneDevice> devices = {
            sceneDevice(camera, "192.168.1.10", "IPC"), sceneDevice(plateCamera, "192.168.1.11", "ITC"),
            sceneDevice(videoWall, "192.168.1.12", "Matrix"), sceneDevice(remote, "10.9.9.9", "NVR"),
            sceneDevice(newCamera, "192.168.1.13", "IPC")};
        devices[0].p2pId = "OV3CAMERA"; // reachable by address and by ID
        devices[3].isRemote = true;
        devices[3].p2pId = remoteId;
        devices[3].port = 8800;
        devices[4].initialisation = sdk::InitialisationBits::Uninitialised;
        devices[4].accounts.clear();
        openSite(devices);
        m_factory->setDefaultAccount("dh", "admin", "secret1");
    }

    void cleanup() { closeSite(); }

    void writesTheExpectedBytes()
    {
        search();
        m_factory->updataDeviceInfo("dh", "name", "A<&", videoWall, "");
        QVERIFY(exported({camera, videoWall, newCamera}, "device.csv"));
        QCOMPARE(
            read("device.csv"),
            headers + cameraLine +
                "Video Wall Control,NVD,General,IpAddress,A<&,192.168.1.12,37777,,127.0.0.1,admin,secret1,"
                "B-2230-IR,02:1a:c5:00:00:03,S1,2.840.1,255.255.255.0,192.168.1.1,INITIALIZED,\n"
                "Encoder,IPC,General,IpAddress,东门,192.168.1.13,37777,,127.0.0.1,,,"
                "B-2230-IR,02:1a:c5:00:00:05,S1,2.840.1,255.255.255.0,192.168.1.1,NOT INITIALIZED,\n");

        m_factory->updataDeviceInfo("dh", "name", "A<&", plateCamera, "");
        QVERIFY(m_factory->exportDevice("dh", "file://" + m_folder->path(), {plateCamera}, "device.xml"));
        QCOMPARE(read("device.xml"), R"(<?xml version="1.0" encoding="UTF-8"?>
<deviceList>
  <device>
    <DeviceCategory>Traffic</DeviceCategory>
    <DeviceType>Traffic</DeviceType>
    <AccessProtocol>General</AccessProtocol>
    <AddMode>IpAddress</AddMode>
    <DeviceName>A<&</DeviceName>
    <IPAddress>192.168.1.11</IPAddress>
    <DevicePort>37777</DevicePort>
    <Organization></Organization>
    <ServiceIP>127.0.0.1</ServiceIP>
    <Username>admin</Username>
    <Password>secret1</Password>
    <Model>B-2230-IR</Model>
    <MAC>02:1a:c5:00:00:02</MAC>
    <SerialNumber>S1</SerialNumber>
    <Version>2.840.1</Version>
    <SubnetMask>255.255.255.0</SubnetMask>
    <Gateway>192.168.1.1</Gateway>
    <InitStatus>INITIALIZED</InitStatus>
    <Result></Result>
  </device>
</deviceList>
)");
    }

    void reportsNamesThatCannotBeImportedAgain_data()
    {
        // reason: part of it; empty if the import gives the same name
        const auto row = dataTable<QString, QString, QString>({"format", "name", "reason"});
        const QString noCharacter(QChar(0xFFFE));
        row("comma", "csv", "东,门", ", (U+002C)");
        row("space at the end", "csv", "东门 ", "U+0020");
        row("other characters", "csv", "A<&\"; 门 😀", QString());
        row("bracket", "xml", "A<B", "< (U+003C)");
        row("too long", "xml", QString(257, u'x'), "字段过长");
        row("any character of a cell", "xlsx", "A,<&_x0041_" + noCharacter, QString());
        row("control character", "xlsx", "\x01", "U+0001");
    }

    void reportsNamesThatCannotBeImportedAgain()
    {
        QFETCH(QString, format);
        QFETCH(QString, name);
        QFETCH(QString, reason);
        search();
        m_factory->updataDeviceInfo("dh", "name", name, plateCamera, "");
        QTest::failOnWarning(QRegularExpression(".*")); // the check of the names must not log warnings
        QVERIFY(exported({camera, plateCamera}, "device." + format));
        const QVariantList faults = m_factory->exportFaults("dh");
        QCOMPARE(faults.size(), reason.isEmpty() ? 0 : 1);
        const QVariantMap fault = faults.value(0).toMap();
        QVERIFY(fault.value("reason").toString().contains(reason));
        if (!reason.isEmpty()) {
            QCOMPARE(valuesOf(fault, "address column"), "192.168.1.11|设备名称 (DeviceName)");
        }
    }

    void aFullDiskKeepsTheExistingList_data()
    {
        const auto row = dataTable<QString>({"name"});
        for (const char *name : {"device.xlsx", "device.csv", "device.xml"})
            row(name, name);
    }

    void aFullDiskKeepsTheExistingList()
    {
        QFETCH(const QString, name);
        search();
        QVERIFY(!write(name, "as it was").isEmpty());
        bool isWritten = true;
        {
            const FileSizeLimit limit(200);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot (create|write).*"));
            isWritten = exported({camera}, name);
        }
        QVERIFY(!isWritten);
        QCOMPARE(read(name), "as it was");
        QVERIFY(exported({camera}, name));
    }

    void everyFormatCanBeImportedAgain_data() { aFullDiskKeepsTheExistingList_data(); }

    void everyFormatCanBeImportedAgain()
    {
        QFETCH(QString, name);
        search();
        const int port = m_factory->setAddDevice("dh", remoteId, "admin", "secret1", "8800", 0);
        QVERIFY(port > 0);
        QCOMPARE(
            m_factory->getLoginDevice("dh", remoteId, "admin", "secret1", QString::number(port), 1, "8800"),
            0);
        QVERIFY(exported({camera, plateCamera, videoWall, remote}, name));
        m_factory->setBatchDeleteDevice(
            "dh", {{camera, true}, {plateCamera, true}, {videoWall, true}, {remote, true}}, "IPV4");
        QCOMPARE(rowCount(), 1);

        QSignalSpy progress(m_factory.get(), &CDeviceFactory::signalImportProgress);
        QSignalSpy added(m_factory.get(), &CDeviceFactory::signalAddSingleDeviceToTable);
        QVERIFY(import(QUrl::fromLocalFile(m_folder->filePath(name)).toString()));
        QCOMPARE(m_total, 4);
        QCOMPARE(m_factory->importFailures("dh"), QVariantList());
        QCOMPARE(progress.size(), 4);
        QCOMPARE(progress.last(), QVariantList({4, 4}));
        QCOMPARE(added.size(), 1);
        QCOMPARE(rowCount(), 5);
        QCOMPARE(valuesOf(row(camera), "name password"), "东门|secret1");
        QCOMPARE(row(plateCamera).value("type").toString(), "ITC");
        QCOMPARE(row(videoWall).value("type").toString(), "Matrix");
        QCOMPARE(valuesOf(row(remote), "name devp2pPort"), remoteId + "|8800");
        QVERIFY(row(remote).value("ipport").toString().startsWith("127.0.0.1:"));

        // Imported devices are exported with the same values.
        QVERIFY(exported({camera, plateCamera, videoWall, remote}, "again.csv"));
        QVERIFY(read("again.csv").contains(cameraLine));
        QVERIFY(read("again.csv").contains(",P2P," + remoteId.toUtf8() + ',' + remoteId.toUtf8() + ",8800,"));
        m_factory->updataDeviceInfo("dh", "type", QString(40, 'T'), remote, "");
        QVERIFY(exported({remote}, "again.csv"));
        QVERIFY(read("again.csv").contains("Encoder," + QByteArray(32, 'T') + ",General"));
    }

    void passwordsCanBeLeftOut_data() { aFullDiskKeepsTheExistingList_data(); }

    void passwordsCanBeLeftOut()
    {
        QFETCH(const QString, name);
        search();
        QVERIFY(m_factory->exportProtected("dh", m_folder->path(), {camera}, name, true, ""));
        QVERIFY(m_factory->exportProtected("dh", m_folder->path(), {camera}, "secret.devlist", false,
                                           "long enough"));
        QByteArray bytes = read(name);
        if (name.endsWith("xlsx")) { // its parts are compressed
            QExcel workbook;
            QVERIFY(workbook.open(m_folder->filePath(name)));
            bytes.clear();
            for (int row = 1; row <= workbook.usedRowCount(); ++row) {
                for (int column = 1; column <= 19; ++column)
                    bytes += workbook.cellText(row, column).value_or(QString()).toUtf8();
            }
        }
        QVERIFY(bytes.contains("admin"));
        QVERIFY(!bytes.contains("secret1"));
        QVERIFY(!read("secret.devlist").contains("secret1"));
    }

    void passwordsAreReadableByTheOwnerOnly_data() { aFullDiskKeepsTheExistingList_data(); }

    void passwordsAreReadableByTheOwnerOnly()
    {
        QFETCH(const QString, name);
        constexpr QFile::Permissions ofOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther;
        const QString path = m_folder->filePath(name);
        search();
        QVERIFY(m_factory->exportProtected("dh", m_folder->path(), {camera}, name, true, ""));
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
        QVERIFY(exported({camera}, name)); // replaces a file without passwords
        QVERIFY(!(QFile::permissions(path) & ofOthers));
        QVERIFY(QFile::remove(path));
        QVERIFY(exported({camera}, name));
        QVERIFY(!(QFile::permissions(path) & ofOthers));
        QVERIFY(QFile::permissions(path) & QFile::WriteOwner);
    }

    void aTunnelIsOpenWhileItIsNeeded()
    {
        int port = 0;
        int webPort = 0;
        const auto portTo = [this](const char *devicePort) {
            return m_factory->setAddDevice("dh", "OV3CAMERA", "admin", "secret1", devicePort, 0);
        };
        const auto add = [&] {
            port = portTo("37777");
            webPort = portTo("8080");
            m_factory->addP2PPort(port, webPort);
            return m_factory->getLoginDevice("dh", "OV3CAMERA", "admin", "secret1", QString::number(port), 1,
                                             "37777") == 0;
        };
        const auto openTunnels = [&] {
            return !!m_site->portAgent().tunnel(port) + !!m_site->portAgent().tunnel(webPort);
        };
        const auto logIn = [this](const QString &ipport) {
            return m_factory->findAndLoginDevice("dh", ipport, "admin", "secret1") == 0;
        };
        // A search removes the device from the list during a session: the tunnel is closed with the session.
        QVERIFY(add());
        QVERIFY(logIn(QStringLiteral("127.0.0.1:%1").arg(port)));
        search();
        m_factory->releaseP2PPort(port); // as after a failed login through the tunnel in use
        QCOMPARE(openTunnels(), 2);
        QVERIFY(logIn("192.168.1.11:37777"));
        QCOMPARE(openTunnels(), 0);
        QVERIFY(add());
        search();
        QCOMPARE(openTunnels(), 0);
        // Adding the same device by its address replaces its row.
        QVERIFY(add());
        QCOMPARE(openTunnels(), 2);
        QCOMPARE(m_factory->getLoginDevice("dh", "192.168.1.10", "admin", "secret1", "37777"), 0);
        QCOMPARE(openTunnels(), 0);
    }

    void readsFilesOfOtherPrograms_data()
    {
        const auto row = dataTable<QString, QByteArray>({"name", "text"});
        const QByteArray crlf = QByteArray(headers + cameraLine).replace("\n", "\r\n");
        row("byte order mark and CRLF", "a.csv", "\xEF\xBB\xBF" + crlf);
        row("other order, missing and unknown columns, spaces", "a.csv",
            QByteArray("\n密码,备注, *用户名 ,IP地址/域名/注册ID/设备序列号\n,,,\nsecret1,x, admin "
                       ",192.168.1.10\n"));
        QByteArray attributes;
        for (int number = 0; number < 200'000; ++number)
            attributes += " a" + QByteArray::number(number) + "=''";
        row("many attributes", "a.xml",
            "<deviceList><device" + attributes +
                "><Username>admin</Username><Password>secret1</Password>"
                "<IPAddress>192.168.1.10</IPAddress></device></deviceList>");
        row("declared encoding", "a.xml",
            QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><deviceList><device><Username>admin"
                       "</Username><Password>secret1</Password><IPAddress>192.168.1.10</IPAddress>"
                       "<DeviceName>T\xFCr</DeviceName></device></deviceList>"));
        row("other elements", "a.xml",
            QByteArray("\xEF\xBB\xBF<?xml version='1.0'?><!-- by hand --><deviceList><info><a/></info>"
                       "<device><Note><b>x</b></Note><Username>ad<!-- -->m<![CDATA[in]]></Username>"
                       "<Password>secret&#49;</Password>"
                       "<IPAddress>\n192.168.1.10 </IPAddress></device></deviceList>"));
    }

    void readsFilesOfOtherPrograms()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, text);
        QElapsedTimer time;
        time.start();
        QVERIFY(import(write(name, text)));
        QCOMPARE_LT(time.elapsed(), 10'000);
        QCOMPARE(m_total, 1);
        QCOMPARE(m_factory->importFailures("dh"), QVariantList());
        QCOMPARE(row(camera).value("ipport").toString(), "192.168.1.10:37777");
    }

    void refusesInvalidFiles_data()
    {
        const auto row = dataTable<QString, QByteArray, QString>({"name", "text", "logged"});
        const QString unopened = QStringLiteral("^Failed to open file: .*/");
        const QString unparsed = QStringLiteral("^Failed to parse XML file:");
        row("no file", "missing.csv", QByteArray(), unopened);
        row("same MAC", "a.csv",
            headers + cameraLine + QByteArray(cameraLine).replace(".10,", ".11,").replace("02:1a", "02:1A"),
            QString());
        row("not UTF-8", "a.csv", headers + "\xB6\xAB,\n", QString());
        row("too many lines", "a.csv", "IP地址/域名/注册ID/设备序列号\n" + QByteArray("a\n").repeated(100001),
            QString());
        const auto named = [](const QByteArray &name) {
            return "<deviceList>\n<device>\n<DeviceName>" + name + "</DeviceName></device></deviceList>";
        };
        row("unescaped", "a.xml", named("a&b"), unparsed + ".* in line 3");
        row("reference to no character", "a.xml", named("&#xFFFE;"), unparsed);
        row("document type", "a.xml",
            QByteArray("<!DOCTYPE d [<!ENTITY e 'x'>]><deviceList><device><IPAddress>&e;</IPAddress>"
                       "</device></deviceList>"),
            unparsed);
        row("too deep", "a.xml",
            "<deviceList>" + QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000) +
                "</deviceList>",
            unparsed);
        row("another root", "a.xml", QByteArray("<devices/>"), "^Root element is not 'deviceList': devices$");
    }

    void refusesInvalidFiles()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, text);
        QFETCH(QString, logged);
        if (!text.isNull())
            QVERIFY(!write(name, text).isEmpty());
        if (!logged.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(logged));
        QVERIFY(!import(m_folder->filePath(name)));
        QVERIFY(!m_factory->importError("dh").isEmpty());
        QCOMPARE(logins(), 0);
        QCOMPARE(rowCount(), 0);
    }

    void reportsTheReasonOfAFailedLine_data()
    {
        const auto row = dataTable<QByteArray, int>({"line", "code"});
        const auto changed = [](const char *from, const QByteArray &to) {
            return QByteArray(cameraLine).replace(from, to);
        };
        row("no device", changed("192.168.1.10", "192.168.1.99"), 5);
        row("no account", changed("admin,", "root,"), 1);
        row("wrong password", changed("secret1", "secret2"), 2);
        row("no address", changed("192.168.1.10", ""), -1);
        row("invalid port", changed("37777", "70000"), -1);
        row("unsupported mode", changed("IpAddress", "Register"), -1);
        row("comma in a name", changed("东门", "东,门"), -1);
        row("control character", changed("secret1", "a\x1b[2J"), -1);
    }

    void reportsTheReasonOfAFailedLine()
    {
        QFETCH(QByteArray, line);
        QFETCH(int, code);
        QCOMPARE(m_factory->getLoginDevice("dh", "192.168.1.11", "admin", "secret1", "37777"), 0);
        const qsizetype before = logins();
        const QByteArray good = QByteArray(cameraLine).replace("1.10,", "1.12,").replace("00:01,", "00:03,");
        QVERIFY(import(write("a.csv", headers + line + good)));
        QCOMPARE(m_total, 2);
        QCOMPARE(m_failed, 1);
        const QVariantMap failure = m_factory->importFailures("dh").value(0).toMap();
        QCOMPARE(failure.value("line").toInt(), 2);
        QCOMPARE(failure.value("code").toInt(), code);
        const QString address =
            line.contains("东,门") ? QString() : QString::fromUtf8(line.split(',').value(5));
        QCOMPARE(failure.value("address").toString(), address);
        QVERIFY(!failure.value("reason").toString().isEmpty());
        if (code == -1)
            QCOMPARE(logins(), before + 1); // the login of the valid line
        QCOMPARE(rowCount(), 2);
    }

    void findsTheHeadersOfAWorkbook()
    {
        QExcel workbook;
        QVERIFY(workbook.createWorkbook());
        int column = 2;
        for (const char *header : {"用户名", "密码", "IP地址/域名/注册ID/设备序列号", "初始化状态"})
            QVERIFY(workbook.setCellText(3, ++column, header));
        column = 2;
        for (const char *value : {"admin", "secret1", "192.168.1.10", "NOT INITIALIZED"})
            QVERIFY(workbook.setCellText(5, ++column, value));
        QVERIFY(workbook.setCellText(6, 5, "192.168.1.11"));
        QVERIFY(workbook.saveAs(m_folder->filePath("a.xlsx")));
        QVERIFY(import(m_folder->filePath("a.xlsx")));
        QCOMPARE(m_total, 2);
        QCOMPARE(m_factory->importFailures("dh").value(0).toMap().value("line").toInt(), 6);
        QCOMPARE(row(camera).value("state").toBool(true), false);
    }

    void otherLibrariesReadTheWorkbook()
    {
        search();
        QVERIFY(exported({camera}, "device.xlsx"));
        QProcess python;
        python.start(
            CONFIGTOOLS_SYSTEM_PYTHON,
            {"-c",
             "import openpyxl, sys\n"
             "sheet = openpyxl.load_workbook(sys.argv[1]).worksheets[0]\n"
             "print(sheet['A1'].value.split('\\n')[0], sheet['A1'].value.count('\\n'))\n"
             "print(*sheet.merged_cells.ranges, sheet['A1'].alignment.wrap_text, sheet['S2'].font.b)\n"
             "for row in sheet.iter_rows(min_row=2):\n"
             "    print(*[cell.value or '' for cell in row], sep=',')\n",
             m_folder->filePath("device.xlsx")});
        QVERIFY(python.waitForFinished());
        QCOMPARE(QString::fromUtf8(python.readAllStandardOutput()),
                 "1、带“*”必须填写； 9\nA1:S1 True True\n" + QString::fromUtf8(headers + cameraLine));
    }
};

QTEST_GUILESS_MAIN(TestDeviceLists)
#include "tst_devicelists.moc"
