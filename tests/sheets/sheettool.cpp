// Prints and changes workbooks for the exchange with another library.
//
//   sheettool print FILE            prints the cells of the first sheet: a row a line, tabs between, "\n" for
//                                   line ends
//   sheettool change FILE R C TEXT  writes a text into a cell of the first sheet and saves the file
#include "sheets/filesheetengine.h"
#include "sheets/qexcel.h"

#include <QStringList>
#include <QTextStream>

namespace {

bool print(QExcel &excel, const QString &path)
{
    if (!excel.open(path))
        return false;
    QTextStream output(stdout);
    const int last = excel.firstUsedRow() + excel.usedRowCount() - 1;
    for (int row = 1; row <= last; ++row) {
        QStringList texts;
        for (int column = 1; column <= 3; ++column)
            texts += excel.cellText(row, column).value_or("?").replace('\n', "\\n");
        output << texts.join('\t') << '\n';
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    QExcel excel(std::make_unique<sheets::FileSheetEngine>());
    bool isDone = false;
    if (arguments.size() == 2 && arguments[0] == QLatin1String("print"))
        isDone = print(excel, arguments[1]);
    else if (arguments.size() == 5 && arguments[0] == QLatin1String("change"))
        isDone = excel.open(arguments[1]) &&
                 excel.setCellText(arguments[2].toInt(), arguments[3].toInt(), arguments[4]) && excel.save();
    return isDone ? 0 : 1;
}
