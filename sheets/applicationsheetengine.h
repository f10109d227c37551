#pragma once

#include "sheets/sheetengine.h"

#include <QVariant>

#include <memory>

class QAxObject;

namespace sheets {

/// The SheetEngine that drives the installed spreadsheet application of Windows through its automation
/// interface. Every access to a cell is a call to another process. An operation that fails may have changed a
/// part, such as the format of the cell. To be used on a thread with an initialised automation interface,
/// such as the main thread.
class ApplicationSheetEngine : public SheetEngine
{
public:
    /// Starts the application without a window and without dialogs. isAvailable() is false if there is none.
    ApplicationSheetEngine();

    /// Ends the application. Unsaved changes are lost.
    ~ApplicationSheetEngine() override;

    /// Whether the application is started. False if it could not be started, and from quit() until the next
    /// createWorkbook() or open(), which start it again.
    [[nodiscard]] bool isAvailable() const;

    // The operations are those of SheetEngine, with the differences stated here.

    bool createWorkbook() override;
    bool open(const QString &path) override;
    bool selectSheet(int index) override;
    /// Cells with a format only count as used. An empty sheet has one row.
    [[nodiscard]] std::optional<UsedRows> usedRows() override;
    [[nodiscard]] std::optional<QString> cellText(CellPosition position) override;
    bool setCellText(CellPosition position, const QString &text) override;
    bool mergeCells(const CellRange &range) override;
    /// Ignores `isText` of the change: setCellText() sets the number format "text" of the cell.
    bool changeFormat(const CellRange &range, const FormatChange &change) override;
    bool setRowHeight(int row, double points) override;
    bool save() override;
    bool saveAs(const QString &path) override;
    /// Also ends the application.
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
    bool m_hasFile = false; ///< the workbook was opened from a file or saved to one
    QString m_exception;    ///< the application's error in the running operation
};

} // namespace sheets
