// Devices for batches of HTTP commands, without a network: the back end and the transport are test doubles.
#pragma once

#include "cgi/cgibatches.h"
#include "device/registry/devicefactory.h"
#include "tests/cgi/recordedtransport.h"

#include <QJsonObject>
#include <QTemporaryDir>

/// A back end whose device list a test sets. Login checks accept every password except "wrong". All members
/// are used on the main thread, except checkLogin(), which the threads of a batch call.
class CommandBackEnd : public CDeviceBase
{
public:
    CommandBackEnd() : CDeviceBase(nullptr) {}

    QMap<QString, QVariantMap> rows;     ///< by identity; a row is a map by column
    QMap<QString, QVariantMap> accounts; ///< by identity; other devices have "admin" with "secret1"
    QStringList logins; ///< login checks as "account password", in order; read between batches

    /// Adds the row of an initialised device. `identity` is also its MAC, `ipport` is "address:port",
    /// `webPort` the port for HTTP commands.
    void add(const QString &identity, const QString &ipport, int webPort)
    {
        rows.insert(identity, {{QStringLiteral("mac"), identity},
                               {QStringLiteral("ipport"), ipport},
                               {QStringLiteral("httpport"), webPort},
                               {QStringLiteral("state"), true},
                               {QStringLiteral("url"), QString()},
                               {QStringLiteral("result"), QString()}});
    }

    QVariantList filterData(const QString &, const QString &) override
    {
        QVariantList list;
        for (const QVariantMap &row : std::as_const(rows))
            list.append(QJsonObject::fromVariantMap(row));
        return list;
    }
    QVariantMap getDeviceInfo(const QString &ipport) override
    {
        for (const QVariantMap &row : std::as_const(rows)) {
            if (row.value(QStringLiteral("ipport")) == ipport)
                return row;
        }
        return {};
    }
    QVariantMap getDeviceDetail(const QString &mac) override { return rows.value(mac); }
    bool updataDeviceInfo(const QString &key, const QVariant &value, const QString &mac,
                          const QString &) override
    {
        rows[mac].insert(key, value);
        return true;
    }
    QVariantMap accountOf(const QString &name) override
    {
        const QVariantMap row = rows.value(name);
        if (row.contains(QStringLiteral("password"))) // given by the user
            return {{QStringLiteral("account"), row.value(QStringLiteral("username"))},
                    {QStringLiteral("password"), row.value(QStringLiteral("password"))}};
        return accounts.value(name, {{QStringLiteral("account"), QStringLiteral("admin")},
                                     {QStringLiteral("password"), QStringLiteral("secret1")}});
    }
    int checkLogin(const QString &, const QString &account, const QString &password) override
    {
        const std::lock_guard lock(m_mutex);
        logins.append(account + QLatin1Char(' ') + password);
        return password == QLatin1String("wrong") ? resultCode(LoginResult::WrongPassword) : 0;
    }

private:
    std::mutex m_mutex;
};

/// Everything that a test of CgiBatches needs: add rows to `devices`, then start batches with `commands`.
/// Main thread.
struct CommandSite
{
    /// `maximumParallel` is the maximum number of devices that a batch processes at the same time.
    explicit CommandSite(int maximumParallel)
        : batches(
              factory, engine, [maximumParallel] { return maximumParallel; }, nullptr),
          commands(factory, batches,
                   {.checkLogin = {}, .transport = transport, .folder = folder.path(), .localTime = [] {
                        return QDateTime(QDate(2026, 3, 9), QTime(7, 5, 1));
                    }})
    {
    }
    ~CommandSite() { engine.end(); }
    CommandSite(const CommandSite &) = delete;
    CommandSite &operator=(const CommandSite &) = delete;

    /// The column "result" of a row, which has the response or the error of its last command.
    [[nodiscard]] QString result(const QString &identity) const
    {
        return devices->rows.value(identity).value(QStringLiteral("result")).toString();
    }

    QTemporaryDir folder; ///< for images and recordings in responses
    std::shared_ptr<CommandBackEnd> devices = std::make_shared<CommandBackEnd>();
    std::shared_ptr<RecordedTransport> transport = std::make_shared<RecordedTransport>();
    CDeviceFactory factory{{{QStringLiteral("dh"), [this] {
                                 return devices;
                             }}}};
    BatchEngine engine{nullptr};
    Batches batches;
    CgiBatches commands;
};
