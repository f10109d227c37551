#pragma once

#include <QObject>
#include <QString>

class SecretVault;

/// Moves the passwords of the favourites in a folder to the secret service: those that the files contain at
/// the start, when the service has been read, and those that CAuthor saves later. A password leaves its file
/// when the service has confirmed it. Main thread only; one object at a time.
class PasswordMove : public QObject
{
    Q_OBJECT
public:
    /// `folder` is a local path. `vault` must outlive this object. CAuthor uses it until the destructor.
    PasswordMove(SecretVault &vault, const QString &folder, QObject *parent = nullptr);
    ~PasswordMove() override;

private:
    void moveAll();
    static void finish(const QString &file, const QString &password);

    SecretVault &m_vault;
    const QString m_folder;
};
