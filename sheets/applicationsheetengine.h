#pragma once

#include "sheets/sheetengine.h"

#include <QVariant>

#include <memory>

class QAxObject;

namespace sheets {

/// Drives the installed spreadsheet application through its automation interface. Every cell is a call to
/// another process. To be used on a thread with an initialised automation interface, such as the main thread.
class ApplicationSheetEngine : public SheetEngine
{
public:
    /// Starts the application without a window and without dialogs. After a failure isAvailable() is false.
    ApplicationSheetEngine();

    /// Ends the application. Unsaved changes are lost.
    ~ApplicationSheetEngine() override;

    /// Whether the application is started. False after a failed start, and from quit() until the next
    /// createWorkbook() or open().
    [[nodiscard]] bool isAvailable() const;

    bool createWorkbook() override;
    bool open(const QString &path) override;
    bool selectSheet(int index) override;
    [[nodiscard]] std::optional<UsedRows> usedRows() override;
    [[nodiscard]] std::optional<QString> cellText(CellPosition position) override;
    bool setCellText(CellPosition position, const QString &text) override;
    bool mergeCells(const CellRange &range) override;
    /// Ignores `isText` of the change; setCellText() sets that format.
    bool changeFormat(const CellRange &range, const FormatChange &change) override;
    bool setRowHeight(int row, double points) override;
    bool save() override;
    bool saveAs(const QString &path) override;
    /// Also ends the application. The next createWorkbook() or open() starts it again.
    void quit() override;

private:
    using Object = std::unique_ptr<QAxObject>;

    bool start();
    bool selectActive();
    Object object(QAxObject *owner, const char *name, const QVariant &first = {},
                  const QVariant &second = {});
    Object rangeObject(const CellRange &range);
    bool set(QAxObject *object, const char *property, const QVariant &value);
    bool call(QAxObject *object, const char *function, const QVariant &argument = {});
    bool responded(const char *what);

    // Objects of the application, each created by the one before: they are released in reverse order.
    Object m_application;
    Object m_workbooks;
    Object m_workbook;
    Object m_sheets;
    Object m_sheet;
    QString m_exception; ///< the application's error in the running operation
};

} // namespace sheets
