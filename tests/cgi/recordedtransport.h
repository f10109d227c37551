// A transport that answers from memory and notes what it was asked.
#pragma once

#include "cgi/httptransport.h"

#include <QStringList>

class RecordedTransport : public HttpTransport
{
public:
    /// The answer to each address, from the first request on.
    std::function<QByteArray(const QByteArray &url)> answer = [](const QByteArray &) {
        return QByteArray("OK");
    };
    QStringList urls;           ///< of the commands, in their order
    QStringList credentials;    ///< of each of them
    QStringList exchangeLimits; ///< of each exchange: milliseconds, least bytes a second, seconds below that
    QByteArray headers = "Content-Type: text/plain\r\n";

    void setProxy(const QString &) override {}

    [[nodiscard]] std::unique_ptr<HttpConversation> open(const CgiRequest &request) override
    {
        urls.append(QString::fromUtf8(request.url()));
        credentials.append(QString::fromUtf8(request.userPassword()));
        return std::make_unique<Conversation>(*this, answer(request.url()));
    }

private:
    class Conversation : public HttpConversation
    {
    public:
        Conversation(RecordedTransport &transport, const QByteArray &body)
            : m_transport(transport), m_body(body)
        {
        }

        void useBasic() override {}
        HttpOutcome perform(const HttpLimits &limits, const BodySink &sink, const ExchangeWatch &) override
        {
            m_transport.exchangeLimits.append(QStringLiteral("%1 %2 %3")
                                                  .arg(limits.total.count())
                                                  .arg(limits.slowestRate)
                                                  .arg(limits.slowTime.count()));
            HttpOutcome outcome;
            outcome.status = 200;
            if (sink && !sink(m_body))
                outcome.failure = QStringLiteral("ended");
            return outcome;
        }
        [[nodiscard]] QByteArray headerText() const override { return m_transport.headers; }

    private:
        RecordedTransport &m_transport;
        const QByteArray m_body;
    };
};
