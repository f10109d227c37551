#include "device/dh/images/imageoperations.h"

#include "device/dh/configuration/currentsession.h"
#include "device/dh/logins/devicelogins.h"
#include "device/dh/session/livechannels.h"
#include "device/dh/session/securelogin.h"
#include "device/registry/loginresult.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "files/applicationfolders.h"
#include "media/snapthread.h"

#include <QCoreApplication>

#include <algorithm>
#include <memory>
#include <mutex>
#include <utility>

namespace {

const QString allChannels = QStringLiteral("liveCapture");
const QString oneChannel = QStringLiteral("againCapture");

/// Converts a text to a folder name: replaces path separators and characters that file systems do not accept.
QString folderName(const QString &text)
{
    QString name = text.left(120);
    for (QChar &character : name) {
        if (character.unicode() < 0x20 || QStringLiteral("/\\:*?\"<>|").contains(character))
            character = u'_';
    }
    const bool isOnlyDots =
        std::all_of(name.cbegin(), name.cend(), [](QChar character) { return character == u'.'; });
    return isOnlyDots ? QStringLiteral("device") : name;
}

int snapResult(SnapProblem problem)
{
    switch (problem) {
    case SnapProblem::None:
        return resultCode(LoginResult::Success);
    case SnapProblem::NoFrame:
        return resultCode(LoginResult::NetworkFailure);
    default:
        return snapshotFailed;
    }
}

/// Why an image is missing, in the user's language.
QString missingImageText(const SnapOutcome &outcome)
{
    if (outcome.problem != SnapProblem::NoFrame)
        return outcome.message;
    return outcome.reason.isEmpty() ? QCoreApplication::translate("ImageOperations", "设备没有发送画面")
                                    : outcome.reason;
}

/// The folder of a device's snapshots.
QString snapshotFolder(const QString &device)
{
    return ApplicationFolders::current().snapshots() + QLatin1Char('/') + folderName(device);
}

} // namespace

ImageOperations::ImageOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                                 const DeviceLogins &logins, UpgradeCheck isUpgradingAt,
                                 const CurrentSession &session, BackEndSignals &backEndSignals)
    : m_store(std::move(store)), m_libraries(std::move(libraries)), m_logins(logins),
      m_isUpgradingAt(std::move(isUpgradingAt)), m_session(session), m_signals(backEndSignals)
{
}

ImageOperations::~ImageOperations() = default;

void ImageOperations::cancelSnapshots()
{
    m_snapshots.reset();
}

void ImageOperations::takeSnapshots(const QString &kind, int channel, const QString &address)
{
    if (kind != allChannels && kind != oneChannel)
        return;
    if (!m_snapshots) {
        m_snapshots = std::make_unique<SnapThread>();
        QObject::connect(m_snapshots.get(), &SnapThread::captured, m_signals.receiver(),
                         [this](const QString &taken, int number, const QString &path,
                                const QString &message) { noteSnapshot(taken, number, path, message); });
    }
    m_snapshots->take(snapTask(kind, kind == oneChannel ? channel : -1, address));
}

SnapTask ImageOperations::snapTask(const QString &kind, int onlyChannel, const QString &address) const
{
    return {.libraries = m_libraries,
            .kind = kind,
            .folder = snapshotFolder(address),
            .isDeviceCurrent =
                [this, generation = m_session.deviceGeneration()] {
                    return m_session.deviceGeneration() == generation;
                },
            .sessionHandle = [this] { return m_session.sharedHandle(); },
            .channels =
                [libraries = m_libraries, handle = m_session.handle(),
                 channelCount = std::max(1, m_session.channelCount()), onlyChannel] {
                    const QList<bool> connected =
                        connectedChannels(ConfigSession(libraries, handle), channelCount);
                    if (onlyChannel >= 0)
                        return QList<SnapChannel>{{onlyChannel, connected.value(onlyChannel, true)}};
                    QList<SnapChannel> channels;
                    for (int channel = 0; channel < connected.size(); ++channel)
                        channels.append({channel, connected.at(channel)});
                    return channels;
                }};
}

QList<DeviceStep> ImageOperations::snapshotSteps(const QString &address)
{
    if (m_session.handle() == 0)
        return {};
    // The first step that runs queries which channels have a camera.
    struct Channels
    {
        std::once_flag asked;
        QList<SnapChannel> list;
    };
    const auto channels = std::make_shared<Channels>();
    QList<DeviceStep> steps;
    const int channelCount = std::max(1, m_session.channelCount()); // a device that reports none has one
    for (int number = 0; number < channelCount; ++number) {
        steps.append(
            [this, channels, number, task = snapTask(allChannels, -1, address)](const StepControl &control) {
                std::call_once(channels->asked, [&] { channels->list = task.channels(); });
                const SnapOutcome outcome =
                    takeSnapshot(task, channels->list.value(number, {.number = number}), control.stopToken());
                if (outcome.problem == SnapProblem::NoFrame && control.shouldEnd())
                    return StepOutcome{.result = resultCode(LoginResult::NotDone), .text = {}};
                noteSnapshot(allChannels, number, outcome.path, outcome.message);
                return StepOutcome{.result = snapResult(outcome.problem), .text = outcome.reason};
            });
    }
    return steps;
}

DeviceStep ImageOperations::imageStep(const ImageOrder &order)
{
    const QJsonObject row = m_store->rowAt(order.ipport);
    const QJsonValue state = row.value(DeviceRowKey::state);
    return [this, order, account = m_logins.accountOf(row),
            isInitialised = !state.isBool() || state.toBool()](const StepControl &control) {
        if (!isInitialised) // an uninitialised device accepts no login
            return StepOutcome{.result = resultCode(LoginResult::NotInitialised), .text = {}};
        if (!order.isBeforeUpgrade && m_isUpgradingAt(order.ipport)) // requests could disturb the upgrade
            return StepOutcome{.result = resultCode(LoginResult::Upgrading), .text = {}};
        const SecureLogin login =
            secureLogin(m_libraries.net.get(), order.ipport, account.account, account.password);
        if (login.result != LoginResult::Success)
            return StepOutcome{.result = resultCode(login.result), .text = {}};
        const UntakenLogin end(m_libraries.net, login);
        return takeImages(order, login, control);
    };
}

StepOutcome ImageOperations::takeImages(const ImageOrder &order, const SecureLogin &login,
                                        const StepControl &control) const
{
    const ConfigSession session(m_libraries, login.handle);
    QList<SnapChannel> channels;
    if (order.onlyChannel >= 0) {
        const QList<bool> connected = connectedChannels(session, login.channelCount);
        channels.append({order.onlyChannel, connected.value(order.onlyChannel, true)});
    } else {
        const int count = std::max(1, login.channelCount); // a device that reports no channels has one
        const int most = std::clamp(order.mostChannels, 1, ImageOrder::maximumChannels);
        const QVariantList found = liveChannels(session, std::min(count, most));
        for (const QVariant &channel : found) {
            const QVariantMap values = channel.toMap();
            channels.append(
                {values.value(ChannelKey::channel).toInt(), values.value(ChannelKey::connected).toBool()});
        }
        if (order.found)
            order.found(found, count);
    }

    // Images of many devices at the same time are slow: more tries, until the first channel fails.
    SnapTask task = {.libraries = m_libraries,
                     .kind = {},
                     .folder = order.folder,
                     .isDeviceCurrent = [] { return true; },
                     .sessionHandle = [handle = login.handle] { return handle; },
                     .channels = {},
                     .tries = order.tries > 0 ? order.tries : 4 * snapTries};
    StepOutcome failure = {.result = resultCode(LoginResult::NotDone), .text = {}};
    int failures = 0;
    for (const SnapChannel &channel : std::as_const(channels)) {
        if (control.shouldEnd())
            return {.result = resultCode(LoginResult::NotDone), .text = {}};
        const SnapOutcome outcome = takeSnapshot(task, channel, control.stopToken());
        if (outcome.problem == SnapProblem::NoFrame)
            task.tries = std::min(task.tries, snapTries);
        else
            control.noteProgress(); // each image restarts the deadline: a recorder has many channels
        if (outcome.problem != SnapProblem::None && ++failures == 1)
            failure = {.result = snapResult(outcome.problem), .text = missingImageText(outcome)};
        if (order.taken && !(outcome.problem == SnapProblem::NoFrame && control.shouldEnd()))
            order.taken(channel.number, outcome.path.mid(QStringLiteral("file:///").size()),
                        missingImageText(outcome));
    }
    if (failures == channels.size())
        return failure;
    return {.result = resultCode(LoginResult::Success),
            .text = failures > 0 ? tr("%n 个通道没有图像", nullptr, failures) : QString()};
}

QString ImageOperations::takeQuickImage(const sdk::SdkLibraries &libraries, qint64 handle, int channel,
                                        const QString &folder, int tries)
{
    const SnapTask task = {.libraries = libraries,
                           .kind = {},
                           .folder = folder,
                           .isDeviceCurrent = [] { return true; },
                           .sessionHandle = [handle] { return handle; },
                           .channels = {},
                           .tries = tries};
    return takeSnapshot(task, {.number = channel}, {}).path.mid(QStringLiteral("file:///").size());
}

OwnImage ImageOperations::takeOwnImage(const sdk::SdkLibraries &libraries, const OwnImageOrder &order,
                                       const StepControl &control)
{
    const QList<bool> connected =
        connectedChannels(ConfigSession(libraries, order.handle), order.channelCount);
    const SnapTask task = {.libraries = libraries,
                           .kind = {},
                           .folder = snapshotFolder(order.folder),
                           .isDeviceCurrent = [] { return true; },
                           .sessionHandle = [handle = order.handle] { return handle; },
                           .channels = {}};
    const SnapOutcome outcome =
        takeSnapshot(task, {.number = order.channel, .connected = connected.value(order.channel, true)},
                     control.stopToken());
    return {.path = outcome.path, .message = outcome.message};
}

void ImageOperations::noteSnapshot(const QString &kind, int channel, const QString &path,
                                   const QString &message)
{
    if (kind == allChannels)
        m_signals.emitNow<&CDeviceBase::signalSnapPictureToFile>(channel, path, message);
    else
        m_signals.emitNow<&CDeviceBase::signalSnapPictureToFileAgain>(channel, path, message);
}
