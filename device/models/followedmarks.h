#pragma once

#include "device/models/failedmarks.h"

#include <QPointer>
#include <QStringList>

/// The marks that a model shows, or none. Lives on the scene's thread.
class FollowedMarks
{
public:
    [[nodiscard]] FailedMarks *get() const { return m_marks; }
    [[nodiscard]] bool isEmpty() const { return !m_marks || m_marks->count() == 0; }

    // As FailedMarks has them.
    [[nodiscard]] QString reasonOf(const QString &identity) const
    {
        return m_marks ? m_marks->reasonOf(identity) : QString();
    }
    [[nodiscard]] bool contains(const QString &identity) const
    {
        return m_marks && m_marks->contains(identity);
    }
    [[nodiscard]] bool isOnlyNotDone(const QString &identity) const
    {
        return !m_marks || m_marks->isOnlyNotDone(identity);
    }

    /// What a row says of its device: the words of its mark, and that the last search has lost it.
    [[nodiscard]] QString wordsOf(const QString &identity, bool isLost) const
    {
        QStringList lines = {m_marks ? m_marks->wordsOf(identity) : QString()};
        if (isLost)
            lines.append(FailedMarks::tr("最近一次搜索没有找到该设备"));
        lines.removeAll(QString());
        return lines.join(QLatin1Char('\n'));
    }

    /// Calls `changed` of `model` from now on when `marks`, which may be null, change, and no more when the
    /// earlier ones do. Returns false, and does nothing, when they are the same.
    template<typename Model>
    bool follow(FailedMarks *marks, Model *model, void (Model::*changed)())
    {
        if (m_marks == marks)
            return false;
        if (m_marks)
            m_marks->disconnect(model);
        m_marks = marks;
        if (m_marks)
            QObject::connect(m_marks, &FailedMarks::changed, model, changed);
        return true;
    }

private:
    QPointer<FailedMarks> m_marks; ///< not owned
};
