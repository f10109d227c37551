#pragma once

#include "device/accounts/certificatestore.h"
#include "device/models/dialogrows.h"

#include <atomic>
#include <memory>

/// The device certificates that were refused, for a dialog in which the user accepts them. A certificate is
/// unknown (no certificate of the device was accepted before) or changed (it differs from the accepted one).
/// Changed certificates are the first rows. Keys of a row: "identity", "device" (address and port), "mac"
/// (or UUID; empty if unknown), "subject", "validity" (first and last day), "fingerprint", "stored" (the
/// previously accepted fingerprint; empty for an unknown certificate), "changed" and "checked" (bool). load()
/// checks the unknown certificates and unchecks the changed ones.
///
/// The listener of the store belongs to this object: a store must not have two CertificateList objects.
/// Lives on the main thread.
class CertificateList : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(bool hasNewRefusals READ hasNewRefusals NOTIFY hasNewRefusalsChanged)
    /// See CertificateStore::problem().
    Q_PROPERTY(QString problem READ problem NOTIFY rowsChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY rowsChanged)
    Q_PROPERTY(int changedCount READ changedCount NOTIFY rowsChanged) ///< number of changed certificates
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY checkedCountChanged)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkedCountChanged)
public:
    /// `store` must not be null. The rows are empty until load().
    explicit CertificateList(std::shared_ptr<CertificateStore> store, QObject *parent = nullptr);
    ~CertificateList() override;

    /// Whether a certificate was refused since the last load(): one that the rows do not contain, or again
    /// one of the rows. Set by an event of the main thread after the refusal.
    [[nodiscard]] bool hasNewRefusals() const { return m_hasNewRefusals; }

    /// Replaces the rows by the certificates that are refused now, and clears hasNewRefusals.
    Q_INVOKABLE void load();

    /// Accepts the checked certificates and writes them to the file; blocks until that is done. Returns an
    /// error message, empty on success. After an error, none is accepted. The rows are unchanged until
    /// load().
    Q_INVOKABLE QString agree();

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QString problem() const { return m_store->problem(); }
    [[nodiscard]] int changedCount() const;
    [[nodiscard]] int checkedCount() const;

    /// The state of the "all" box: checked if all unknown certificates are checked, since changed ones are
    /// checked one by one; unchecked if no certificate is checked.
    [[nodiscard]] Qt::CheckState checkState() const;

    /// Checks or unchecks the rows from `first` to `last`, as far as they exist. A range of several rows
    /// checks its unknown certificates only. A range of one row also checks a changed certificate.
    Q_INVOKABLE void setRangeChecked(int first, int last, bool checked);

    /// True: checks the unknown certificates and unchecks the changed ones. False: unchecks all.
    Q_INVOKABLE void setAllChecked(bool checked);

Q_SIGNALS:
    void hasNewRefusalsChanged();
    void rowsChanged();
    void checkedCountChanged();

protected:
    [[nodiscard]] QVariantMap valuesOf(int row) const override;
    [[nodiscard]] bool isChecked(int row) const override { return m_rows.at(row).isChecked; }
    /// Whether the certificate is a changed one.
    [[nodiscard]] bool isInConflict(int row) const override { return m_rows.at(row).certificate.isChanged(); }

private:
    struct Row
    {
        RefusedCertificate certificate;
        bool isChecked = false;
    };

    void setHasNewRefusals(bool hasNewRefusals);

    const std::shared_ptr<CertificateStore> m_store;
    QList<Row> m_rows;
    bool m_hasNewRefusals = false;
    std::atomic_bool m_isNotified = false; ///< an event for this thread is queued
};
