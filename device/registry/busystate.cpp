#include "device/registry/busystate.h"

#include <algorithm>
#include <utility>

namespace {

bool endsApplication(BusyState::Action action)
{
    return action == BusyState::Close || action == BusyState::Restart;
}

} // namespace

BusyState::BusyState(std::function<bool()> isUpgrading, QObject *parent)
    : QObject(parent), m_isUpgrading(std::move(isUpgrading))
{
}

int BusyState::begin(const QString &title, Need need)
{
    m_works.push_back({.number = ++m_lastNumber, .title = title, .need = need});
    Q_EMIT changed();
    return m_lastNumber;
}

void BusyState::rename(int work, const QString &title)
{
    const auto entry = std::find_if(m_works.begin(), m_works.end(),
                                    [work](const Work &other) { return other.number == work; });
    if (entry != m_works.end())
        entry->title = title;
}

void BusyState::end(int work)
{
    if (std::erase_if(m_works, [work](const Work &entry) { return entry.number == work; }) > 0)
        Q_EMIT changed();
}

bool BusyState::areRowsInUse() const
{
    return std::any_of(m_works.cbegin(), m_works.cend(), [](const Work &work) { return work.need == Rows; });
}

QStringList BusyState::titlesThatBlock(Action action) const
{
    QStringList titles;
    for (const Work &work : m_works) {
        const bool blocks =
            endsApplication(action) ? work.need != Edits : work.need == Rows && action != ChangeTab;
        if (blocks && !titles.contains(work.title))
            titles.append(work.title);
    }
    return titles;
}

bool BusyState::losesEdits(Action action) const
{
    return (endsApplication(action) || action == ChangeTab) &&
           std::any_of(m_works.cbegin(), m_works.cend(), [](const Work &work) { return work.need == Edits; });
}

QString BusyState::refusal(Action action) const
{
    if (m_isUpgrading && m_isUpgrading()) {
        if (action == Search)
            return tr("当前有设备正在升级中，请勿刷新设备！");
        if (endsApplication(action))
            return tr("当前有设备正在升级中，请稍候再关闭");
    }
    const QStringList blocking = titlesThatBlock(action);
    const bool isSearchOnly = std::all_of(m_works.cbegin(), m_works.cend(), [](const Work &work) {
        return work.need == Listing || work.need == Edits;
    });
    if (isSearchOnly && !blocking.isEmpty())
        return tr("正在搜索，请先停止搜索（Esc）或稍候再关闭");
    const QString titles = blocking.join(tr("”、“"));
    if (titles.isEmpty())
        return {};
    //: %1 is the name of running work, as on the button that starts it.
    switch (action) {
    case Search:
        return tr("“%1”正在进行，请在结束后再搜索设备").arg(titles);
    case Delete:
        return tr("“%1”正在进行，请在结束后再删除设备").arg(titles);
    case ChangeAddress:
        return tr("“%1”正在进行，请在结束后再修改设备").arg(titles);
    case Close:
        return tr("“%1”正在进行，请在结束后再关闭").arg(titles);
    case Restart:
        return tr("“%1”正在进行，请在结束后再重启程序").arg(titles);
    case ChangeTab:
        break;
    }
    return {};
}
