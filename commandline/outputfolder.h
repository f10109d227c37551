// The folder of "--output".
#pragma once

#include "commandline/commandcontext.h"

namespace commandline {

struct OutputFolder
{
    QString path;  ///< absolute
    QString error; ///< in English; empty on success
};

/// The folder of "--output", created if it is missing; the working directory without that option.
[[nodiscard]] OutputFolder outputFolder(const CommandContext &context);

} // namespace commandline
