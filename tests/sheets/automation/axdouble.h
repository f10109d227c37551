// A test double of the automation interface's client objects: it records calls and returns the values of a
// test.
#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QVariant>

/// The common data of all objects of one test.
struct AxRecord
{
    QStringList calls;                  ///< "path what arguments", in order
    QHash<QString, QVariant> responses; ///< values of properties by "path.name"
    bool isInstalled = true;
    int alive = 0; ///< number of existing objects

    static AxRecord &instance()
    {
        static AxRecord record;
        return record;
    }
};

class QAxObject : public QObject
{
    Q_OBJECT
public:
    explicit QAxObject(const QString &control) : QAxObject(control, nullptr) {}

    ~QAxObject() override { --AxRecord::instance().alive; }

    [[nodiscard]] bool isNull() const { return !AxRecord::instance().isInstalled; }

    QAxObject *querySubObject(const char *name, const QVariant &first = {}, const QVariant &second = {})
    {
        const QString label = labelOf(name, first, second);
        note(label);
        return new QAxObject(m_path + '.' + label, this);
    }

    QVariant dynamicCall(const char *function, const QVariant &first = {}, const QVariant &second = {})
    {
        note(labelOf(function, first, second));
        return {};
    }

    bool setProperty(const char *name, const QVariant &value)
    {
        note(QString("%1 = %2").arg(name, value.toString()));
        return true;
    }

    [[nodiscard]] QVariant property(const char *name)
    {
        note(name);
        return AxRecord::instance().responses.value(m_path + '.' + name);
    }

Q_SIGNALS:
    void exception(int code, const QString &source, const QString &description, const QString &help);

private:
    QAxObject(const QString &path, QAxObject *owner) : QObject(owner), m_path(path)
    {
        ++AxRecord::instance().alive;
    }

    static QString labelOf(const char *name, const QVariant &first, const QVariant &second)
    {
        QString label(name);
        for (const QVariant &argument : {first, second}) {
            if (argument.isValid())
                label += ' ' + argument.toString();
        }
        return label;
    }

    void note(const QString &what) { AxRecord::instance().calls += m_path + '.' + what; }

    const QString m_path;
};
