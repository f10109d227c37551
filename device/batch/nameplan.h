// Which name each channel, or the first channel of each camera, will get.
#pragma once

#include "device/batch/batchpreview.h"

#include <QStringList>

#include <utility>

/// Names from one pattern: {n} is the place of the row counted from `start`, with `digits` digits at least,
/// {model} the model of the device, {ip4} the last number of its IPv4 address. A row's "action" is its name.
///
/// A recorder among cameras is skipped: its channel 1 shows a camera of its own. It gets no name and no
/// number.
class NamePlan : public BatchPreview
{
    Q_OBJECT
    Q_PROPERTY(QString pattern READ pattern WRITE setPattern NOTIFY judged)
    Q_PROPERTY(int start READ start WRITE setStart NOTIFY judged)
    Q_PROPERTY(int digits READ digits WRITE setDigits NOTIFY judged)
    /// Why the pattern cannot be used, in the user's language; empty if it can.
    Q_PROPERTY(QString fault READ fault NOTIFY judged)
    /// Whether the pattern gives all rows of one model the same name, and there are several rows.
    Q_PROPERTY(bool repeated READ isRepeated NOTIFY judged)
public:
    explicit NamePlan(QObject *parent = nullptr) : BatchPreview(parent) {}

    [[nodiscard]] QString pattern() const { return m_pattern; }
    void setPattern(const QString &pattern) { change(m_pattern, pattern); }
    [[nodiscard]] int start() const { return m_start; }
    void setStart(int start) { change(m_start, start); }
    [[nodiscard]] int digits() const { return m_digits; }
    void setDigits(int digits) { change(m_digits, digits); }
    [[nodiscard]] QString fault() const { return m_fault; }
    [[nodiscard]] bool isRepeated() const;

    /// The channels of the device at `ipport`, named by their numbers from 0, or these cameras, named by
    /// their addresses and ports. All are ticked.
    Q_INVOKABLE void takeChannels(const QString &ipport, int count);
    Q_INVOKABLE void takeCameras(const QStringList &ipports);

    /// How many of these devices are cameras.
    Q_INVOKABLE [[nodiscard]] int countCameras(const QStringList &ipports) const;

    /// Of the ticked rows but for recorders: by what the plan was made of, and their names in the same order.
    Q_INVOKABLE [[nodiscard]] QStringList namedIdentities() const;
    Q_INVOKABLE [[nodiscard]] QStringList names() const;

protected:
    void prepare() override;
    [[nodiscard]] Judgement judgementOf(int row) const override;
    [[nodiscard]] QString hindranceOf(int row) const override;

private:
    template<typename Value>
    void change(Value &member, const Value &value)
    {
        if (std::exchange(member, value) != value)
            rejudge();
    }

    [[nodiscard]] QString nameOf(int row, int number) const;
    [[nodiscard]] bool isRecorder(int row) const; ///< among cameras
    [[nodiscard]] QString faultOfPattern() const;

    QString m_pattern;
    int m_start = 1;
    int m_digits = 1;
    QStringList m_names; ///< by row, empty for recorders
    bool m_ofCameras = false;
    QString m_fault;
};
