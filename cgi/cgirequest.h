// What is asked of a device over HTTP.
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// One command for one device, as it goes to the transport.
class CgiRequest
{
    Q_DECLARE_TR_FUNCTIONS(CgiRequest)
public:
    /// `url` as somebody typed it: blanks, letters of other scripts and lone percent signs are encoded.
    CgiRequest(const QString &url, const QString &user, const QString &password);

    /// The address, fully encoded; empty when the text is none.
    [[nodiscard]] const QByteArray &url() const { return m_url; }

    /// "user:password".
    [[nodiscard]] const QByteArray &userPassword() const { return m_userPassword; }

    /// Why this cannot be sent as it is, in the user's language; empty when it can. The transport parts name
    /// and password at the first colon, and quotes the name in a header as it stands.
    [[nodiscard]] QString refusal() const;

private:
    QByteArray m_url;
    QByteArray m_userPassword;
    bool m_isUserSound = true;
    bool m_isPasswordSound = true;
};
