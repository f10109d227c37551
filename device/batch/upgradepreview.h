// What upgrades will do with each of their devices.
#pragma once

#include "device/batch/batchpreview.h"
#include "device/registry/upgradetools.h"

#include <stop_token>

/// The devices that are about to be upgraded: those of rows, or those of a document's lines. A row's "action"
/// is the file that the device gets, with its version. A row also has "vision", the version of the device;
/// its "num" is the number of the line, and its "identity" too, when it is one of a document.
class UpgradePreview : public BatchPreview
{
    Q_OBJECT
    Q_PROPERTY(int upgradeCount READ upgradeCount NOTIFY judged)
public:
    explicit UpgradePreview(QObject *parent = nullptr) : BatchPreview(parent) {}
    ~UpgradePreview() override;

    /// Ticked devices that can be upgraded.
    [[nodiscard]] int upgradeCount() const { return checkedCount() - skippedCount(); }

    /// Takes the devices of these rows with the files that they have.
    Q_INVOKABLE void setIdentities(const QStringList &identities);

    /// Reads a document on a thread of the back end, and takes its lines. documentRead() follows, unless
    /// another one is read meanwhile.
    Q_INVOKABLE void readDocument(const QString &path);

Q_SIGNALS:
    /// `refusal` says why there are no lines, in the user's language; it is empty when there are some.
    void documentRead(const QString &refusal);

protected:
    [[nodiscard]] Judgement judgementOf(int row) const override;
    [[nodiscard]] QVariantMap valuesOf(int row) const override;

private:
    /// What a device has, and what it gets.
    struct Upgrade
    {
        QString device;  ///< its version
        QString file;    ///< without the folder
        QString version; ///< of the file; empty when it is not known
        int refusal = UpgradeTools::None;
        int line = 0; ///< of a document
    };

    void takeDocument(const QVariantMap &document);
    void endReading();
    [[nodiscard]] QString identityAt(int row) const;

    QHash<QString, Upgrade> m_upgrades; ///< by the identities of the rows
    std::stop_source m_reading;         ///< of the document that is read
    int m_work = 0;                     ///< the reading in the busy state; 0 for none
};
