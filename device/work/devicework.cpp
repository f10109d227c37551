#include "device/work/devicework.h"

#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/mapkeys.h"

DeviceWork::~DeviceWork()
{
    m_stop.request_stop();
}

CDeviceFactory *DeviceWork::deviceFactory() const
{
    return m_deviceFactory;
}

void DeviceWork::setDeviceFactory(CDeviceFactory *deviceFactory)
{
    if (m_deviceFactory == deviceFactory)
        return;
    cancel();
    CDeviceFactory *before = m_deviceFactory;
    m_deviceFactory = deviceFactory;
    changeFactory(before);
    Q_EMIT deviceFactoryChanged();
}

void DeviceWork::changeFactory(CDeviceFactory *) {}

void DeviceWork::readDetail(const QString &ipport)
{
    if (m_deviceFactory)
        begin(m_deviceFactory->backEnd(dhFamily)->detailStep(ipport));
}

void DeviceWork::addDevice(const QVariantMap &device)
{
    if (!m_deviceFactory)
        return;
    CDeviceFactory *factory = m_deviceFactory; // outlives the threads of its back ends
    begin([factory, step = m_deviceFactory->backEnd(dhFamily)->addingStep(deviceToAdd(device))](
              const StepControl &control) {
        const StepOutcome outcome = step(control);
        if (outcome.result == resultCode(LoginResult::Success)) {
            QMetaObject::invokeMethod(factory, &CDeviceFactory::releaseUnneededP2PPorts,
                                      Qt::QueuedConnection);
            QMetaObject::invokeMethod(factory, &CDeviceFactory::signalAddSingleDeviceToTable,
                                      Qt::QueuedConnection);
        }
        return PageOutcome{
            .value = QVariantMap{{ResultKey::result, outcome.result}, {ResultKey::text, outcome.text}},
            .take = {}};
    });
}

void DeviceWork::begin(const PageStep &step)
{
    m_stop.request_stop();
    m_stop = std::stop_source();
    const int number = ++m_number;
    setRunning(true);
    m_deviceFactory->backEnd(dhFamily)->runForPage(
        step, m_stop.get_token(), [self = QPointer(this), number](const PageOutcome &outcome) {
            if (self)
                self->end(number, outcome);
        });
}

void DeviceWork::end(int number, const PageOutcome &outcome)
{
    if (number != m_number)
        return;
    m_isTaking = true;
    if (outcome.take)
        outcome.take();
    m_isTaking = false;
    if (number != m_number) // a signal handler has started other work
        return;
    setRunning(false);
    Q_EMIT ended(outcome.value);
}

void DeviceWork::cancel()
{
    m_stop.request_stop();
    ++m_number;
    setRunning(false);
}

void DeviceWork::setRunning(bool isRunning)
{
    if (m_isRunning == isRunning)
        return;
    m_isRunning = isRunning;
    Q_EMIT runningChanged();
}
