#include "workbookfiles.h"

#include <QFile>
#include <QStringList>

#include <zip.h>

namespace {

const QByteArray relationNamespace = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

QByteArray relations(const QByteArray &entries)
{
    return "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">" +
           entries + "</Relationships>";
}

QByteArray relation(const QByteArray &id, const QByteArray &type, const QByteArray &target)
{
    return "<Relationship Id=\"" + id + "\" Type=\"" + relationNamespace + "/" + type + "\" Target=\"" +
           target + "\"/>";
}

QByteArray contentType(const QByteArray &part, const QByteArray &kind)
{
    return "<Override PartName=\"/xl/" + part +
           "\" ContentType=\"application/vnd.openxmlformats-officedocument.spreadsheetml." + kind +
           "+xml\"/>";
}

} // namespace

bool writeArchive(const QString &path, const Parts &parts, Packing packing)
{
    zip_t *archive = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    if (!archive)
        return false;
    for (const auto &[name, bytes] : parts) {
        zip_source_t *source = zip_source_buffer(archive, bytes.constData(), zip_uint64_t(bytes.size()), 0);
        const zip_int64_t index = zip_file_add(archive, name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8);
        bool isAdded = index >= 0;
        if (isAdded && packing == Packing::Stored)
            isAdded = zip_set_file_compression(archive, zip_uint64_t(index), ZIP_CM_STORE, 0) == 0;
        if (isAdded && packing == Packing::Encrypted)
            isAdded = zip_file_set_encryption(archive, zip_uint64_t(index), ZIP_EM_AES_256, "secret") == 0;
        if (!isAdded) {
            zip_discard(archive);
            return false;
        }
    }
    return zip_close(archive) == 0;
}

Parts readArchive(const QString &path)
{
    Parts parts;
    zip_t *archive = zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
    for (zip_int64_t index = 0; archive && index < zip_get_num_entries(archive, 0); ++index) {
        zip_stat_t stat;
        zip_stat_index(archive, zip_uint64_t(index), 0, &stat);
        QByteArray bytes(qsizetype(stat.size), Qt::Uninitialized);
        zip_file_t *part = zip_fopen_index(archive, zip_uint64_t(index), 0);
        if (part && zip_fread(part, bytes.data(), stat.size) == zip_int64_t(stat.size))
            parts[QString::fromUtf8(stat.name)] = bytes;
        if (part)
            zip_fclose(part);
    }
    if (archive)
        zip_discard(archive);
    return parts;
}

QStringList packedParts(const QString &path)
{
    QStringList lines;
    zip_t *archive = zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, nullptr);
    for (zip_int64_t index = 0; archive && index < zip_get_num_entries(archive, 0); ++index) {
        zip_stat_t stat;
        zip_stat_index(archive, zip_uint64_t(index), 0, &stat);
        lines +=
            QStringLiteral("%1 %2 %3").arg(QString::fromUtf8(stat.name)).arg(stat.crc).arg(stat.comp_size);
    }
    if (archive)
        zip_discard(archive);
    return lines;
}

Parts smallWorkbook(const QByteArray &rows, const QByteArray &strings)
{
    return {
        {"[Content_Types].xml",
         "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
         "<Default Extension=\"rels\" "
         "ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
         "<Default Extension=\"xml\" ContentType=\"application/xml\"/>" +
             contentType("workbook.xml", "sheet.main") + contentType("worksheets/sheet1.xml", "worksheet") +
             contentType("sharedStrings.xml", "sharedStrings") + "</Types>"},
        {"_rels/.rels", relations(relation("r1", "officeDocument", "xl/workbook.xml"))},
        {"xl/workbook.xml",
         "<workbook xmlns=\"" + mainNamespace + "\" xmlns:r=\"" + relationNamespace +
             "\"><sheets><sheet name=\"One\" sheetId=\"1\" r:id=\"r7\"/></sheets></workbook>"},
        {"xl/_rels/workbook.xml.rels", relations(relation("r7", "worksheet", "worksheets/sheet1.xml") +
                                                 relation("r8", "sharedStrings", "/xl/sharedStrings.xml"))},
        {"xl/worksheets/sheet1.xml",
         "<worksheet xmlns=\"" + mainNamespace + "\"><sheetData>" + rows + "</sheetData></worksheet>"},
        {"xl/sharedStrings.xml", "<sst xmlns=\"" + mainNamespace + "\">" + strings + "</sst>"},
    };
}
