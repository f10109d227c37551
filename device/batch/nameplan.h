// Preview of a batch of channel names.
#pragma once

#include "device/batch/batchpreview.h"

#include <QStringList>

#include <utility>

/// Makes names from one pattern, for the channels of one device or for channel 1 of several cameras. In the
/// pattern, {n} is the number of the row, {model} the model of the device, and {ip4} the last number of its
/// IPv4 address (empty for IPv6). Rows are numbered from `start` with at least `digits` digits; unchecked
/// rows are counted too. Names have no spaces at their ends. "action" of a checked row is its planned name.
/// Lives on the main thread.
///
/// A recorder in a list of cameras is skipped and gets neither name nor number, because its channel 1 shows
/// one of its cameras.
class NamePlan : public BatchPreview
{
    Q_OBJECT
    Q_PROPERTY(QString pattern READ pattern WRITE setPattern NOTIFY judged)
    Q_PROPERTY(int start READ start WRITE setStart NOTIFY judged)
    Q_PROPERTY(int digits READ digits WRITE setDigits NOTIFY judged)
    /// Why the pattern cannot be used, in the user's language: it is empty, has an unknown {...}, or makes a
    /// name that is too long for devices. Empty if it can be used.
    Q_PROPERTY(QString fault READ fault NOTIFY judged)
    /// Whether there are several rows and the pattern gives all rows of one model the same name.
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

    /// Sets the rows to the `count` channels of the device at `ipport`, all of them checked. The identity of
    /// a row is the channel number from 0, as text.
    Q_INVOKABLE void takeChannels(const QString &ipport, int count);
    /// Sets the rows to these devices, all of them checked. The identity of a row is its address and port.
    Q_INVOKABLE void takeCameras(const QStringList &ipports);

    /// The number of these devices that are not recorders; all of them without a factory.
    Q_INVOKABLE [[nodiscard]] int countCameras(const QStringList &ipports) const;

    /// The identities of the checked rows without recorders, see takeChannels() and takeCameras().
    Q_INVOKABLE [[nodiscard]] QStringList namedIdentities() const;
    /// The planned names of these rows, in the same order.
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
    [[nodiscard]] bool isRecorder(int row) const; ///< false for channels
    [[nodiscard]] QString faultOfPattern() const;

    QString m_pattern;
    int m_start = 1;
    int m_digits = 1;
    QStringList m_names; ///< by row; empty for recorders
    bool m_ofCameras = false;
    QString m_fault;
};
