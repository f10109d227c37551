#pragma once

#include "device/models/failedmarks.h"

#include <QPointer>
#include <QStringList>

/// Reference from a model to the FailedMarks that it shows; may be empty. Lives on the main thread.
class FollowedMarks
{
public:
    [[nodiscard]] FailedMarks *get() const { return m_marks; }
    [[nodiscard]] bool isEmpty() const { return !m_marks || m_marks->count() == 0; }

    // Forward to FailedMarks. Without marks: empty, false and true.
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

    /// The text for a row: the failures of its marks, and a line if the last search did not find the device.
    [[nodiscard]] QString wordsOf(const QString &identity, bool isLost) const
    {
        QStringList lines = {m_marks ? m_marks->wordsOf(identity) : QString()};
        if (isLost)
            lines.append(FailedMarks::tr("最近一次搜索没有找到该设备"));
        lines.removeAll(QString());
        return lines.join(QLatin1Char('\n'));
    }

    /// Sets the marks (may be null) and connects their changed() to `changed` of `model`; disconnects the
    /// previous marks. Returns false, and does nothing, if they are the same.
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
