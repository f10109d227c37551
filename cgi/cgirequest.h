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
    /// `url` is user input: spaces, non-ASCII characters and single percent signs are encoded.
    CgiRequest(const QString &url, const QString &user, const QString &password);

    /// The encoded URL; empty when the input is not a URL.
    [[nodiscard]] const QByteArray &url() const { return m_url; }

    /// "user:password".
    [[nodiscard]] const QByteArray &userPassword() const { return m_userPassword; }

    /// The reason why the request cannot be sent, in the user's language; empty if it can. The transport
    /// separates the user name and the password at the first colon, and quotes the name in a header without
    /// escaping.
    [[nodiscard]] QString refusal() const;

private:
    QByteArray m_url;
    QByteArray m_userPassword;
    bool m_isUserSound = true;
    bool m_isPasswordSound = true;
};
