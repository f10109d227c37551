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
    QStringList urls;        ///< of the commands, in their order
    QStringList credentials; ///< of each of them

    void setProxy(const QString &) override {}

    [[nodiscard]] std::unique_ptr<HttpConversation> open(const CgiRequest &request) override
    {
        urls.append(QString::fromUtf8(request.url()));
        credentials.append(QString::fromUtf8(request.userPassword()));
        return std::make_unique<Conversation>(answer(request.url()));
    }

private:
    class Conversation : public HttpConversation
    {
    public:
        explicit Conversation(const QByteArray &body) : m_body(body) {}

        void useBasic() override {}
        HttpOutcome perform(const HttpLimits &, const BodySink &sink, const ExchangeWatch &) override
        {
            constexpr long accepted = 200;
            if (sink)
                sink(m_body);
            HttpOutcome outcome;
            outcome.status = accepted;
            return outcome;
        }
        [[nodiscard]] QByteArray headerText() const override { return "Content-Type: text/plain\r\n"; }

    private:
        const QByteArray m_body;
    };
};
