#pragma once

#include "device/models/failedmarks.h"

#include <QPointer>
#include <QStringList>

#include <utility>

/// Reference from a model to the FailedMarks that it shows; may be empty. Also stores the operation (title of
/// a work) to which the shown marks are restricted. Lives on the main thread.
class FollowedMarks
{
public:
    [[nodiscard]] FailedMarks *get() const { return m_marks; }
    [[nodiscard]] bool isEmpty() const { return !m_marks || m_marks->count() == 0; }

    /// The title of the operation; empty for all operations.
    [[nodiscard]] const QString &operation() const { return m_operation; }
    /// Returns whether the operation has changed.
    bool setOperation(const QString &operation) { return std::exchange(m_operation, operation) != operation; }
    /// Clears the operation if it has no marks left. Returns whether it was cleared.
    bool settleOperation()
    {
        const bool isOver =
            !m_operation.isEmpty() && !(m_marks && m_marks->operations().contains(m_operation));
        return isOver && setOperation({});
    }

    // Forward to FailedMarks, for the operation. Without marks: 0, empty, false and true.
    [[nodiscard]] int count() const { return m_marks ? m_marks->count(m_operation) : 0; }
    [[nodiscard]] QString reasonOf(const QString &identity) const
    {
        return m_marks ? m_marks->reasonOf(identity, m_operation) : QString();
    }
    [[nodiscard]] bool contains(const QString &identity) const
    {
        return m_marks && m_marks->contains(identity, m_operation);
    }
    [[nodiscard]] bool isOnlyNotDone(const QString &identity) const
    {
        return !m_marks || m_marks->isOnlyNotDone(identity);
    }

    /// The text for a row: the failures of its marks, and a line if the last search did not find the device.
    [[nodiscard]] QString messagesOf(const QString &identity, bool isLost) const
    {
        QStringList lines = {m_marks ? m_marks->messagesOf(identity) : QString()};
        if (isLost)
            lines.append(FailedMarks::tr("最近一次搜索没有找到该设备"));
        lines.removeAll(QString());
        return lines.join(QLatin1Char('\n'));
    }

    /// Replaces the marks; null for none. Emits `replaced` of `model` and calls its function `read`, which is
    /// also called at each later change of the marks. Does nothing if the marks are the same.
    template<typename Model>
    void follow(FailedMarks *marks, Model *model, void (Model::*replaced)(), void (Model::*read)())
    {
        if (m_marks == marks)
            return;
        if (m_marks)
            m_marks->disconnect(model);
        m_marks = marks;
        if (m_marks)
            QObject::connect(m_marks, &FailedMarks::changed, model, read);
        Q_EMIT(model->*replaced)();
        (model->*read)();
    }

private:
    QPointer<FailedMarks> m_marks; ///< not owned
    QString m_operation;
};
