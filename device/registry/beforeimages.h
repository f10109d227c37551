// Images of channels from before a change.
#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QTemporaryDir>

#include <mutex>
#include <optional>
#include <utility>

/// Images of channels as they were before the first change since the start of the application. The files are
/// in a temporary folder, which the first claim() creates and the destructor removes. A device is identified
/// by the name of its row. Thread-safe.
class BeforeImages
{
public:
    /// Maximum number of requested images, successful or not. Later changes have no image from before.
    static constexpr qsizetype maximumImages = 200;
    /// Maximum number of bytes of all files. No further image is requested once they are exceeded.
    static constexpr qint64 maximumBytes = qint64{128} * 1024 * 1024;
    /// Maximum number of attempts to get a frame, one every 100 ms: the change waits for up to 2 s.
    static constexpr int maximumTries = 20;

    struct Image
    {
        int channel = 0; ///< from 0
        QString path;
        QDateTime time; ///< local time of add()
    };

    /// Requests the image of a channel (from 0). Returns the absolute path of the folder for the file
    /// "<channel>.jpg"; the caller must create it. Empty if the image was requested before, successfully or
    /// not: after the first change there is no image from before any more. Also empty if a maximum is
    /// reached, or the temporary folder could not be created.
    [[nodiscard]] QString claim(const QString &device, int channel);

    /// The requested image was written to the file `path`.
    void add(const QString &device, int channel, const QString &path);

    /// The images of a device, by channel.
    [[nodiscard]] QList<Image> of(const QString &device) const;

private:
    mutable std::mutex m_mutex;
    std::optional<QTemporaryDir> m_folder; ///< nullopt before the first image
    QSet<std::pair<QString, int>> m_claimed;
    QHash<QString, int> m_folderNumbers; ///< by device
    QHash<QString, QList<Image>> m_images;
    qint64 m_bytes = 0;
};
