#pragma once

#include "cgi/cgiprocedure.h"
#include "device/batch/batches.h"

class LongAnswers;

/// An account that commands are sent with.
struct CgiAccount
{
    QString user;
    QString password;
};

/// Commands to devices over HTTP as batches, for the scene: one command to some of the listed devices, whose
/// rows get the answers, or those of a workbook, which gets them.
///
/// Lives on the scene's thread.
class CgiBatches : public QObject
{
    Q_OBJECT
public:
    /// `factory` and `batches` live longer than this. Of `surroundings` the login check, the watch and the
    /// paths of files are not used: it has its own. `account` gives the one for the listed devices.
    CgiBatches(CDeviceFactory &factory, Batches &batches, CgiSurroundings surroundings,
               std::function<CgiAccount()> account, QObject *parent = nullptr);
    ~CgiBatches() override;

    // Each returns the batch, or null when it does not begin. The scene does not own it.

    /// Sends a command to devices that are named by the identities of their rows. The rows get the command as
    /// "url" at once, and as "result" the beginning of the answer, or the words for not sent.
    Q_INVOKABLE Batch *send(const QString &title, const QStringList &identities, const QString &command);

    /// Sends the commands of a workbook; those for one device in their order. `path` may be a "file:///"
    /// address. What is to be told to the user comes by workbookEnded(), also when it cannot begin, unless
    /// the batches refuse it.
    Q_INVOKABLE Batch *runWorkbook(const QString &title, const QString &path);

    /// What the row's "result" is the beginning of, as far as it is kept.
    Q_INVOKABLE [[nodiscard]] QString answerOf(const QString &identity, const QString &result) const;

    /// Of a batch of send(): a line "address:port  result" for each device that failed or was not done. Those
    /// with the same result stand together.
    Q_INVOKABLE [[nodiscard]] QStringList failuresOf(Batch *batch) const;

Q_SIGNALS:
    /// The rows of listed devices have got results, also in a retry of a batch.
    void answered(const QStringList &identities);

    /// As CGIConfigManage::batchCGIConfig() returns it.
    void workbookEnded(const QString &text);

private:
    class Workbook;

    [[nodiscard]] DeviceStep deviceStep(const BatchDevice &device, const QString &command,
                                        const CgiAccount &account);
    [[nodiscard]] DeviceStep lineStep(const BatchDevice &line);
    [[nodiscard]] QString addressOf(const QString &ipport, const QString &command);
    [[nodiscard]] QList<BatchDevice> linesOf(Workbook &workbook);
    void takeLines(const QList<BatchOutcome> &outcomes);
    void finishWorkbook();

    CDeviceFactory &m_factory;
    Batches &m_batches;
    CgiSurroundings m_surroundings; ///< for any thread
    const std::function<CgiAccount()> m_account;
    const std::shared_ptr<LongAnswers> m_answers; ///< by identity
    std::unique_ptr<Workbook> m_workbook;         ///< null while none runs
};
