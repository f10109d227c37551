#include "device/dh/upgrade/upgradedocument.h"
#include "fuzz/input.h"
#include "tests/sheets/workbookfiles.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    // The input is the rows of the sheet and, after a null byte, the shared strings. They are packed here,
    // since a fuzzer would hardly generate a valid archive.
    const QByteArray bytes = fuzz::bytesOf(data, size);
    const qsizetype end = bytes.indexOf('\0');
    const QByteArray rows = end < 0 ? bytes : bytes.left(end);
    const QByteArray strings = end < 0 ? QByteArray() : bytes.mid(end + 1);
    const fuzz::InputFile file(QStringLiteral("upgrades.xlsx"), {});
    if (!writeArchive(file.path(), smallWorkbook(rows, strings)))
        qFatal("cannot pack the document");

    UpgradeDocument document;
    if (!document.open(file.path()).isEmpty())
        return 0;
    const std::vector<UpgradeDocumentLine> lines = document.lines();
    if (lines.size() > UpgradeDocument::maximumLines)
        qFatal("more lines than the limit");
    for (const UpgradeDocumentLine &line : lines) {
        if (line.row < 2)
            qFatal("a line is in the title row");
        document.setResult(line.row, QStringLiteral("done"));
    }
    static_cast<void>(document.keep());
    UpgradeDocument again;
    if (!again.open(file.path()).isEmpty() || again.lines().size() != lines.size())
        qFatal("the saved document differs from the read one");
    return 0;
}
