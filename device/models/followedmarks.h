#pragma once

#include "device/models/failedmarks.h"

#include <QPointer>
#include <QStringList>

#include <utility>

/// The FailedMarks that a model shows, or none, and the operation (title of a work) to which the model
/// restricts them. A member of the model. Lives on the main thread.
class FollowedMarks
{
public:
    [[nodiscard]] FailedMarks *get() const { return m_marks; }
    /// Whether there are no marks at all, whatever the operation is.
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

    // The functions of FailedMarks with these names, for the operation. Without a FailedMarks object they
    // return the values for a device that is not marked.
    [[nodiscard]] int count() const { return m_marks ? m_marks->count(m_operation) : 0; }
    [[nodiscard]] QString reasonOf(const QString &identity) const
    {
        return m_marks ? m_marks->reasonOf(identity, m_operation) : QString();
    }
    [[nodiscard]] bool contains(const QString &identity) const
    {
        return m_marks && m_marks->contains(identity, m_operation);
    }
    /// For all operations.
    [[nodiscard]] bool isOnlyNotDone(const QString &identity) const
    {
        return !m_marks || m_marks->isOnlyNotDone(identity);
    }

    /// The text for a row: FailedMarks::messagesOf() for all operations, and a line if `isLost`, which means
    /// that the last search did not find the device. Empty for neither.
    [[nodiscard]] QString messagesOf(const QString &identity, bool isLost) const
    {
        QStringList lines = {m_marks ? m_marks->messagesOf(identity) : QString()};
        if (isLost)
            lines.append(FailedMarks::tr("最近一次搜索没有找到该设备"));
        lines.removeAll(QString());
        return lines.join(QLatin1Char('\n'));
    }

    /// Replaces the marks; null for none. Emits the signal `replaced` of `model` and calls its function
    /// `read`. From then on, `read` is called at each change of the marks, until the next follow(). Does
    /// nothing if the object is the same. `model` owns this object. If the marks are destroyed, there are
    /// none any more; `read` is not called then.
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
