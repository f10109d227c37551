#include "cgi/cgiconfigmanage.h"

#include "cgi/commandworkbook.h"
#include "cgi/curltransport.h"
#include "cgi/internal/batchrun.h"
#include "device/devicefactory.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QJsonObject>
#include <QScopeGuard>
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

QString localPath(const QString &path)
{
    const QUrl url(path);
    return url.isLocalFile() ? url.toLocalFile() : path;
}

QString fieldText(const QVariant &row, const QString &key)
{
    // The factory's rows: to make a map of each takes longer than to order them.
    if (row.metaType() == QMetaType::fromType<QJsonObject>())
        return row.toJsonObject().value(key).toVariant().toString();
    return row.toMap().value(key).toString();
}

} // namespace

CGIConfigManage *CGIConfigManage::getinstance()
{
    if (!instance())
        instance() = std::make_unique<CGIConfigManage>();
    return instance().get();
}

void CGIConfigManage::deleteInstance()
{
    instance().reset();
}

CGIConfigManage::CGIConfigManage(CgiSurroundings surroundings, QObject *parent)
    : QObject(parent), m_surroundings(std::move(surroundings)), m_procedure(m_surroundings, {}),
      m_memory(m_surroundings.folder + QStringLiteral("/cgicommands.json"))
{
}

CgiSurroundings CGIConfigManage::programSurroundings()
{
    const auto checkLogin = [](const QString &ipport, const QString &account, const QString &password) {
        return CDeviceFactory::getinstance()->checkLogin(QStringLiteral("dh"), ipport, account, password);
    };
    return {.checkLogin = checkLogin,
            .transport = std::make_shared<CurlTransport>(),
            .folder = QCoreApplication::applicationDirPath(),
            .localTime = &QDateTime::currentDateTime};
}

void CGIConfigManage::setProxy(const QString &proxy)
{
    m_surroundings.transport->setProxy(proxy);
}

QString CGIConfigManage::singleCGIConfig(const QString &url, const QString &user, const QString &pass,
                                         const QString &ipport)
{
    return m_procedure.run(url, user, pass, ipport);
}

QString CGIConfigManage::batchCGIConfig(const QString &path)
{
    // The scene's timers run between two rows and could call again.
    if (m_isBatchRunning)
        return tr("正在执行另一个文件中的CGI命令。");
    m_isBatchRunning = true;
    m_stopsBatch = false;
    const auto end = qScopeGuard([this] { m_isBatchRunning = false; });

    CommandWorkbook workbook;
    QString refusal = workbook.open(localPath(path));
    if (!refusal.isEmpty())
        return refusal;

    constexpr qint64 paintInterval = 50; // milliseconds that the scene may stand still
    QElapsedTimer sincePaint;            // not started: the first row is shown at once
    BatchRun run(workbook, m_procedure);
    while (run.hasNext() && !m_stopsBatch) {
        const QString command = run.sendNext();
        Q_EMIT signalBatchProgress(run.done(), run.total(), command);
        if (!run.hasNext() || (sincePaint.isValid() && sincePaint.elapsed() < paintInterval))
            continue;
        QCoreApplication::processEvents();
        sincePaint.start();
    }
    return run.finish();
}

void CGIConfigManage::stopBatch()
{
    m_stopsBatch = true;
}

QVariantList CGIConfigManage::sortList(const QVariantList &list, const QString &key, Qt::SortOrder order)
{
    struct Entry
    {
        QString text;
        const QVariant *row = nullptr;
    };
    std::vector<Entry> entries; // each text is taken once, not for each comparison
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

QString CGIConfigManage::templateFile() const
{
    return m_surroundings.folder + QStringLiteral("/template/") + templateFileName();
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
