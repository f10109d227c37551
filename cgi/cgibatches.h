#pragma once

#include "cgi/cgiworkbooks.h"

class LongAnswers;

/// Commands to devices over HTTP as batches, for the scene: one command to some of the listed devices, each
/// with the account of the device, whose rows get the answers. Those of a workbook are with workbooks().
///
/// Lives on the scene's thread.
class CgiBatches : public QObject
{
    Q_OBJECT
    Q_PROPERTY(CgiWorkbooks *workbooks READ workbooks CONSTANT)
public:
    /// `factory` and `batches` live longer than this. Of `surroundings` the login check, the watch and the
    /// paths of files are not used: it has its own.
    CgiBatches(CDeviceFactory &factory, Batches &batches, CgiSurroundings surroundings,
               QObject *parent = nullptr);

    [[nodiscard]] CgiWorkbooks *workbooks() const { return m_workbooks; }

    /// Sends a command to devices that are named by the identities of their rows. The rows get the command as
    /// "url" at once, and as "result" the beginning of the answer, or the words for not sent. Returns the
    /// batch, or null when it does not begin. The scene does not own it.
    Q_INVOKABLE Batch *send(const QString &title, const QStringList &identities, const QString &command);

    /// What the row's "result" is the beginning of, as far as it is kept.
    Q_INVOKABLE [[nodiscard]] QString answerOf(const QString &identity, const QString &result) const;

    /// Of a batch of send(): a line "address:port  result" for each device that failed or was not done. Those
    /// with the same result stand together.
    Q_INVOKABLE [[nodiscard]] QStringList failuresOf(Batch *batch) const;

Q_SIGNALS:
    /// The rows of listed devices have got results, also in a retry of a batch.
    void answered(const QStringList &identities);

private:
    [[nodiscard]] DeviceStep deviceStep(const BatchDevice &device, const QString &command);
    [[nodiscard]] QString addressOf(const QString &ipport, const QString &command);

    CDeviceFactory &m_factory;
    Batches &m_batches;
    CgiSurroundings m_surroundings;               ///< for any thread
    const std::shared_ptr<LongAnswers> m_answers; ///< by identity
    CgiWorkbooks *m_workbooks = nullptr;          ///< owned
};
