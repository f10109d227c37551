#pragma once

#include "sheets/internal/xmlpart.h"

#include <QList>

#include <optional>

namespace sheets {

class ZipPackage;

/// The relationships of one part of a workbook file to other parts, for example of the workbook's part to its
/// sheets. A workbook file is an archive of named parts; a relationship has an id, a type and a target part.
/// Relationships to the outside, such as links to web pages, are kept in the file and are not in targets().
/// Part names have no leading slash.
class Relationships : public LastError
{
public:
    struct Target
    {
        QString id;   ///< unique among these relationships; other parts refer to it
        QString type; ///< last segment of the type's URI, as in "worksheet"; the rest varies by dialect
        QString part; ///< name of the target part
    };

    /// Reads the relationships of `part`; an empty name stands for the relationships of the file itself.
    /// Fails when the part that holds them is missing or damaged; there are no targets then. `package` is not
    /// kept.
    bool load(ZipPackage &package, const QString &part);

    /// The relationships to other parts, in the order of the file.
    [[nodiscard]] const QList<Target> &targets() const { return m_targets; }

    /// The part name of the first target with this Target::type; nullopt when there is none.
    [[nodiscard]] std::optional<QString> partOfType(QLatin1String type) const;
    /// The first target with this Target::id; nullopt when there is none.
    [[nodiscard]] std::optional<Target> targetById(const QString &id) const;

    // The two functions below change the package, which must be the one of load(). They return false if the
    // list of content types (a part with the media type of each part) is damaged; the other changes are made
    // nevertheless.

    /// Removes a part from the relationships, the list of content types and the package.
    bool removePart(ZipPackage &package, const QString &part);

    /// Adds a part with the contents `bytes` to the package, the relationships (with a free id) and the list
    /// of content types. The part is in the folder of the part whose relationships these are, with the name
    /// `fileName`. `type` is as in Target, `contentType` a media type.
    bool addPart(ZipPackage &package, const QString &fileName, QLatin1String type, QLatin1String contentType,
                 const QByteArray &bytes);

private:
    void store(ZipPackage &package);

    QString m_folder; ///< of the part, with a slash at its end
    QString m_name;   ///< of the part that holds the relationships
    XmlPart m_document;
    QList<Target> m_targets;
};

} // namespace sheets
