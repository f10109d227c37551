#include "cgi/cgirequest.h"

#include <QUrl>

#include <algorithm>

namespace {

bool isSoundUser(const QString &user)
{
    const auto isUsable = [](QChar character) {
        constexpr char16_t deleteCharacter = 0x7F;
        return character != QLatin1Char(':') && character >= QLatin1Char(' ') &&
               character != QChar(deleteCharacter);
    };
    return std::all_of(user.begin(), user.end(), isUsable);
}

} // namespace

CgiRequest::CgiRequest(const QString &url, const QString &user, const QString &password)
    : m_url(QUrl(url, QUrl::TolerantMode).toEncoded(QUrl::FullyEncoded)),
      m_userPassword((user + QLatin1Char(':') + password).toUtf8()), m_isUserSound(isSoundUser(user)),
      m_isPasswordSound(!password.contains(QChar(QChar::Null)))
{
}

QString CgiRequest::refusal() const
{
    if (!m_isUserSound)
        return tr("用户名不能包含冒号或控制字符。");
    if (!m_isPasswordSound)
        return tr("密码不能包含空字符。");
    return {};
}
