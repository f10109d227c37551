#include "secrets/desktopsecretstore.h"

#include "secrets/internal/buscall.h"

#include <libsecret/secret.h>
#include <openssl/crypto.h>

#include <utility>

namespace {

constexpr const char *applicationAttribute = "application";
constexpr const char *fileAttribute = "file";
constexpr const char *applicationName = "configtools";

struct TableRelease
{
    void operator()(GHashTable *table) const { g_hash_table_unref(table); }
};
using TableOwner = std::unique_ptr<GHashTable, TableRelease>;

struct ListRelease
{
    void operator()(GList *list) const { g_list_free_full(list, &g_object_unref); }
};
using ListOwner = std::unique_ptr<GList, ListRelease>;

struct ValueRelease
{
    void operator()(gpointer value) const { secret_value_unref(value); }
};
using ValueOwner = std::unique_ptr<SecretValue, ValueRelease>;

const SecretSchema *schema()
{
    static const SecretSchema *const ours = secret_schema_new(
        "configtools.Password", SECRET_SCHEMA_NONE, applicationAttribute, SECRET_SCHEMA_ATTRIBUTE_STRING,
        fileAttribute, SECRET_SCHEMA_ATTRIBUTE_STRING, nullptr);
    return ours;
}

/// The attributes of the item of a file; of all items of the application for an empty path.
TableOwner attributesOf(const QString &file)
{
    TableOwner attributes(g_hash_table_new_full(&g_str_hash, &g_str_equal, nullptr, &g_free));
    const auto insert = [&attributes](const char *name, const char *value) {
        g_hash_table_insert(attributes.get(), const_cast<char *>(name), g_strdup(value));
    };
    insert(applicationAttribute, applicationName);
    if (!file.isEmpty())
        insert(fileAttribute, file.toUtf8().constData());
    return attributes;
}

/// A finish function of GLib: its value, and the error that it reports.
template<typename Value, typename Object>
std::pair<Value, ErrorOwner> finished(Value (*finish)(Object *, GAsyncResult *, GError **), Object *object,
                                      const ObjectOwner<GAsyncResult> &result)
{
    GError *error = nullptr;
    Value value = finish(object, result.get(), &error);
    return {value, ErrorOwner(error)};
}

SecretProblem problemOf(const GError *error)
{
    if (!error)
        return {};
    if (g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_SERVICE_UNKNOWN) ||
        g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_NAME_HAS_NO_OWNER))
        return {.kind = SecretProblem::Absent};
    if (g_error_matches(error, SECRET_ERROR, SECRET_ERROR_IS_LOCKED) ||
        g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED))
        return {.kind = SecretProblem::Locked};
    if (g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_NO_REPLY) ||
        g_error_matches(error, G_IO_ERROR, G_IO_ERROR_TIMED_OUT))
        return {.kind = SecretProblem::NoResponse};
    constexpr qsizetype longestDetail = 200;
    return {.kind = SecretProblem::Failed,
            .detail = QString::fromUtf8(error->message).simplified().left(longestDetail)};
}

constexpr SecretProblem::Kind noResponse = SecretProblem::NoResponse;

QString textOf(SecretValue *value)
{
    gsize length = 0;
    const gchar *bytes = value ? secret_value_get(value, &length) : nullptr;
    const bool isText = bytes && length <= static_cast<gsize>(SecretStore::longestValue);
    return isText ? QString::fromUtf8(bytes, static_cast<qsizetype>(length)) : QString();
}

ListOwner lockedOf(const ListOwner &items)
{
    ListOwner locked;
    for (const GList *entry = items.get(); entry; entry = entry->next) {
        if (secret_item_get_locked(static_cast<SecretItem *>(entry->data)))
            locked.reset(g_list_prepend(locked.release(), g_object_ref(entry->data)));
    }
    return locked;
}

/// The passwords of loaded items, by file. Several collections may have items of the same file: the last
/// change counts.
QHash<QString, QString> valuesOf(const ListOwner &items)
{
    QHash<QString, QString> values;
    QHash<QString, guint64> changes;
    for (const GList *entry = items.get(); entry; entry = entry->next) {
        auto *item = static_cast<SecretItem *>(entry->data);
        const TableOwner attributes(secret_item_get_attributes(item));
        const QString file = QString::fromUtf8(
            static_cast<const char *>(g_hash_table_lookup(attributes.get(), fileAttribute)));
        const QString value = textOf(ValueOwner(secret_item_get_secret(item)).get());
        const guint64 changed = secret_item_get_modified(item);
        if (file.isEmpty() || value.isEmpty() || changes.value(file) > changed)
            continue;
        changes.insert(file, changed);
        values.insert(file, value);
    }
    return values;
}

} // namespace

/// An opened session of the service. The functions are those of libsecret, with time limits.
struct DesktopSecretStore::Service
{
    BusCalls &calls;
    const Options &options;
    ObjectOwner<SecretService> session;

    /// The items with these attributes, also those that are locked.
    SecretProblem search(GHashTable *attributes, ListOwner &items) const
    {
        const auto result =
            calls.run(options.responseLimit, [&](auto *cancellable, auto callback, auto data) {
                secret_service_search(session.get(), schema(), attributes, SECRET_SEARCH_ALL, cancellable,
                                      callback, data);
            });
        if (!result)
            return {.kind = noResponse};
        auto [list, error] = finished(&secret_service_search_finish, session.get(), result);
        items.reset(list);
        return problemOf(error.get());
    }

    /// Asks the user to unlock these items.
    SecretProblem unlock(const ListOwner &locked) const
    {
        const auto result = calls.run(options.promptLimit, [&](auto *cancellable, auto callback, auto data) {
            secret_service_unlock(session.get(), locked.get(), cancellable, callback, data);
        });
        if (!result)
            return {.kind = SecretProblem::Locked};
        GError *error = nullptr;
        const gint count = secret_service_unlock_finish(session.get(), result.get(), nullptr, &error);
        const ErrorOwner owner(error);
        const auto wanted = static_cast<gint>(g_list_length(locked.get()));
        return count < wanted ? SecretProblem{.kind = SecretProblem::Locked} : problemOf(error);
    }

    SecretProblem loadSecrets(const ListOwner &items) const
    {
        if (!items)
            return {};
        const auto result =
            calls.run(options.responseLimit, [&](auto *cancellable, auto callback, auto data) {
                secret_item_load_secrets(items.get(), cancellable, callback, data);
            });
        if (!result)
            return {.kind = noResponse};
        GError *error = nullptr;
        secret_item_load_secrets_finish(result.get(), &error);
        return problemOf(ErrorOwner(error).get());
    }

    SecretProblem write(const QString &label, const Secret &secret) const
    {
        QByteArray bytes = secret.value.toUtf8();
        const ValueOwner value(secret_value_new(bytes.constData(), bytes.size(), "text/plain"));
        OPENSSL_cleanse(bytes.data(), static_cast<std::size_t>(bytes.size()));
        const TableOwner attributes = attributesOf(secret.file);
        const auto result = calls.run(options.promptLimit, [&](auto *cancellable, auto callback, auto data) {
            secret_service_store(session.get(), schema(), attributes.get(), SECRET_COLLECTION_DEFAULT,
                                 label.toUtf8().constData(), value.get(), cancellable, callback, data);
        });
        if (!result)
            return {.kind = noResponse};
        const auto [isStored, error] = finished(&secret_service_store_finish, session.get(), result);
        if (!isStored && !error) // the user has closed the prompt
            return {.kind = SecretProblem::Locked};
        return problemOf(error.get());
    }

    SecretProblem lookUp(const QString &file, QString &text) const
    {
        const TableOwner attributes = attributesOf(file);
        const auto result =
            calls.run(options.responseLimit, [&](auto *cancellable, auto callback, auto data) {
                secret_service_lookup(session.get(), schema(), attributes.get(), cancellable, callback, data);
            });
        if (!result)
            return {.kind = noResponse};
        const auto [value, error] = finished(&secret_service_lookup_finish, session.get(), result);
        text = textOf(ValueOwner(value).get());
        return problemOf(error.get());
    }

    SecretProblem clear(GHashTable *attributes) const
    {
        const auto result = calls.run(options.promptLimit, [&](auto *cancellable, auto callback, auto data) {
            secret_service_clear(session.get(), schema(), attributes, cancellable, callback, data);
        });
        if (!result)
            return {.kind = noResponse};
        const auto [isCleared, error] = finished(&secret_service_clear_finish, session.get(), result);
        return problemOf(error.get());
    }
};

DesktopSecretStore::DesktopSecretStore(Options options)
    : m_options(std::move(options)), m_calls(std::make_unique<BusCalls>())
{
}

DesktopSecretStore::~DesktopSecretStore() = default;

void DesktopSecretStore::interrupt()
{
    m_calls->interrupt();
}

SecretProblem DesktopSecretStore::open()
{
    // GLib would start a bus.
    if (!m_options.hasBus)
        return {.kind = SecretProblem::Absent};
    const auto busResult =
        m_calls->run(m_options.responseLimit, [](auto *cancellable, auto callback, auto data) {
            g_bus_get(G_BUS_TYPE_SESSION, cancellable, callback, data);
        });
    GError *busError = nullptr;
    const ObjectOwner<GDBusConnection> bus(busResult ? g_bus_get_finish(busResult.get(), &busError)
                                                     : nullptr);
    const ErrorOwner busErrorOwner(busError);
    if (!bus)
        return {.kind = SecretProblem::Absent};
    // The default ends the process with the bus.
    g_dbus_connection_set_exit_on_close(bus.get(), FALSE);

    const auto result =
        m_calls->run(m_options.responseLimit, [](auto *cancellable, auto callback, auto data) {
            secret_service_open(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION, cancellable,
                                callback, data);
        });
    if (!result)
        return {.kind = noResponse};
    GError *error = nullptr;
    SecretService *session = secret_service_open_finish(result.get(), &error);
    const ErrorOwner owner(error);
    if (!session)
        return problemOf(error);
    m_service.reset(
        new Service{.calls = *m_calls, .options = m_options, .session = ObjectOwner<SecretService>(session)});
    return {};
}

template<typename Work>
SecretProblem DesktopSecretStore::withService(const Work &work)
{
    SecretProblem problem = m_service ? SecretProblem() : open();
    if (!problem.isProblem())
        problem = work(*m_service);
    if (problem.isProblem())
        m_service.reset();
    return problem;
}

StoredSecrets DesktopSecretStore::readAll()
{
    StoredSecrets read;
    read.problem = withService([&read](const Service &service) -> SecretProblem {
        ListOwner items;
        const TableOwner attributes = attributesOf({});
        SecretProblem problem = service.search(attributes.get(), items);
        const ListOwner locked = lockedOf(items);
        if (!problem.isProblem() && locked) {
            problem = service.unlock(locked);
            if (!problem.isProblem())
                problem = service.search(attributes.get(), items);
        }
        if (!problem.isProblem())
            problem = service.loadSecrets(items);
        if (!problem.isProblem())
            read.values = valuesOf(items);
        return problem;
    });
    return read;
}

SecretProblem DesktopSecretStore::store(const Secret &secret)
{
    return withService([this, &secret](const Service &service) {
        SecretProblem problem = service.write(m_options.product + QLatin1String(": ") + secret.title, secret);
        QString stored;
        if (!problem.isProblem())
            problem = service.lookUp(secret.file, stored);
        if (!problem.isProblem() && stored != secret.value)
            problem = {.kind = SecretProblem::Failed,
                       .detail = QStringLiteral("the service returns another value")};
        return problem;
    });
}

SecretProblem DesktopSecretStore::remove(const QString &file)
{
    return withService([&file](const Service &service) {
        const TableOwner attributes = attributesOf(file);
        SecretProblem problem = service.clear(attributes.get());
        // The service keeps locked items without an error.
        ListOwner remaining;
        if (!problem.isProblem())
            problem = service.search(attributes.get(), remaining);
        if (!problem.isProblem() && remaining)
            problem = {.kind = SecretProblem::Locked};
        return problem;
    });
}
