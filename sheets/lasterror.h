#pragma once

#include <QString>

namespace sheets {

/// A base class that stores the reason of the object's last failure, for classes whose operations return
/// false on failure. Not thread-safe.
class LastError
{
public:
    /// The reason of the last failure, for the log; also after later successes. Empty when no operation has
    /// failed.
    [[nodiscard]] const QString &errorText() const { return m_errorText; }

protected:
    /// Stores the reason and returns false, for `return fail(…)`.
    bool fail(const QString &reason)
    {
        m_errorText = reason;
        return false;
    }

private:
    QString m_errorText;
};

} // namespace sheets
