// The keys of devices that the user has accepted, and the certificates that were refused.
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
    QString address;  ///< of the device in the connection
    int port = 0;
    QString fingerprint;       ///< SHA-256 of the public key: "AB:CD:..." of 32 bytes
    QString subject;           ///< common name; chosen by the device, so it proves nothing
    QString validFrom;         ///< "2026-11-26 13:30:00" UTC; empty if unreadable
    QString validUntil;        ///< as validFrom
    QString storedFingerprint; ///< of the key that the user has accepted for this device; empty for none

    /// Whether the user has accepted another key for this device.
    [[nodiscard]] bool isChanged() const { return !storedFingerprint.isEmpty(); }
    [[nodiscard]] bool operator==(const RefusedCertificate &) const = default;
};

/// Decides whether certificates of devices are trusted. The user accepts keys, which are stored in a file.
/// The key of a certificate is compared with the accepted key of the device's identity. If there is none, or
/// the identity is unknown, it is compared with the key that was last accepted for the address and port,
/// whatever the identity of that key is. A certificate is trusted if the keys are equal, "changed" if they
/// differ, and "unknown" if there is no accepted key. Dates and names of certificates are not checked.
///
/// If the file exists but cannot be opened, or is damaged, no certificate is trusted. A damaged file is
/// renamed when the user accepts a certificate, and a new one is written. While the file cannot be opened, no
/// certificate can be accepted, and the file is not changed.
///
/// A device without an identity is identified by its address and port. Refused certificates are in memory
/// only. Thread-safe. verdictOn() does not access the disk.
class CertificateStore
{
    Q_DECLARE_TR_FUNCTIONS(CertificateStore)
public:
    static constexpr qsizetype maximumRefused = 20'000; ///< maximum number of certificates in refused()

    /// Reads the file in this call. A missing file contains no keys and is no problem(). With an empty path,
    /// accepted keys are kept in memory only.
    explicit CertificateStore(const QString &path);

    /// The reason why the file could not be read or contains an invalid entry, in the user's language. Empty
    /// otherwise, and after a successful agree().
    [[nodiscard]] QString problem() const;

    /// The verdict on the certificate of a connection. If it is not trusted, the certificate is added to
    /// refused(), where it replaces an earlier one of the device, and the listener is called. It is not added
    /// if refused() has maximumRefused certificates of other devices.
    [[nodiscard]] sdk::CertificateVerdict verdictOn(const sdk::DeviceCertificate &certificate);

    /// verdictOn() as an sdk::CertificateHandler; `user` is the store, which must exist. `certificate` must
    /// not be null.
    static sdk::CertificateVerdict handle(const sdk::DeviceCertificate *certificate, void *user);

    /// The last refused certificate of each device since the start of the application that the user has not
    /// accepted, in the order of the first refusals.
    [[nodiscard]] QList<RefusedCertificate> refused() const;

    /// Accepts the keys of these certificates and removes the certificates from refused(). A device that has
    /// presented another key in the meantime stays in refused(). Returns an empty string on success.
    /// Otherwise nothing is accepted, and the string is problem() if the file cannot be opened, or the error
    /// text of the system if it cannot be written. Blocks until the file is written.
    [[nodiscard]] QString agree(const QList<RefusedCertificate> &certificates);

    /// Sets the function that is called after each refusal, on the thread of the request; empty for none.
    /// Blocks while the earlier function runs; the earlier function is not called after this returns. The
    /// function may call refused(), but neither setListener() nor verdictOn().
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

    void read(); ///< m_writing must be locked, except in the constructor
    [[nodiscard]] QString write(const QList<Entry> &entries);
    void refuse(const RefusedCertificate &shown); ///< m_mutex must be locked

    const QString m_path;
    std::mutex m_writing;      ///< locked during agree(); guards m_isUnopened
    bool m_isUnopened = false; ///< the file exists, but could not be opened

    mutable std::mutex m_mutex; ///< guards the members below
    QString m_problem;
    Accepted m_accepted;
    QList<RefusedCertificate> m_refused;
    QHash<QString, qsizetype> m_refusedIndexes; ///< indexes of m_refused, by identity or address and port

    std::mutex m_listenerMutex; ///< locked while the listener runs
    std::function<void()> m_listener;
};
