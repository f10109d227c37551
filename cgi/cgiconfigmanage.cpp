#include "cgi/cgiconfigmanage.h"

#include "cgi/commandworkbook.h"
#include "cgi/curltransport.h"
#include "cgi/internal/workbookresults.h"
#include "cgi/responsekind.h"
#include "device/registry/devicefactory.h"
#include "files/applicationfolders.h"
#include "files/filereplacement.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonObject>
#include <QUrl>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

std::unique_ptr<CGIConfigManage> &instance()
{
    static std::unique_ptr<CGIConfigManage> object;
    return object;
}

QString fieldText(const QVariant &row, const QString &key)
{
    // Rows of the factory: creating a map of each would take longer than sorting them.
    if (row.metaType() == QMetaType::fromType<QJsonObject>())
        return row.toJsonObject().value(key).toVariant().toString();
    return row.toMap().value(key).toString();
}

} // namespace

/// Marks a command or a workbook as running while the object exists.
class CGIConfigManage::Run
{
public:
    explicit Run(CGIConfigManage &manager) : m_manager(manager)
    {
        m_manager.m_isRunning = true;
        m_manager.m_isStopped = false;
    }
    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;
    ~Run() { m_manager.m_isRunning = false; }

private:
    CGIConfigManage &m_manager;
};

CGIConfigManage *CGIConfigManage::getinstance()
{
    if (!instance())
        instance() =
            std::make_unique<CGIConfigManage>(programSurroundings(), ApplicationFolders::current().data());
    return instance().get();
}

void CGIConfigManage::deleteInstance()
{
    instance().reset();
}

CGIConfigManage::CGIConfigManage(CgiSurroundings surroundings, const QString &memoryFolder, QObject *parent)
    : QObject(parent), m_surroundings(watched(std::move(surroundings))), m_procedure(m_surroundings, {}),
      m_memory(memoryFolder + QStringLiteral("/cgicommands.json"))
{
}

CgiSurroundings CGIConfigManage::programSurroundings()
{
    const auto checkLogin = [](const QString &ipport, const QString &account, const QString &password) {
        return CDeviceFactory::getinstance()->checkLogin(QStringLiteral("dh"), ipport, account, password);
    };
    return {.checkLogin = checkLogin,
            .transport = std::make_shared<CurlTransport>(),
            .folder = ApplicationFolders::current().responses(),
            .localTime = &QDateTime::currentDateTime};
}

CgiSurroundings CGIConfigManage::watched(CgiSurroundings surroundings)
{
    surroundings.watch = [this] {
        return passEvents();
    };
    return surroundings;
}

/// Processes events of the main thread, unless it has just done so. Returns true if the work continues.
bool CGIConfigManage::passEvents()
{
    constexpr qint64 interval = 50; // milliseconds without events
    if (!m_sinceEvents.isValid() || m_sinceEvents.elapsed() >= interval) {
        QCoreApplication::processEvents();
        m_sinceEvents.start();
    }
    return !m_isStopped;
}

QString CGIConfigManage::singleCGIConfig(const QString &url, const QString &user, const QString &pass,
                                         const QString &ipport)
{
    // During a request, timers of QML run and could call this function again.
    if (m_isRunning)
        return failedResult + tr("正在发送另一条CGI命令。");
    const Run run(*this);
    return m_procedure.run(url, user, pass, ipport);
}

QString CGIConfigManage::batchCGIConfig(const QString &path)
{
    if (m_isRunning)
        return tr("正在执行另一个文件中的CGI命令。");
    const Run run(*this);
    CommandWorkbook workbook;
    QString refusal = workbook.open(CommandWorkbook::localPath(path));
    if (!refusal.isEmpty())
        return refusal;

    WorkbookResults results(workbook);
    for (const WorkbookCommand &command : results.commands()) {
        if (command.refusal.isEmpty())
            results.take(command,
                         m_procedure.run(command.url, command.user, command.password, command.ipport));
        else
            results.take(command, failedResult + command.refusal);
        if (!passEvents())
            break;
    }
    return results.finish();
}

void CGIConfigManage::stop()
{
    m_isStopped = true;
}

QVariantList CGIConfigManage::sortList(const QVariantList &list, const QString &key, Qt::SortOrder order)
{
    struct Entry
    {
        QString text;
        const QVariant *row = nullptr;
    };
    std::vector<Entry> entries; // each text is read once, not for each comparison
    entries.reserve(static_cast<std::size_t>(list.size()));
    for (const QVariant &row : list)
        entries.push_back({.text = fieldText(row, key), .row = &row});
    std::stable_sort(entries.begin(), entries.end(), [order](const Entry &left, const Entry &right) {
        return order == Qt::AscendingOrder ? left.text < right.text : right.text < left.text;
    });
    QVariantList sorted;
    sorted.reserve(list.size());
    for (const Entry &entry : entries)
        sorted.append(*entry.row);
    return sorted;
}

void CGIConfigManage::copyText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

QStringList CGIConfigManage::linesOf(const QString &text) const
{
    constexpr qsizetype longest = 500;
    constexpr qsizetype most = 100'000;
    QStringList lines;
    qsizetype position = 0;
    while (position < text.size() && lines.size() < most) {
        qsizetype end = text.indexOf(QLatin1Char('\n'), position);
        end = end < 0 ? text.size() : end;
        qsizetype length = std::min(end - position, longest);
        if (length < end - position && text.at(position + length - 1).isHighSurrogate())
            --length; // does not split a surrogate pair
        QString line = text.mid(position, length);
        line.remove(QLatin1Char('\r'));
        lines.append(line);
        position += length == end - position ? length + 1 : length;
    }
    if (position < text.size())
        lines.append(tr("…（内容过长，已截断）"));
    return lines;
}

QVariantMap CGIConfigManage::saveText(const QString &folder, const QString &text) const
{
    const QString ending = QStringLiteral(".txt");
    QString path = responseFilePath(folder, m_surroundings.localTime(), ending);
    const QString first = path.chopped(ending.size());
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = first + QStringLiteral("_%1").arg(number) + ending;
    return {{QStringLiteral("path"), QDir::toNativeSeparators(path)},
            {QStringLiteral("failure"), replaceFile(path, text.toUtf8())}};
}

QString CGIConfigManage::templateFile() const
{
    return ApplicationFolders::current().program() + QStringLiteral("/template/") + templateFileName();
}

QUrl CGIConfigManage::templateAddress() const
{
    return QUrl::fromLocalFile(templateFile());
}

QString CGIConfigManage::templateFileName()
{
    return tr("批量操作CGI模板.xlsx");
}

QStringList CGIConfigManage::recentCommands() const
{
    return m_memory.recent();
}

void CGIConfigManage::rememberCommand(const QString &command)
{
    m_memory.remember(command);
}

QStringList CGIConfigManage::favouriteCommands() const
{
    return m_memory.favourites();
}

void CGIConfigManage::setFavouriteCommand(const QString &command, bool favourite)
{
    m_memory.setFavourite(command, favourite);
}
