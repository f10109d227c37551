#pragma once

#include "sheets/lasterror.h"

#include <QByteArray>
#include <QStringList>

namespace sheets {

/// The texts that cells of a workbook refer to by number.
class SharedStrings : public LastError
{
public:
    bool load(const QByteArray &bytes);

    /// The text with that number, counted from 0; empty when there is none.
    [[nodiscard]] QString text(qsizetype index) const { return m_texts.value(index); }

private:
    QStringList m_texts;
};

} // namespace sheets
