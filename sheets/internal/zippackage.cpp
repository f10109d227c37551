#include "sheets/internal/zippackage.h"

#include <zip.h>

namespace sheets {

namespace {

constexpr zip_int64_t maximumParts = 10'000;
constexpr zip_uint64_t maximumPartSize = 64ULL * 1024 * 1024;

// Sheets of one repeated row come close to 100 to 1; deflate cannot exceed 1,032 to 1.
constexpr zip_uint64_t maximumRatio = 250;
constexpr zip_uint64_t sizeWithoutRatio = 8ULL * 1024 * 1024;

/// Opens an archive on bytes that must outlive it. `source`, if wanted, gets a reference of its own.
zip_t *openArchive(const QByteArray &bytes, QString &reason, zip_source_t **source = nullptr)
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t *made = zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, &error);
    zip_t *archive = nullptr;
    if (made) {
        if (source)
            zip_source_keep(made);
        archive = zip_open_from_source(made, 0, &error);
        if (!archive) {
            if (source)
                zip_source_free(made);
            zip_source_free(made);
        } else if (source) {
            *source = made;
        }
    }
    if (!archive)
        reason = QString::fromUtf8(zip_error_strerror(&error));
    zip_error_fini(&error);
    return archive;
}

/// What a file that is no zip archive is.
QString describeForeignFile(const QByteArray &file, const QString &reason)
{
    static const QByteArray compoundFile("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
    if (!file.startsWith(compoundFile))
        return QStringLiteral("not a workbook, or a damaged one (%1)").arg(reason);
    const char16_t *stream = u"EncryptedPackage";
    const QByteArray name(reinterpret_cast<const char *>(stream), 2 * 16);
    return file.contains(name) ? QStringLiteral("the workbook is encrypted with a password")
                               : QStringLiteral("not a workbook of the format .xlsx");
}

bool readWhole(zip_source_t *source, QByteArray &bytes)
{
    zip_stat_t stat;
    zip_stat_init(&stat);
    if (zip_source_stat(source, &stat) != 0 || !(stat.valid & ZIP_STAT_SIZE) || zip_source_open(source) != 0)
        return false;
    bytes = QByteArray(qsizetype(stat.size), Qt::Uninitialized);
    const bool isWhole = zip_source_read(source, bytes.data(), stat.size) == zip_int64_t(stat.size);
    zip_source_close(source);
    return isWhole;
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
    m_archive.reset(openArchive(m_file, reason));
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

bool ZipPackage::checkEntry(const zip_stat &entry)
{
    constexpr zip_uint64_t needed = ZIP_STAT_NAME | ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_ENCRYPTION_METHOD;
    if ((entry.valid & needed) != needed)
        return fail(QStringLiteral("a part of the workbook has no name or size"));
    const QString name = QString::fromUtf8(entry.name);
    if (entry.encryption_method != ZIP_EM_NONE)
        return fail(QStringLiteral("part %1 of the workbook is encrypted").arg(name));
    if (entry.size > sizeWithoutRatio && entry.size / maximumRatio >= entry.comp_size)
        return fail(QStringLiteral("part %1 of the workbook is packed too tightly to be genuine").arg(name));
    return true;
}

bool ZipPackage::contains(const QString &name) const
{
    const QString key = name.toLower();
    return !m_removed.contains(key) && (m_entries.contains(key) || m_new.contains(name));
}

bool ZipPackage::read(const QString &name, QByteArray &bytes)
{
    if (const auto replacement = m_new.find(name); replacement != m_new.end()) {
        bytes = replacement->second;
        return true;
    }
    const auto index = m_entries.constFind(name.toLower());
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
    // One byte more than announced, so that the end is reached, where the check sum is compared.
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
    m_removed.remove(name.toLower());
    m_new[name] = bytes;
}

void ZipPackage::remove(const QString &name)
{
    m_new.erase(name);
    if (const auto index = m_entries.constFind(name.toLower()); index != m_entries.constEnd())
        m_removed.insert(index.key(), *index);
}

bool ZipPackage::build(QByteArray &file)
{
    if (m_new.empty() && m_removed.isEmpty()) {
        file = m_file;
        return true;
    }
    // An archive of its own, because writing uses it up.
    QString reason;
    zip_source_t *source = nullptr;
    Archive archive(openArchive(m_file, reason, &source));
    if (!archive)
        return fail(reason);
    bool isDone = applyChanges(archive.get());
    if (isDone) {
        isDone = zip_close(archive.get()) == 0;
        if (isDone)
            (void)archive.release(); // closed, and gone with that
        else
            fail(QString::fromUtf8(zip_strerror(archive.get())));
    }
    isDone = isDone && (readWhole(source, file) || fail(QStringLiteral("the archive cannot be read back")));
    archive.reset();
    zip_source_free(source);
    return isDone;
}

bool ZipPackage::applyChanges(zip *archive)
{
    for (const auto &[name, bytes] : m_new) {
        const auto size = zip_uint64_t(bytes.size());
        zip_source_t *part = zip_source_buffer(archive, bytes.constData(), size, 0);
        if (!part)
            return fail(QString::fromUtf8(zip_strerror(archive)));
        const auto index = m_entries.constFind(name.toLower());
        const bool isTaken = index != m_entries.constEnd()
                                 ? zip_file_replace(archive, *index, part, 0) == 0
                                 : zip_file_add(archive, name.toUtf8().constData(), part, ZIP_FL_ENC_UTF_8) >= 0;
        if (!isTaken) {
            zip_source_free(part);
            return fail(QString::fromUtf8(zip_strerror(archive)));
        }
    }
    for (const quint64 index : std::as_const(m_removed)) {
        if (zip_delete(archive, index) != 0)
            return fail(QString::fromUtf8(zip_strerror(archive)));
    }
    return true;
}

} // namespace sheets
