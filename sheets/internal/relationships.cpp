#include "sheets/internal/relationships.h"

#include "sheets/internal/xmlnames.h"
#include "sheets/internal/zippackage.h"

#include <QDir>

namespace sheets {

namespace {

const QString contentTypesName = QStringLiteral("[Content_Types].xml");

/// The name of the part `target`, which is relative to `folder`.
QString resolvedPart(const QString &folder, const QString &target)
{
    const bool isAbsolute = target.startsWith(QLatin1Char('/'));
    return QDir::cleanPath(isAbsolute ? target : QLatin1Char('/') + folder + target).sliced(1);
}

/// Changes the list of content types by `change`, whose argument is the root element.
template<typename Change>
bool changeContentTypes(ZipPackage &package, const Change &change)
{
    QByteArray bytes;
    XmlPart types;
    if (!package.read(contentTypesName, bytes) || !types.parse(bytes, "Types"))
        return false;
    change(types.root());
    package.replace(contentTypesName, types.bytes());
    return true;
}

} // namespace

bool Relationships::load(ZipPackage &package, const QString &part)
{
    const qsizetype slash = part.lastIndexOf(QLatin1Char('/'));
    m_folder = part.first(slash + 1);
    m_name = m_folder + QLatin1String("_rels/") + part.sliced(slash + 1) + QLatin1String(".rels");
    m_targets.clear();
    QByteArray bytes;
    if (!package.read(m_name, bytes))
        return fail(package.errorText());
    if (!m_document.parse(bytes, "Relationships"))
        return fail(QStringLiteral("part %1: %2").arg(m_name, m_document.errorText()));
    for (const pugi::xml_node entry : m_document.root().children()) {
        const QString target = QString::fromUtf8(entry.attribute("Target").value());
        if (target.isEmpty() || std::string_view(entry.attribute("TargetMode").value()) == "External")
            continue;
        const QString type = QString::fromUtf8(entry.attribute("Type").value());
        m_targets.append({QString::fromUtf8(entry.attribute("Id").value()),
                          type.sliced(type.lastIndexOf(QLatin1Char('/')) + 1),
                          resolvedPart(m_folder, target)});
    }
    return true;
}

std::optional<QString> Relationships::partOfType(QLatin1String type) const
{
    for (const Target &target : m_targets) {
        if (target.type == type)
            return target.part;
    }
    return std::nullopt;
}

std::optional<Relationships::Target> Relationships::targetById(const QString &id) const
{
    for (const Target &target : m_targets) {
        if (target.id == id)
            return target;
    }
    return std::nullopt;
}

bool Relationships::removePart(ZipPackage &package, const QString &part)
{
    pugi::xml_node root = m_document.root();
    for (pugi::xml_node entry = root.first_child(); entry;) {
        const pugi::xml_node next = entry.next_sibling();
        const QString target = QString::fromUtf8(entry.attribute("Target").value());
        if (!target.isEmpty() && resolvedPart(m_folder, target) == part)
            root.remove_child(entry);
        entry = next;
    }
    m_targets.removeIf([&part](const Target &target) { return target.part == part; });
    package.remove(part);
    const QString listed = QLatin1Char('/') + part;
    const auto unlist = [&listed](pugi::xml_node types) {
        for (pugi::xml_node entry = types.first_child(); entry;) {
            const pugi::xml_node next = entry.next_sibling();
            if (listed.compare(QString::fromUtf8(entry.attribute("PartName").value()), Qt::CaseInsensitive) ==
                0)
                types.remove_child(entry);
            entry = next;
        }
    };
    store(package);
    return changeContentTypes(package, unlist) ||
           fail(QStringLiteral("the workbook's list of content types is damaged"));
}

bool Relationships::addPart(ZipPackage &package, const QString &fileName, QLatin1String type,
                            QLatin1String contentType, const QByteArray &bytes)
{
    const QString part = m_folder + fileName;
    QString id;
    for (int number = 1; id.isEmpty() || targetById(id); ++number)
        id = QStringLiteral("rId%1").arg(number);
    // The same dialect as the existing relationships.
    const QString known =
        QString::fromUtf8(childNamed(m_document.root(), "Relationship").attribute("Type").value());
    const QString address = known.first(known.lastIndexOf(QLatin1Char('/')) + 1) + type;
    pugi::xml_node entry =
        m_document.root().append_child(nameLike(m_document.root(), "Relationship").c_str());
    entry.append_attribute("Id").set_value(id.toUtf8().constData());
    entry.append_attribute("Type").set_value(address.toUtf8().constData());
    entry.append_attribute("Target").set_value(fileName.toUtf8().constData());
    m_targets.append({id, type, part});
    package.replace(part, bytes);
    const QString listed = QLatin1Char('/') + part;
    const auto list = [&](pugi::xml_node types) {
        pugi::xml_node override = types.append_child(nameLike(types, "Override").c_str());
        override.append_attribute("PartName").set_value(listed.toUtf8().constData());
        override.append_attribute("ContentType").set_value(contentType.data());
    };
    store(package);
    return changeContentTypes(package, list) ||
           fail(QStringLiteral("the workbook's list of content types is damaged"));
}

void Relationships::store(ZipPackage &package)
{
    package.replace(m_name, m_document.bytes());
}

} // namespace sheets
