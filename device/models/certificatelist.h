#pragma once

#include "device/accounts/certificatestore.h"
#include "device/models/dialogrows.h"

#include <atomic>
#include <memory>

/// The refused certificates for a dialog, which lists them and lets the user agree. Keys of a row: "device"
/// (its address and port), "mac" (or UUID), "subject", "validity", "fingerprint", "stored" (the fingerprint
/// before a change) and "changed". Unknown certificates are ticked at first, changed ones are not.
///
/// Lives on the scene's thread.
class CertificateList : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(bool hasNews READ hasNews NOTIFY hasNewsChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY rowsChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY rowsChanged)
    Q_PROPERTY(int changedCount READ changedCount NOTIFY rowsChanged)
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY checkedCountChanged)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkedCountChanged)
public:
    explicit CertificateList(std::shared_ptr<CertificateStore> store, QObject *parent = nullptr);
    ~CertificateList() override;

    /// Whether a certificate was refused since load().
    [[nodiscard]] bool hasNews() const { return m_hasNews; }

    /// Takes the certificates that wait now.
    Q_INVOKABLE void load();

    /// Stores the ticked ones. Returns why that failed; empty on success.
    Q_INVOKABLE QString agree();

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QString problem() const { return m_store->problem(); }
    [[nodiscard]] int changedCount() const;
    [[nodiscard]] int checkedCount() const;

    /// Of the unknown ones: changed ones are ticked one by one.
    [[nodiscard]] Qt::CheckState checkState() const;

    Q_INVOKABLE void setRangeChecked(int first, int last, bool checked);

    /// Ticks the unknown ones, or unticks all.
    Q_INVOKABLE void setAllChecked(bool checked);

Q_SIGNALS:
    void hasNewsChanged();
    void rowsChanged();
    void checkedCountChanged();

protected:
    [[nodiscard]] QVariantMap valuesOf(int row) const override;
    [[nodiscard]] bool isChecked(int row) const override { return m_rows.at(row).isChecked; }
    [[nodiscard]] bool isInConflict(int row) const override { return m_rows.at(row).certificate.isChanged(); }

private:
    struct Row
    {
        RefusedCertificate certificate;
        bool isChecked = false;
    };

    void setNews(bool hasNews);

    const std::shared_ptr<CertificateStore> m_store;
    QList<Row> m_rows;
    bool m_hasNews = false;
    std::atomic_bool m_isNotified = false; ///< a refusal is on its way to this thread
};
