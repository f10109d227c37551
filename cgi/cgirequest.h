// A request to a device over HTTP.
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// One command for one device, in the form of the transport.
class CgiRequest
{
    Q_DECLARE_TR_FUNCTIONS(CgiRequest)
public:
    /// `url` is user input, with its scheme: spaces, non-ASCII characters and single percent signs are
    /// encoded.
    CgiRequest(const QString &url, const QString &user, const QString &password);

    /// The encoded URL; empty when the input is not a URL.
    [[nodiscard]] const QByteArray &url() const { return m_url; }

    /// "user:password".
    [[nodiscard]] const QByteArray &userPassword() const { return m_userPassword; }

    /// The reason why the request must not be sent, in the user's language; otherwise empty. A user name with
    /// a colon or a control character is refused, since the transport separates it from the password at the
    /// first colon, and writes it into a header without escaping. A password with a null character is refused
    /// as well. The URL is not checked.
    [[nodiscard]] QString refusal() const;

private:
    QByteArray m_url;
    QByteArray m_userPassword;
    bool m_isUserSound = true;
    bool m_isPasswordSound = true;
};
