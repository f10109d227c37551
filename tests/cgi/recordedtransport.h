// A transport that responds from memory and records its requests, on any thread.
#pragma once

#include "cgi/httptransport.h"

#include <QSemaphore>
#include <QStringList>

#include <atomic>
#include <mutex>

class RecordedTransport : public HttpTransport
{
public:
    /// The response to each URL.
    std::function<QByteArray(const QByteArray &url)> response = [](const QByteArray &) {
        return QByteArray("OK");
    };
    // The records may be read while no command runs.
    QStringList urls;        ///< of the commands, in order
    QStringList credentials; ///< of each of them
    QStringList
        exchangeLimits; ///< of each exchange: milliseconds, lowest bytes per second, seconds below that
    QByteArray headers = "Content-Type: text/plain\r\n";
    std::unique_ptr<QSemaphore> gate; ///< admits an exchange for each of its resources; null for all
    std::atomic<int> atGate = 0;      ///< exchanges that have reached it

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
