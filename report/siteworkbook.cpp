#include "report/siteworkbook.h"

#include "files/filereplacement.h"
#include "report/reporttexts.h"

#include <QFile>
#include <QImageReader>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <array>
#include <optional>

#include <xlsxwriter.h>

namespace {

constexpr int longestCellText = 32000;
constexpr int imageWidth = 160; // pixels of the column
constexpr int imageHeight = 90;
constexpr int largestImageCount = 1000; // of a workbook

/// A text as libxlsxwriter expects it: it does not escape the sequences that the format reads as characters.
QByteArray cellText(const QString &text)
{
    static const QRegularExpression escaped(QStringLiteral("_(?=x[0-9A-Fa-f]{4}_)"));
    QString plain = text.left(longestCellText);
    for (QChar &character : plain) {
        // XML cannot contain the two last characters of the plane.
        if ((character.unicode() < 0x20 && character != u'\n') || character.unicode() >= 0xFFFE)
            character = u' ';
    }
    return plain.replace(escaped, QStringLiteral("_x005F_")).left(longestCellText).toUtf8();
}

/// Writes the cells of one sheet, row by row.
class SheetWriter
{
public:
    struct Column
    {
        QString title;
        double width = 0; ///< in characters
    };

    SheetWriter(lxw_workbook *workbook, const QString &title, const QList<Column> &columns)
        : m_sheet(workbook_add_worksheet(workbook, cellText(title).constData())),
          m_text(workbook_add_format(workbook)), m_time(workbook_add_format(workbook))
    {
        lxw_format *head = workbook_add_format(workbook);
        format_set_bold(head);
        format_set_bg_color(head, 0xe9eef4);
        format_set_align(head, LXW_ALIGN_VERTICAL_CENTER);
        for (lxw_format *format : {m_text, m_time}) {
            format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
            format_set_text_wrap(format);
        }
        format_set_num_format(m_time, "yyyy-mm-dd hh:mm:ss");
        for (int column = 0; column < columns.size(); ++column) {
            worksheet_set_column(m_sheet, columnNumber(column), columnNumber(column),
                                 columns.at(column).width, nullptr);
            note(worksheet_write_string(m_sheet, 0, columnNumber(column),
                                        cellText(columns.at(column).title).constData(), head));
        }
        worksheet_set_row(m_sheet, 0, 22, nullptr);
        worksheet_freeze_panes(m_sheet, 1, 0);
        m_columnCount = static_cast<int>(columns.size());
    }

    void beginRow()
    {
        ++m_row;
        m_column = 0;
    }
    void text(const QString &value)
    {
        note(worksheet_write_string(m_sheet, m_row, columnNumber(m_column++), cellText(value).constData(),
                                    m_text));
    }
    /// An empty cell without a value.
    void number(std::optional<double> value)
    {
        const lxw_col_t column = columnNumber(m_column++);
        if (value)
            note(worksheet_write_number(m_sheet, m_row, column, *value, m_text));
    }
    void time(const QDateTime &value)
    {
        lxw_datetime time = {.year = value.date().year(),
                             .month = value.date().month(),
                             .day = value.date().day(),
                             .hour = value.time().hour(),
                             .min = value.time().minute(),
                             .sec = static_cast<double>(value.time().second())};
        note(worksheet_write_datetime(m_sheet, m_row, columnNumber(m_column++), &time, m_time));
    }
    void image(const QString &path)
    {
        const lxw_col_t column = columnNumber(m_column++);
        const QSize size = path.isEmpty() ? QSize() : QImageReader(path).size();
        if (size.isEmpty())
            return;
        const double scale = std::min(static_cast<double>(imageWidth) / size.width(),
                                      static_cast<double>(imageHeight) / size.height());
        lxw_image_options options = {};
        options.x_scale = scale;
        options.y_scale = scale;
        options.object_position = LXW_OBJECT_MOVE_AND_SIZE;
        worksheet_set_row_pixels(m_sheet, m_row, imageHeight, nullptr);
        note(worksheet_insert_image_opt(m_sheet, m_row, column, QFile::encodeName(path).constData(),
                                        &options));
    }
    /// Adds the filter buttons to the head.
    void end()
    {
        if (m_row > 0)
            worksheet_autofilter(m_sheet, 0, 0, m_row, columnNumber(m_columnCount - 1));
    }
    [[nodiscard]] lxw_error error() const { return m_error; }

private:
    static lxw_col_t columnNumber(int column) { return static_cast<lxw_col_t>(column); }
    void note(lxw_error error)
    {
        if (m_error == LXW_NO_ERROR)
            m_error = error;
    }

    lxw_worksheet *m_sheet;
    lxw_format *m_text;
    lxw_format *m_time;
    lxw_row_t m_row = 0;
    int m_column = 0;
    int m_columnCount = 0;
    lxw_error m_error = LXW_NO_ERROR;
};

std::optional<double> numberOf(const std::optional<qint64> &value)
{
    return value ? std::optional(static_cast<double>(*value)) : std::nullopt;
}

QString findingsText(const QList<Finding> &findings)
{
    QStringList lines;
    for (const Finding &finding : findings)
        lines.append(ReportTexts::finding(finding));
    return lines.join(u'\n');
}

QString firstImage(const ReportDevice &device)
{
    for (const ReportImage &image : device.images) {
        if (!image.path.isEmpty())
            return image.path;
    }
    return {};
}

lxw_error writeDevices(lxw_workbook *workbook, const SiteData &data)
{
    using T = ReportTexts;
    SheetWriter sheet(workbook, T::devices(),
                      {{T::image(), 22.14},
                       {T::name(), 22},
                       {T::type(), 9},
                       {T::model(), 16},
                       {T::address(), 16},
                       {T::port(), 8},
                       {QStringLiteral("MAC"), 19},
                       {T::firmware(), 18},
                       {T::serial(), 18},
                       {T::channels(), 9},
                       {T::stream(), 34},
                       {T::clockSeconds(), 17},
                       {T::timeServer(), 18},
                       {T::findings(), 44},
                       {T::result(), 22}});
    const QList<QList<Finding>> findings = data.findingsByDevice();
    int images = 0;
    for (qsizetype index = 0; index < data.devices.size(); ++index) {
        const ReportDevice &device = data.devices.at(index);
        const QString image = images < largestImageCount ? firstImage(device) : QString();
        images += image.isEmpty() ? 0 : 1;
        bool hasPort = false;
        const int port = device.ipport.section(u':', -1).toInt(&hasPort);
        sheet.beginRow();
        sheet.image(image);
        sheet.text(device.name);
        sheet.text(device.type);
        sheet.text(device.model);
        sheet.text(device.address);
        sheet.number(hasPort ? std::optional<double>(port) : std::nullopt);
        sheet.text(device.mac);
        sheet.text(device.version);
        sheet.text(device.serial);
        sheet.number(device.channelCount > 0 ? std::optional<double>(device.channelCount) : std::nullopt);
        sheet.text(device.inspection.streams.isEmpty() ? QString()
                                                       : T::streamOf(device.inspection.streams.constFirst()));
        sheet.number(numberOf(device.inspection.clockOffset));
        sheet.text(device.isRead ? T::timeServerOf(device.inspection) : QString());
        sheet.text(findingsText(findings.at(index)));
        sheet.text(T::outcome(device.outcome));
    }
    sheet.end();
    return sheet.error();
}

lxw_error writeFindings(lxw_workbook *workbook, const SiteData &data)
{
    using T = ReportTexts;
    SheetWriter sheet(
        workbook, T::findings(),
        {{T::findings(), 22}, {T::name(), 26}, {T::address(), 22}, {T::model(), 18}, {T::details(), 60}});
    for (const Finding &finding : data.findings) {
        const ReportDevice &device = data.devices.at(finding.device);
        sheet.beginRow();
        sheet.text(T::finding(finding.kind));
        sheet.text(device.title());
        sheet.text(device.ipport);
        sheet.text(device.model);
        sheet.text(finding.text);
    }
    sheet.end();
    return sheet.error();
}

lxw_error writeChanges(lxw_workbook *workbook, const SiteData &data)
{
    using T = ReportTexts;
    SheetWriter sheet(
        workbook, T::changes(),
        {{T::time(), 20}, {T::devices(), 30}, {T::address(), 22}, {T::operation(), 30}, {T::value(), 40}});
    for (const VisitChange &change : data.changes) {
        sheet.beginRow();
        sheet.time(change.time);
        sheet.text(change.device);
        sheet.text(change.ipport);
        sheet.text(change.operation);
        sheet.text(change.value);
    }
    sheet.end();
    return sheet.error();
}

lxw_error writeStreams(lxw_workbook *workbook, const SiteData &data)
{
    using T = ReportTexts;
    SheetWriter sheet(workbook, T::stream(),
                      {{T::name(), 26},
                       {T::address(), 22},
                       {T::channelNumber(), 9},
                       {T::stream(), 34},
                       {T::frameWidth(), 13},
                       {T::frameHeight(), 13},
                       {QStringLiteral("fps"), 9},
                       {QStringLiteral("kbit/s"), 10}});
    for (const ReportDevice &device : data.devices) {
        for (const StreamSettings &stream : device.inspection.streams) {
            sheet.beginRow();
            sheet.text(device.title());
            sheet.text(device.ipport);
            sheet.number(stream.channel + 1);
            sheet.text(T::streamOf(stream));
            sheet.number(stream.width);
            sheet.number(stream.height);
            sheet.number(stream.frameRate);
            sheet.number(stream.bitRate);
        }
    }
    sheet.end();
    return sheet.error();
}

} // namespace

QString saveSiteWorkbook(const SiteData &data, const QString &path)
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        return folder.errorString();
    const QString built = folder.filePath(QStringLiteral("report.xlsx"));
    QByteArray temporary = QFile::encodeName(folder.path());
    lxw_workbook_options options = {};
    options.tmpdir = temporary.data();
    lxw_workbook *workbook = workbook_new_opt(QFile::encodeName(built).constData(), &options);
    if (!workbook)
        return QString::fromUtf8(lxw_strerror(LXW_ERROR_CREATING_TMPFILE));
    lxw_error error = LXW_NO_ERROR;
    for (const auto write : {&writeDevices, &writeFindings, &writeChanges, &writeStreams}) {
        const lxw_error ofSheet = write(workbook, data);
        error = error == LXW_NO_ERROR ? ofSheet : error;
    }
    const lxw_error closing = workbook_close(workbook); // releases the workbook, also on failure
    error = error == LXW_NO_ERROR ? closing : error;
    if (error != LXW_NO_ERROR)
        return QString::fromUtf8(lxw_strerror(error));
    QFile file(built);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    return replaceFile(path, file.readAll());
}
