#pragma once

#include "sheets/lasterror.h"

#include <QByteArray>
#include <QStringList>

namespace sheets {

/// The shared strings of a workbook: a list of texts in a part of the file, which cells refer to by index.
class SharedStrings : public LastError
{
public:
    /// Replaces the strings by those of the XML part `bytes`, without their formats. Returns false for a
    /// damaged part; the strings are unchanged then.
    bool load(const QByteArray &bytes);

    /// The string at `index`, from 0; empty for an invalid index.
    [[nodiscard]] QString text(qsizetype index) const { return m_texts.value(index); }

private:
    QStringList m_texts;
};

} // namespace sheets
