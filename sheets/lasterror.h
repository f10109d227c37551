#pragma once

#include <QString>

namespace sheets {

/// Keeps what the last failure of an object was, for classes whose operations return false on failure.
class LastError
{
public:
    /// Why the last failed operation failed, in words for the log. Empty when none has failed.
    [[nodiscard]] const QString &errorText() const { return m_errorText; }

protected:
    /// Notes the reason and returns false, for `return fail(…)`.
    bool fail(const QString &reason)
    {
        m_errorText = reason;
        return false;
    }

private:
    QString m_errorText;
};

} // namespace sheets
