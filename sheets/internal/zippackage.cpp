#include "sheets/internal/zippackage.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include <zip.h>

namespace sheets {

namespace {

constexpr zip_int64_t maximumParts = 10'000;
// A device list of 100,000 rows is a sheet of 135 MiB.
constexpr zip_uint64_t maximumPartSize = 192ULL * 1024 * 1024;

// The ratio of sheets with one repeated row is nearly 100 to 1; deflate cannot exceed 1,032 to 1.
constexpr zip_uint64_t maximumRatio = 250;
constexpr zip_uint64_t sizeWithoutRatio = 8ULL * 1024 * 1024;

// Sheets are so repetitive that a higher level costs time and gains little.
constexpr zip_uint32_t deflateLevel = 1;

/// Opens an archive on the source, and takes over the caller's reference to it. Null on failure, with the
/// reason.
zip_t *openArchive(zip_source_t *source, QString &reason)
{
    zip_error_t error;
    zip_error_init(&error);
    zip_t *archive = zip_open_from_source(source, 0, &error);
    if (!archive) {
        zip_source_free(source);
        reason = QString::fromUtf8(zip_error_strerror(&error));
    }
    zip_error_fini(&error);
    return archive;
}

/// A source that owns a copy of the bytes. Writing an archive to a source frees a part of its bytes, even if
/// the source does not own them.
zip_source_t *copiedSource(const QByteArray &bytes)
{
    const auto size = std::size_t(bytes.size());
    void *copy = std::malloc(std::max<std::size_t>(size, 1)); // the library frees it with free()
    if (!copy)
        return nullptr;
    std::memcpy(copy, bytes.constData(), size);
    zip_source_t *source = zip_source_buffer_create(copy, size, 1, nullptr);
    if (!source)
        std::free(copy);
    return source;
}

/// A description of a file that is not a zip archive.
QString describeForeignFile(const QByteArray &file, const QString &reason)
{
    static const QByteArray compoundFile("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
    if (!file.startsWith(compoundFile))
        return QStringLiteral("not a workbook, or a damaged one (%1)").arg(reason);
    static constexpr std::u16string_view stream = u"EncryptedPackage";
    const QByteArray name(reinterpret_cast<const char *>(stream.data()),
                          qsizetype(sizeof(char16_t) * stream.size()));
    return file.contains(name) ? QStringLiteral("the workbook is encrypted with a password")
                               : QStringLiteral("not a workbook of the format .xlsx");
}

bool readAll(zip_source_t *source, QByteArray &bytes)
{
    zip_stat_t stat;
    zip_stat_init(&stat);
    if (zip_source_stat(source, &stat) != 0 || !(stat.valid & ZIP_STAT_SIZE) || zip_source_open(source) != 0)
        return false;
    bytes = QByteArray(qsizetype(stat.size), Qt::Uninitialized);
    const bool isComplete = zip_source_read(source, bytes.data(), stat.size) == zip_int64_t(stat.size);
    zip_source_close(source);
    return isComplete;
}

} // namespace

void ZipPackage::ArchiveCloser::operator()(zip *archive) const
{
    zip_discard(archive);
}

bool ZipPackage::load(const QByteArray &file)
{
    m_archive.reset(); // before the bytes that it reads
    m_entries.clear();
    m_new.clear();
    m_removed.clear();
    m_file = file;
    QString reason;
    zip_source_t *source =
        zip_source_buffer_create(m_file.constData(), zip_uint64_t(m_file.size()), 0, nullptr);
    m_archive.reset(source ? openArchive(source, reason) : nullptr);
    if (!m_archive)
        return fail(describeForeignFile(m_file, reason));
    const zip_int64_t count = zip_get_num_entries(m_archive.get(), 0);
    if (count > maximumParts)
        return fail(QStringLiteral("the workbook has %1 parts, which is too many").arg(count));
    for (zip_int64_t index = 0; index < count; ++index) {
        zip_stat_t entry;
        zip_stat_init(&entry);
        if (zip_stat_index(m_archive.get(), zip_uint64_t(index), 0, &entry) != 0)
            return fail(QString::fromUtf8(zip_strerror(m_archive.get())));
        if (!checkEntry(entry))
            return false;
        m_entries.insert(QString::fromUtf8(entry.name).toLower(), zip_uint64_t(index));
    }
    return true;
}

bool ZipPackage::checkEntry(const struct zip_stat &entry)
{
    constexpr zip_uint64_t needed =
        ZIP_STAT_NAME | ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_ENCRYPTION_METHOD;
    if ((entry.valid & needed) != needed)
        return fail(QStringLiteral("a part of the workbook has no name or size"));
    const QString name = QString::fromUtf8(entry.name);
    if (entry.encryption_method != ZIP_EM_NONE)
        return fail(QStringLiteral("part %1 of the workbook is encrypted").arg(name));
    if (entry.size > sizeWithoutRatio && entry.size / maximumRatio >= entry.comp_size)
        return fail(QStringLiteral("part %1 of the workbook has a suspicious compression ratio").arg(name));
    return true;
}

bool ZipPackage::contains(const QString &name) const
{
    const QString key = name.toLower();
    return !m_removed.contains(key) && (m_entries.contains(key) || m_new.contains(key));
}

bool ZipPackage::read(const QString &name, QByteArray &bytes)
{
    const QString key = name.toLower();
    if (const auto replacement = m_new.find(key); replacement != m_new.end()) {
        bytes = replacement->second.bytes;
        return true;
    }
    const auto index = m_entries.constFind(key);
    zip_stat_t entry;
    zip_stat_init(&entry);
    if (!contains(name) || zip_stat_index(m_archive.get(), *index, 0, &entry) != 0)
        return fail(QStringLiteral("the workbook has no part %1").arg(name));
    if (entry.size > maximumPartSize)
        return fail(QStringLiteral("part %1 of the workbook is too large").arg(name));
    zip_file_t *part = zip_fopen_index(m_archive.get(), *index, 0);
    if (!part)
        return fail(QStringLiteral("part %1 of the workbook: %2")
                        .arg(name, QString::fromUtf8(zip_strerror(m_archive.get()))));
    // One byte more than the announced size, so that the end is reached, where libzip compares the checksum.
    bytes = QByteArray(qsizetype(entry.size) + 1, Qt::Uninitialized);
    zip_int64_t got = 0;
    zip_int64_t chunk = 0;
    while (got <= zip_int64_t(entry.size) &&
           (chunk = zip_fread(part, bytes.data() + got, zip_uint64_t(bytes.size() - got))) > 0)
        got += chunk;
    zip_fclose(part);
    bytes.chop(1);
    return (chunk == 0 && got == zip_int64_t(entry.size)) ||
           fail(QStringLiteral("part %1 of the workbook is damaged").arg(name));
}

void ZipPackage::replace(const QString &name, const QByteArray &bytes)
{
    const QString key = name.toLower();
    m_removed.remove(key);
    m_new[key] = {.name = name, .bytes = bytes};
}

void ZipPackage::remove(const QString &name)
{
    const QString key = name.toLower();
    m_new.erase(key);
    if (const auto index = m_entries.constFind(key); index != m_entries.constEnd())
        m_removed.insert(index.key(), *index);
}

bool ZipPackage::build(QByteArray &file)
{
    if (m_new.empty() && m_removed.isEmpty()) {
        file = m_file;
        return true;
    }
    // A separate archive, because writing consumes it. The source receives the written bytes, so it must
    // outlive the archive.
    zip_source_t *source = copiedSource(m_file);
    if (!source)
        return fail(QStringLiteral("there is not enough memory"));
    zip_source_keep(source);
    QString reason;
    Archive archive(openArchive(source, reason));
    const bool isBuilt =
        archive ? writeChanges(std::move(archive)) &&
                      (readAll(source, file) || fail(QStringLiteral("the archive cannot be read back")))
                : fail(reason);
    zip_source_free(source);
    return isBuilt;
}

/// Writes the archive with all changes to its source, and closes it.
bool ZipPackage::writeChanges(Archive archive)
{
    if (!applyChanges(archive.get()))
        return false;
    if (zip_close(archive.get()) != 0)
        return fail(QString::fromUtf8(zip_strerror(archive.get())));
    (void)archive.release(); // freed by zip_close()
    return true;
}

bool ZipPackage::applyChanges(zip *archive)
{
    for (const auto &[key, newPart] : m_new) {
        const auto size = zip_uint64_t(newPart.bytes.size());
        zip_source_t *part = zip_source_buffer(archive, newPart.bytes.constData(), size, 0);
        if (!part)
            return fail(QString::fromUtf8(zip_strerror(archive)));
        const auto known = m_entries.constFind(key);
        const bool isKnown = known != m_entries.constEnd();
        const zip_int64_t index =
            isKnown ? zip_int64_t(*known)
                    : zip_file_add(archive, newPart.name.toUtf8().constData(), part, ZIP_FL_ENC_UTF_8);
        if (index < 0 || (isKnown && zip_file_replace(archive, *known, part, 0) != 0)) {
            zip_source_free(part);
            return fail(QString::fromUtf8(zip_strerror(archive)));
        }
        // The default method is deflate. With ZIP_CM_DEFLATE, libzip would ignore the call as no change, and
        // the level with it.
        if (zip_set_file_compression(archive, zip_uint64_t(index), ZIP_CM_DEFAULT, deflateLevel) != 0)
            return fail(QString::fromUtf8(zip_strerror(archive)));
    }
    for (const quint64 index : std::as_const(m_removed)) {
        if (zip_delete(archive, index) != 0)
            return fail(QString::fromUtf8(zip_strerror(archive)));
    }
    return true;
}

} // namespace sheets
