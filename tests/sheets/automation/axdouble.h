// A test double of QAxObject, the class of Qt for objects of the automation interface of a Windows
// application: it records calls and returns the values of a test, so that its users are tested on any system.
#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QVariant>

/// The common data of all objects of one test. A path is the name of the application object and the labels of
/// the objects below it, separated by full stops; a label is a name and the arguments, separated by spaces.
struct AxRecord
{
    /// In order: "path.label" of each object query and function call, "path.name = value" of each property
    /// that was set, and "path.name" of each one that was read.
    QStringList calls;
    QHash<QString, QVariant> responses; ///< values of properties by "path.name"; others are invalid
    bool isInstalled = true;            ///< false: the application cannot be started
    QString refused;                    ///< name of a property that cannot be set; empty for none
    int alive = 0;                      ///< number of existing objects

    /// The only object of the process. A test resets it.
    static AxRecord &instance()
    {
        static AxRecord record;
        return record;
    }
};

/// Has the functions of Qt's class that ApplicationSheetEngine uses. All calls succeed; a test emits
/// exception() for a failure.
class QAxObject : public QObject
{
    Q_OBJECT
public:
    /// Starts the application with the name `control`.
    explicit QAxObject(const QString &control) : QAxObject(control, nullptr) {}

    ~QAxObject() override { --AxRecord::instance().alive; }

    /// True if the application could not be started.
    [[nodiscard]] bool isNull() const { return !AxRecord::instance().isInstalled; }

    /// A new object below this one, which owns it.
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
        const bool isRefused = AxRecord::instance().refused == QLatin1String(name);
        if (isRefused)
            Q_EMIT exception(1, {}, QStringLiteral("refused"), {});
        return !isRefused;
    }

    [[nodiscard]] QVariant property(const char *name)
    {
        note(name);
        return AxRecord::instance().responses.value(m_path + '.' + name);
    }

Q_SIGNALS:
    /// The application has raised an error during a call.
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
