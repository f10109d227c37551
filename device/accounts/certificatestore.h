// The keys of devices that the user has agreed to, and the certificates that wait for it.
#pragma once

#include "sdk/certificateblocks.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QString>

#include <functional>
#include <mutex>

/// A certificate that was refused.
struct RefusedCertificate
{
    QString identity; ///< MAC or UUID of the device; empty if unknown
    QString address;
    int port = 0;
    QString fingerprint;
    QString subject;
    QString validFrom; ///< UTC; empty if unreadable
    QString validUntil;
    QString storedFingerprint; ///< what the user has agreed to before; empty for an unknown device

    [[nodiscard]] bool isChanged() const { return !storedFingerprint.isEmpty(); }
    [[nodiscard]] bool operator==(const RefusedCertificate &) const = default;
};

/// Decides about the certificates of devices by a file that belongs to the user. A device is known by its
/// identity, else by its address and port. An agreed key counts for a device with another identity at the
/// same address as well: what shows another key there is reported as changed.
///
/// A file that cannot be read makes nothing trusted. It is kept under another name when the user agrees to a
/// certificate again.
///
/// Thread-safe. verdictOn() does not wait for the disk.
class CertificateStore
{
    Q_DECLARE_TR_FUNCTIONS(CertificateStore)
public:
    static constexpr qsizetype maximumRefused = 20'000;

    /// Reads the file, which need not exist. Without a path nothing is kept beyond the run.
    explicit CertificateStore(const QString &path);

    /// Why nothing is trusted although there is a file, in the user's language; else empty.
    [[nodiscard]] QString problem() const;

    /// A certificate that is not trusted is listed as refused, in place of an earlier one of the device.
    [[nodiscard]] sdk::CertificateVerdict verdictOn(const sdk::DeviceCertificate &certificate);

    /// The same as an sdk::CertificateHandler; `user` is the store.
    static sdk::CertificateVerdict handle(const sdk::DeviceCertificate *certificate, void *user);

    /// The certificates that wait for the user, in the order of the first refusals.
    [[nodiscard]] QList<RefusedCertificate> refused() const;

    /// Stores the keys of these and takes them out of the refused ones. Returns why the file could not be
    /// written; nothing is trusted then that was not before. Blocks until the disk has the file.
    [[nodiscard]] QString agree(const QList<RefusedCertificate> &certificates);

    /// Called after each refusal, on the thread of the request; empty for none. When this has returned, the
    /// earlier listener does not run any more.
    void setListener(std::function<void()> listener);

private:
    struct Entry
    {
        QString identity;
        QString address;
        int port = 0;
        QString fingerprint;
    };
    /// The agreed keys in their order. Where several fit, the last one counts.
    struct Agreed
    {
        QList<Entry> entries = {};
        QHash<QString, qsizetype> byIdentity = {}; ///< indexes of entries
        QHash<QString, qsizetype> byAddress = {};  ///< the same, by address and port

        void append(const Entry &entry);
        [[nodiscard]] const Entry *find(const RefusedCertificate &shown) const;
        [[nodiscard]] Agreed withoutReplaced() const;
    };

    void read();
    [[nodiscard]] QString write(const QList<Entry> &entries);
    void refuse(const RefusedCertificate &shown); ///< under m_mutex

    const QString m_path;
    std::mutex m_writing; ///< held by agree()

    mutable std::mutex m_mutex; ///< of what follows
    QString m_problem;
    Agreed m_agreed;
    QList<RefusedCertificate> m_refused;
    QHash<QString, qsizetype> m_refusedIndexes; ///< in m_refused, by the key of the device

    std::mutex m_listenerMutex; ///< held while the listener runs
    std::function<void()> m_listener;
};
