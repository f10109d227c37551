// Measures the program against its budgets and prints a table. Not a test: times depend on the machine.
#include "app/shell.h"
#include "benchmarks/measurements.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    Shell::prepareApplication();
    const QApplication application(argc, argv);
    QList<Figure> figures = measureDeviceLists();
    figures.append(measureDeviceFiles());
    figures.append(measureEncodePage());
    figures.append(measureCgiRequests());
    figures.append(measureDecoding());
    figures.append(measureLiveView());
    figures.append(measureStart());
    figures.append(measureMemory());
    figures.append(measureDevicePage());
    printFigures(figures);
    return 0;
}
