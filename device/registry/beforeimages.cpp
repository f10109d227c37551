#include "device/registry/beforeimages.h"

#include <QFileInfo>

#include <algorithm>

QString BeforeImages::claim(const QString &device, int channel)
{
    const std::lock_guard lock(m_mutex);
    const std::pair key(device, channel);
    if (m_claimed.contains(key) || m_claimed.size() >= maximumImages || m_bytes >= maximumBytes)
        return {};
    if (!m_folder)
        m_folder.emplace();
    if (!m_folder->isValid())
        return {};
    m_claimed.insert(key);
    const auto number = static_cast<int>(m_folderNumbers.size());
    const int folder = m_folderNumbers.contains(device) ? m_folderNumbers.value(device) : number;
    m_folderNumbers.insert(device, folder);
    return m_folder->filePath(QString::number(folder));
}

void BeforeImages::add(const QString &device, int channel, const QString &path)
{
    const std::lock_guard lock(m_mutex);
    const QFileInfo file(path);
    m_bytes += file.size();
    QList<Image> &images = m_images[device];
    const auto next = std::find_if(images.cbegin(), images.cend(),
                                   [channel](const Image &image) { return image.channel > channel; });
    images.insert(next, {.channel = channel, .path = path, .time = QDateTime::currentDateTime()});
}

QList<BeforeImages::Image> BeforeImages::of(const QString &device) const
{
    const std::lock_guard lock(m_mutex);
    return m_images.value(device);
}
