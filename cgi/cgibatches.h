#pragma once

#include "cgi/cgiworkbooks.h"

class LongResponses;

/// Batches of commands to devices over HTTP, for QML: one command to several listed devices, each with the
/// account of the device. The responses are written to the rows. workbooks() has the commands of workbooks.
///
/// Lives on the main thread.
class CgiBatches : public QObject
{
    Q_OBJECT
    Q_PROPERTY(CgiWorkbooks *workbooks READ workbooks CONSTANT)
public:
    /// `factory` and `batches` must outlive this object. The login check, the watch and the file paths of
    /// `surroundings` are not used: this object has its own.
    CgiBatches(CDeviceFactory &factory, Batches &batches, CgiSurroundings surroundings,
               QObject *parent = nullptr);

    [[nodiscard]] CgiWorkbooks *workbooks() const { return m_workbooks; }

    /// Sends a command to the devices with these row identities. The rows get the command as "url"
    /// immediately, and as "result" the start of the response, "Error:" and the reason, or the text for "not
    /// sent". Returns the batch, or null when it does not start. QML does not own it.
    Q_INVOKABLE Batch *send(const QString &title, const QStringList &identities, const QString &command);

    /// The complete response whose start is the row's "result", if it is kept; otherwise `result`.
    Q_INVOKABLE [[nodiscard]] QString responseOf(const QString &identity, const QString &result) const;

    /// The failures of a batch of send(): a line with "address:port", two spaces and the result for each
    /// device that has not succeeded, grouped by result. Empty without a batch.
    Q_INVOKABLE [[nodiscard]] QStringList failuresOf(Batch *batch) const;

Q_SIGNALS:
    /// Emitted when rows have new results, also in a retry of a batch.
    void responded(const QStringList &identities);

private:
    [[nodiscard]] DeviceStep deviceStep(const BatchDevice &device, const QString &command);
    [[nodiscard]] QString addressOf(const QString &ipport, const QString &command);

    CDeviceFactory &m_factory;
    Batches &m_batches;
    CgiSurroundings m_surroundings;                   ///< for any thread
    const std::shared_ptr<LongResponses> m_responses; ///< by identity
    CgiWorkbooks *m_workbooks = nullptr;              ///< owned
};
