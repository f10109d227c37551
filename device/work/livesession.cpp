#include "device/work/livesession.h"

#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"

#include <utility>

LiveSession::~LiveSession()
{
    m_stop.request_stop();
    m_imageStop.request_stop();
}

CDeviceFactory *LiveSession::deviceFactory() const
{
    return m_deviceFactory;
}

void LiveSession::setDeviceFactory(CDeviceFactory *deviceFactory)
{
    if (m_deviceFactory == deviceFactory)
        return;
    close();
    m_deviceFactory = deviceFactory;
    Q_EMIT deviceFactoryChanged();
}

void LiveSession::open(const QString &ipport, const QString &account, const QString &password)
{
    if (!m_deviceFactory)
        return;
    m_stop.request_stop();
    m_stop = std::stop_source();
    const OwnSessionStep step = m_deviceFactory->backEnd(dhFamily)->ownSessionStep(
        {.ipport = ipport, .account = account, .password = password, .present = m_session});
    // If the work is dropped, the offer is destroyed and logs out.
    const auto offer = std::make_shared<OwnSessionOffer>();
    m_deviceFactory->backEnd(dhFamily)->runForPage(
        [step, offer](const StepControl &control) {
            *offer = step(control);
            return PageOutcome();
        },
        m_stop.get_token(),
        [self = QPointer(this), number = ++m_number, offer](const PageOutcome &) {
            if (self && self->m_number == number)
                self->take(std::exchange(*offer, {}));
        });
}

void LiveSession::takeImage(int channel, const QString &folder)
{
    if (!m_deviceFactory || !m_session)
        return;
    const auto image = std::make_shared<OwnImage>();
    m_deviceFactory->backEnd(dhFamily)->runForPage(
        [session = m_session, image, channel, folder](const StepControl &control) {
            *image = session->takeImage(channel, folder, control);
            return PageOutcome();
        },
        m_imageStop.get_token(),
        [self = QPointer(this), stop = m_imageStop.get_token(), image, channel](const PageOutcome &) {
            if (self && !stop.stop_requested())
                Q_EMIT self->imageTaken(channel, image->path, image->message);
        });
}

void LiveSession::close()
{
    m_stop.request_stop();
    m_imageStop.request_stop();
    m_imageStop = std::stop_source();
    ++m_number;
    setSession(nullptr);
}

void LiveSession::take(const OwnSessionOffer &offer)
{
    if (offer.session)
        setSession(offer.session);
    Q_EMIT ended(offer.result, offer.channels);
}

void LiveSession::setSession(const std::shared_ptr<OwnSession> &session)
{
    const qint64 before = handle();
    m_session = session;
    if (handle() != before)
        Q_EMIT handleChanged();
}
