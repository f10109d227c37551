#pragma once

#include "sheets/internal/xmlpart.h"

#include <QList>

#include <optional>

namespace sheets {

class ZipPackage;

/// The relationships of one part of a workbook file to others.
class Relationships : public LastError
{
public:
    struct Target
    {
        QString id;
        QString type; ///< last segment of the type's URI, which differs between the dialects of the format
        QString part; ///< name of the part
    };

    /// Reads the relationships of `part`; an empty name stands for the relationships of the package.
    bool load(ZipPackage &package, const QString &part);

    [[nodiscard]] const QList<Target> &targets() const { return m_targets; }

    /// The first target of a type.
    [[nodiscard]] std::optional<QString> partOfType(QLatin1String type) const;
    [[nodiscard]] std::optional<Target> targetById(const QString &id) const;

    /// Removes a part from the relationships, the list of content types and the file. Returns false if the
    /// list of content types is damaged; the other changes are made nevertheless. The same applies to
    /// addPart().
    bool removePart(ZipPackage &package, const QString &part);

    /// Adds a part in the folder of the part whose relationships these are.
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
