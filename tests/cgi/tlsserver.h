// An HTTPS server on a loopback port with a generated key, which records its requests.
#pragma once

#include "sdk/demo/http/encryption.h"

#include <QByteArray>
#include <QList>

#include <array>
#include <mutex>
#include <thread>
#include <utility>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

/// Serves one connection after another on a separate thread. Reads one request of each connection, and
/// responds with the same bytes.
class TlsServer
{
public:
    /// Listens on a free port when the constructor returns. `response` is a complete HTTP response.
    explicit TlsServer(QByteArray response) : m_response(std::move(response))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof(address);
        bind(m_listener, reinterpret_cast<const sockaddr *>(&address), length);
        listen(m_listener, 16);
        getsockname(m_listener, reinterpret_cast<sockaddr *>(&address), &length);
        m_port = ntohs(address.sin_port);
        m_thread = std::thread([this] { serve(); });
    }
    ~TlsServer()
    {
        shutdown(m_listener, SHUT_RDWR);
        m_thread.join();
        close(m_listener);
    }
    TlsServer(const TlsServer &) = delete;
    TlsServer &operator=(const TlsServer &) = delete;

    /// The port on 127.0.0.1.
    [[nodiscard]] int port() const { return m_port; }

    /// Later connections get another key, as from a device with a changed certificate. Any thread.
    void renewKey()
    {
        const std::scoped_lock lock(m_mutex);
        m_key = sdk::demo::DeviceKey::make("renewed");
    }

    /// The requests received after a completed TLS handshake, in order; at most 64 KiB of each. Any thread.
    [[nodiscard]] QList<QByteArray> requests() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_requests;
    }

private:
    void serve()
    {
        for (int socket = accept(m_listener, nullptr, nullptr); socket >= 0;
             socket = accept(m_listener, nullptr, nullptr)) {
            std::shared_ptr<const sdk::demo::DeviceKey> key;
            {
                const std::scoped_lock lock(m_mutex);
                key = m_key;
            }
            sdk::demo::EncryptedStream stream(socket, key);
            std::array<char, 65536> bytes{};
            if (stream.accept()) {
                const ssize_t count = stream.receive(bytes.data(), bytes.size(), std::chrono::seconds(10));
                if (count > 0) {
                    {
                        const std::scoped_lock lock(m_mutex);
                        m_requests.append(QByteArray(bytes.data(), count));
                    }
                    (void)stream.send(m_response.constData(), static_cast<std::size_t>(m_response.size()));
                }
                stream.finishSending();
            }
            close(socket);
        }
    }

    const QByteArray m_response;
    const int m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    int m_port = 0;
    mutable std::mutex m_mutex; ///< guards the members below
    std::shared_ptr<const sdk::demo::DeviceKey> m_key = sdk::demo::DeviceKey::make("first");
    QList<QByteArray> m_requests;
    std::thread m_thread;
};
