#include "cgi/cgiprocedure.h"
#include "fuzz/input.h"

#include <QDir>

namespace {

/// The responses of a device to both requests of a command.
struct Response
{
    long firstStatus = 0;
    long secondStatus = 0;
    QByteArray headers;
    QByteArray body;

    /// Reads the two status codes in the first line, then the headers up to an empty line, then the body.
    static Response of(const QByteArray &bytes)
    {
        const qsizetype line = bytes.indexOf('\n');
        const QList<QByteArray> codes = bytes.left(line).split(' ');
        const qsizetype end = bytes.indexOf("\r\n\r\n", line);
        return {.firstStatus = codes.value(0).toInt(),
                .secondStatus = codes.value(1).toInt(),
                .headers = bytes.mid(line + 1, end < 0 ? -1 : end - line - 1),
                .body = end < 0 ? QByteArray() : bytes.mid(end + 4)};
    }
};

class RespondingTransport : public HttpTransport
{
public:
    explicit RespondingTransport(Response response) : m_response(std::move(response)) {}

    void setProxy(const QString &) override {}
    void setCertificateHandler(sdk::CertificateHandler, void *) override {}
    [[nodiscard]] std::unique_ptr<PreparedHttpRequest> open(const CgiRequest &) override
    {
        return std::make_unique<RecordedHttpRequest>(m_response);
    }

private:
    class RecordedHttpRequest : public PreparedHttpRequest
    {
    public:
        explicit RecordedHttpRequest(const Response &response) : m_response(response) {}

        void useBasic() override {}
        HttpOutcome perform(const HttpLimits &, const BodySink &sink, const ExchangeWatch &) override
        {
            HttpOutcome outcome;
            outcome.status = sink ? m_response.secondStatus : m_response.firstStatus;
            constexpr qsizetype chunk = 1000;
            for (qsizetype offset = 0; sink && offset < m_response.body.size(); offset += chunk) {
                if (!sink(QByteArrayView(m_response.body.mid(offset, chunk)))) {
                    outcome.failure = QStringLiteral("the client has ended the transfer");
                    break;
                }
            }
            return outcome;
        }
        [[nodiscard]] QByteArray headerText() const override { return m_response.headers; }

    private:
        const Response &m_response;
    };

    const Response m_response;
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    const QTemporaryDir folder;
    const Response response = Response::of(fuzz::bytesOf(data, size));
    const auto acceptLogin = [](const QString &, const QString &, const QString &) {
        return 0;
    };
    const CgiSurroundings surroundings = {.checkLogin = acceptLogin,
                                          .transport = std::make_shared<RespondingTransport>(response),
                                          .folder = folder.path(),
                                          .localTime = &QDateTime::currentDateTime};
    constexpr qsizetype longest = 4000;
    const CgiLimits limits{.longestText = longest, .largestImage = longest};
    const QString result = CgiProcedure(surroundings, limits)
                               .run(QStringLiteral("http://192.0.2.1/cgi-bin/a"), QStringLiteral("admin"),
                                    QStringLiteral("secret"), QStringLiteral("192.0.2.1:37777"));
    const QStringList files = QDir(folder.path()).entryList(QDir::Files);
    if (files.size() > 1)
        qFatal("more than one file");
    if (files.isEmpty() || result.startsWith(failedResult))
        return 0;
    QFile file(result);
    if (!file.open(QIODevice::ReadOnly) || file.readAll() != response.body)
        qFatal("the file differs from the body of the response");
    return 0;
}
