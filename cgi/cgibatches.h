#pragma once

#include "cgi/cgiworkbooks.h"

class LongResponses;

/// Batches of commands to devices over HTTP, for QML: one command is sent to several devices of the back end
/// "dh", to each with the account of CDeviceFactory::accountOf(). The responses are written to the rows.
/// workbooks() sends the commands of workbooks.
///
/// Lives on the main thread.
class CgiBatches : public QObject
{
    Q_OBJECT
    Q_PROPERTY(CgiWorkbooks *workbooks READ workbooks CONSTANT)
public:
    /// `factory` and `batches` must outlive this object. `surroundings` gives the transport, the folder of
    /// received files and the clock; its functions are called on the threads of the batches. Its other
    /// members are replaced.
    CgiBatches(CDeviceFactory &factory, Batches &batches, CgiSurroundings surroundings,
               QObject *parent = nullptr);

    /// The batches of workbooks. Owned by this object.
    [[nodiscard]] CgiWorkbooks *workbooks() const { return m_workbooks; }

    /// Sends a command to the devices with these row identities. `command` is the part of the URL after the
    /// port and starts with "/"; the rows supply the scheme, the address and the web port (80 if unknown). A
    /// device behind a P2P tunnel (127.0.0.1) is accessed over HTTP at the local port of its web tunnel;
    /// without one nothing is sent, and its result is LoginResult::NetworkFailure. `title` is displayed as
    /// the name of the batch.
    ///
    /// The rows get the command as "url" when the batch has started. They get "result" at the end of their
    /// devices: the start of the response (up to 4,000 characters), "Error:" and the reason, or the text for
    /// "not done". Returns the batch, or null after Batches::refused() if it was not started; then no row is
    /// changed. QML does not own the batch.
    Q_INVOKABLE Batch *send(const QString &title, const QStringList &identities, const QString &command);

    /// The complete response of the row with this identity, whose "result" is `result`. Responses are kept up
    /// to a total length. If the response is not kept, returns `result`.
    Q_INVOKABLE [[nodiscard]] QString responseOf(const QString &identity, const QString &result) const;

    /// The failures of a batch of send(): a line with "address:port", two spaces and the result in one line
    /// for each device that has not succeeded, also if it is not done; sorted by result. Empty without a
    /// batch.
    Q_INVOKABLE [[nodiscard]] QStringList failuresOf(Batch *batch) const;

Q_SIGNALS:
    /// Emitted when the rows with these identities have new results, also in a retry of a batch.
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
