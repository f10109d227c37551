#pragma once

#include "sheets/lasterror.h"

#include <QByteArray>
#include <QStringList>

namespace sheets {

/// The shared strings of a workbook, which cells refer to by index.
class SharedStrings : public LastError
{
public:
    /// Replaces the strings by those of the XML part `bytes`, without their formats. On failure the strings
    /// are unchanged.
    bool load(const QByteArray &bytes);

    /// The string at `index`, from 0; empty for an invalid index.
    [[nodiscard]] QString text(qsizetype index) const { return m_texts.value(index); }

private:
    QStringList m_texts;
};

} // namespace sheets
