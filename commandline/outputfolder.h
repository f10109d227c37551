// The folder of "--output".
#pragma once

#include "commandline/commandcontext.h"

namespace commandline {

struct OutputFolder
{
    QString path;  ///< absolute
    QString error; ///< in English; empty on success
};

/// The folder of "--output"; the working directory without that option. A missing folder is created, except
/// with "--dry-run". If that fails, the path is empty and the error is set.
[[nodiscard]] OutputFolder outputFolder(const CommandContext &context);

} // namespace commandline
