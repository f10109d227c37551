#include "favourites/passwordmove.h"

#include "favourites/author.h"
#include "favourites/favouritefile.h"
#include "secrets/secretvault.h"

#include <QDir>
#include <QFileInfo>

PasswordMove::PasswordMove(SecretVault &vault, const QString &folder, QObject *parent)
    : QObject(parent), m_vault(vault), m_folder(secretFileOf(folder))
{
    CAuthor::setVault(&vault);
    connect(&vault, &SecretVault::loaded, this, &PasswordMove::moveAll);
    connect(&vault, &SecretVault::kept, this, [this](const QString &file, const QString &password) {
        if (QFileInfo(file).path() == m_folder)
            finish(file, password);
    });
}

PasswordMove::~PasswordMove()
{
    CAuthor::setVault(nullptr);
}

void PasswordMove::moveAll()
{
    const CAuthor author;
    const QDir folder(m_folder);
    const QStringList names = folder.entryList({QStringLiteral("*.json")}, QDir::Files);
    for (const QString &name : names) {
        const QString file = folder.filePath(name);
        const std::optional<QJsonObject> favourite = readFavourite(file);
        if (!favourite)
            continue;
        const auto text = [&favourite](QLatin1StringView key) {
            return favourite->value(key).toString();
        };
        const QString cipher = text(QLatin1StringView("password"));
        if (cipher.isEmpty()) {
            m_vault.reportMissing();
            continue;
        }
        const QString password = author.AesDecrypt(cipher);
        if (author.AesEncrypt(password) != cipher) // not written by this application
            continue;
        m_vault.keep(
            {.file = file,
             .title = text(QLatin1StringView("addr")) + QLatin1Char(':') + text(QLatin1StringView("port")),
             .value = password});
    }
}

void PasswordMove::finish(const QString &file, const QString &password)
{
    removeCipher(file, CAuthor().AesEncrypt(password));
}
