#include "commandline/batchrun.h"
#include "commandline/commandfunctions.h"
#include "commandline/devicechoice.h"
#include "commandline/outputfolder.h"
#include "commandline/settingsubject.h"
#include "device/registry/devicefamily.h"
#include "device/registry/deviceimages.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <mutex>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

struct SavedImage
{
    int channel = 0; ///< from 0
    QString path;    ///< empty on failure
    QString message;
    bool isSkipped = false; ///< the channel has no camera
};

/// Receives the images on the threads of the steps.
class SavedImages
{
public:
    /// `channels` are maps with the keys of ChannelKey.
    void setChannels(const QString &ipport, const QVariantList &channels)
    {
        const std::lock_guard lock(m_mutex);
        for (const QVariant &value : channels) {
            const QVariantMap channel = value.toMap();
            if (!channel.value(ChannelKey::connected, true).toBool())
                m_unconnected.insert({ipport, channel.value(ChannelKey::channel).toInt()});
        }
    }

    void add(const QString &ipport, SavedImage image)
    {
        const std::lock_guard lock(m_mutex);
        image.isSkipped = m_unconnected.contains({ipport, image.channel});
        m_images[ipport].append(image);
    }

    [[nodiscard]] QList<SavedImage> of(const QString &ipport) const
    {
        const std::lock_guard lock(m_mutex);
        return m_images.value(ipport);
    }

private:
    mutable std::mutex m_mutex;
    QHash<QString, QList<SavedImage>> m_images;  ///< by address and port
    QSet<std::pair<QString, int>> m_unconnected; ///< channels without a camera
};

/// Address and port as the name of a folder.
QString folderOf(const QString &ipport)
{
    QString name = ipport;
    for (const QChar sign : {u':', u'[', u']', u'/', u'%'})
        name.replace(sign, u'_');
    return name;
}

BatchPlan snapshotPlan(const CommandContext &context, const DeviceChoice &choice, const QString &folder,
                       const std::shared_ptr<SavedImages> &images, int onlyChannel)
{
    BatchPlan plan = {.family = dhFamily,
                      .title = u"snapshot"_s,
                      .devices = batchDevices(context.factory, dhFamily, choice.identities()),
                      .policy = context.batches.usualPolicy(),
                      .isByAddress = true,
                      .canBeRetried = false,
                      .marksFailed = false,
                      .changesDevices = false};
    plan.stepOf = [&factory = context.factory, folder, images, onlyChannel](const BatchDevice &device) {
        return factory.backEnd(dhFamily)->imageStep(
            {.ipport = device.ipport,
             .folder = folder + u'/' + folderOf(device.ipport),
             .onlyChannel = onlyChannel,
             .found =
                 [images, ipport = device.ipport](const QVariantList &channels, int /*channelCount*/) {
                     images->setChannels(ipport, channels);
                 },
             .taken =
                 [images, ipport = device.ipport](int channel, const QString &path, const QString &message) {
                     images->add(ipport, {.channel = channel, .path = path, .message = message});
                 }});
    };
    return plan;
}

/// A device without an image has one record with its result.
int printImages(const CommandContext &context, const Batch &batch, const SavedImages &images,
                const QStringList &missing)
{
    RecordTable table({u"device"_s, u"mac"_s, u"name"_s, u"channel"_s, u"file"_s, u"result"_s, u"text"_s});
    bool hasFailures = !missing.isEmpty();
    for (const Batch::Entry &entry : batch.entries()) {
        const BatchDevice &device = entry.device;
        const QList<SavedImage> saved = images.of(device.ipport);
        hasFailures = hasFailures || entry.outcome.result != resultCode(LoginResult::Success);
        for (const SavedImage &image : saved) {
            hasFailures = hasFailures || (image.path.isEmpty() && !image.isSkipped);
            table.add({device.ipport, macOf(device), device.title, image.channel + 1, image.path,
                       image.isSkipped        ? u"skipped"_s
                       : image.path.isEmpty() ? u"failed"_s
                                              : u"done"_s,
                       image.message});
        }
        if (saved.isEmpty())
            table.add({device.ipport, macOf(device), device.title, QVariant(), QString(),
                       outcomeWord(entry.outcome.result), outcomeText(entry.outcome)});
    }
    for (const QString &name : missing)
        table.add({name, QString(), QString(), QVariant(), QString(), u"failed"_s, u"not found"_s});
    context.print(table);
    return hasFailures ? SomeFailed : AllDone;
}

} // namespace

int runSnapshot(CommandContext &context)
{
    const std::optional<int> channel = channelOf(context.arguments);
    if (!channel)
        return context.fail(UsageError, u"--channel is a number from 1"_s);
    if (const int exitCode = setAccount(context); exitCode != AllDone)
        return exitCode;
    const OutputFolder folder = outputFolder(context);
    if (!folder.error.isEmpty())
        return context.fail(NothingDone, folder.error);
    DeviceChoice choice;
    if (const int exitCode = findDevices(context, choice); exitCode != AllDone)
        return exitCode;
    const auto images = std::make_shared<SavedImages>();
    const int onlyChannel = context.arguments.has("channel"_L1) ? *channel : -1;
    ResultTable devices;
    const int exitCode = runBatch(
        context,
        [&] {
            return context.batches.start(snapshotPlan(context, choice, folder.path, images, onlyChannel));
        },
        devices);
    return exitCode != AllDone ? exitCode
                               : printImages(context, *context.batches.current(), *images, choice.missing);
}

} // namespace commandline
