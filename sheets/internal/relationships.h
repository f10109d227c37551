#pragma once

#include "sheets/internal/xmlpart.h"

#include <QList>

#include <optional>

namespace sheets {

class ZipPackage;

/// The relationships of one part of a workbook file to other parts. Relationships to the outside, such as
/// links to web pages, are kept in the file and are not in targets(). Part names are those of ZipPackage.
class Relationships : public LastError
{
public:
    struct Target
    {
        QString id;
        QString type; ///< last segment of the type's URI, which differs between the dialects of the format
        QString part; ///< name of the part
    };

    /// Reads the relationships of `part`; an empty name stands for the relationships of the package. Fails
    /// when the part that holds them is missing or damaged; there are no targets then.
    bool load(ZipPackage &package, const QString &part);

    [[nodiscard]] const QList<Target> &targets() const { return m_targets; }

    /// The name of the first target with this Target::type; nothing when there is none.
    [[nodiscard]] std::optional<QString> partOfType(QLatin1String type) const;
    /// The first target with this Target::id; nothing when there is none.
    [[nodiscard]] std::optional<Target> targetById(const QString &id) const;

    // The two functions below change the package that was loaded. They return false if the list of content
    // types is damaged; the other changes are made nevertheless.

    /// Removes a part from the relationships, the list of content types and the package.
    bool removePart(ZipPackage &package, const QString &part);

    /// Adds a part with these contents to the package, the relationships (with a free id) and the list of
    /// content types. The part is in the folder of the part whose relationships these are. `type` is as in
    /// Target.
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
