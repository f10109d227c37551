// The accepted keys of devices, and the refused certificates.
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
    QString identity; ///< MAC or UUID of the device in lower case; empty if unknown
    QString address;
    int port = 0;
    QString fingerprint;       ///< SHA-256 of the public key: "AB:CD:..." of 32 bytes
    QString subject;           ///< common name; chosen by the device
    QString validFrom;         ///< "2026-11-26 13:30:00" UTC; empty if unreadable
    QString validUntil;        ///< the same
    QString storedFingerprint; ///< of the accepted key; empty for an unknown device

    [[nodiscard]] bool isChanged() const { return !storedFingerprint.isEmpty(); }
    [[nodiscard]] bool operator==(const RefusedCertificate &) const = default;
};

/// Decides whether certificates of devices are trusted. The user accepts keys; they are stored in a file. The
/// key of a device is compared with the accepted key of its identity. If there is none, or the identity is
/// unknown, the accepted key of its address and port is used, also that of another identity. A different key
/// is reported as changed.
///
/// If the file cannot be read, no certificate is trusted. The file is renamed when the user accepts a
/// certificate.
///
/// Thread-safe. verdictOn() does not access the disk.
class CertificateStore
{
    Q_DECLARE_TR_FUNCTIONS(CertificateStore)
public:
    static constexpr qsizetype maximumRefused = 20'000;

    /// Reads the file, which may be missing. Without a path, keys are stored in memory only.
    explicit CertificateStore(const QString &path);

    /// The reason why the file cannot be read, in the user's language; otherwise empty.
    [[nodiscard]] QString problem() const;

    /// Adds a certificate that is not trusted to refused() and calls the listener. The certificate replaces
    /// an earlier one of the device. It is not added if refused() has maximumRefused others.
    [[nodiscard]] sdk::CertificateVerdict verdictOn(const sdk::DeviceCertificate &certificate);

    /// verdictOn() as an sdk::CertificateHandler; `user` is the store.
    static sdk::CertificateVerdict handle(const sdk::DeviceCertificate *certificate, void *user);

    /// The certificates that the user has not accepted, in the order of their first refusals.
    [[nodiscard]] QList<RefusedCertificate> refused() const;

    /// Accepts the keys of these certificates and removes them from refused(). A device that has presented
    /// another key in the meantime stays refused. Returns an empty string, or the error text of the system if
    /// the file cannot be written; nothing is accepted then. Blocks until the file is written.
    [[nodiscard]] QString agree(const QList<RefusedCertificate> &certificates);

    /// Sets the function that is called after each refusal, on the thread of the request; empty for none. The
    /// earlier function is not running any more when this returns. The function must not call setListener().
    void setListener(std::function<void()> listener);

private:
    struct Entry
    {
        QString identity;
        QString address;
        int port = 0;
        QString fingerprint;
    };
    /// The accepted keys in their order. If several match, the last one is used.
    struct Accepted
    {
        QList<Entry> entries = {};
        QHash<QString, qsizetype> byIdentity = {}; ///< indexes of entries
        QHash<QString, qsizetype> byAddress = {};  ///< the same, by address and port

        void append(const Entry &entry);
        /// The accepted key that the one of `shown` is compared with; null for none.
        [[nodiscard]] const Entry *find(const RefusedCertificate &shown) const;
        /// Without the entries that later ones replace.
        [[nodiscard]] Accepted withoutReplaced() const;
    };

    void read();
    [[nodiscard]] QString write(const QList<Entry> &entries);
    void refuse(const RefusedCertificate &shown); ///< m_mutex must be locked

    const QString m_path;
    std::mutex m_writing; ///< locked during agree()

    mutable std::mutex m_mutex; ///< guards the members below
    QString m_problem;
    Accepted m_accepted;
    QList<RefusedCertificate> m_refused;
    QHash<QString, qsizetype> m_refusedIndexes; ///< indexes of m_refused, by identity or address and port

    std::mutex m_listenerMutex; ///< locked while the listener runs
    std::function<void()> m_listener;
};
