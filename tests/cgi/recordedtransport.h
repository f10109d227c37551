// A transport for HTTP commands that responds from memory and records its requests.
#pragma once

#include "cgi/httptransport.h"

#include <QSemaphore>
#include <QStringList>

#include <atomic>
#include <mutex>

/// An HttpTransport without a network. Every exchange (request and response) succeeds with status 200, unless
/// its watch or its sink ends it. Requests may be sent on several threads in parallel. The public members are
/// set before and read between requests.
class RecordedTransport : public HttpTransport
{
public:
    /// Returns the body of the response to a URL; called on the thread of the request, one call at a time.
    /// "OK" by default.
    std::function<QByteArray(const QByteArray &url)> response = [](const QByteArray &) {
        return QByteArray("OK");
    };
    // The records may be read while no request runs.
    QStringList urls;        ///< of the requests, in order
    QStringList credentials; ///< "user:password" of each of them, in the same order
    /// The limits of each exchange as three numbers: its longest duration in milliseconds, a rate in bytes
    /// per second, and the longest time below that rate in seconds.
    QStringList exchangeLimits;
    QByteArray headers = "Content-Type: text/plain\r\n"; ///< of every response
    std::unique_ptr<QSemaphore> gate; ///< each of its resources admits one exchange; null: all are admitted
    std::atomic<int> atGate = 0;      ///< number of exchanges that have reached the gate; any thread

    void setProxy(const QString &) override {}
    void setCertificateHandler(sdk::CertificateHandler, void *) override {}

    [[nodiscard]] std::unique_ptr<PreparedHttpRequest> open(const CgiRequest &request) override
    {
        const std::lock_guard lock(m_mutex);
        urls.append(QString::fromUtf8(request.url()));
        credentials.append(QString::fromUtf8(request.userPassword()));
        return std::make_unique<RecordedHttpRequest>(*this, response(request.url()));
    }

private:
    class RecordedHttpRequest : public PreparedHttpRequest
    {
    public:
        RecordedHttpRequest(RecordedTransport &transport, const QByteArray &body)
            : m_transport(transport), m_body(body)
        {
        }

        void useBasic() override {}
        HttpOutcome perform(const HttpLimits &limits, const BodySink &sink,
                            const ExchangeWatch &watch) override
        {
            HttpOutcome outcome;
            if (!m_transport.passGate(watch)) {
                outcome.isStopped = true;
                outcome.failure = QStringLiteral("stopped");
                return outcome;
            }
            m_transport.note(limits);
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

    bool passGate(const ExchangeWatch &watch)
    {
        constexpr int watchInterval = 5; // ms
        if (!gate)
            return true;
        ++atGate;
        while (!gate->tryAcquire(1, watchInterval)) {
            if (watch && !watch())
                return false;
        }
        return true;
    }

    void note(const HttpLimits &limits)
    {
        const std::lock_guard lock(m_mutex);
        exchangeLimits.append(QStringLiteral("%1 %2 %3")
                                  .arg(limits.total.count())
                                  .arg(limits.slowestRate)
                                  .arg(limits.slowTime.count()));
    }

    std::mutex m_mutex;
};
