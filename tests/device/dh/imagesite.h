// A simulated site whose streams are decoded, for the tests of images.
#pragma once

#include "device/dh/devicedh.h"
#include "device/registry/devicefactory.h"
#include "device/store/devicestore.h"
#include "media/videoitem.h"
#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"
#include "tests/device/dh/scenedevices.h"

/// Base class of tests. The process-wide factory works on the site, in real time, since video is decoded.
/// Main thread.
class ImageSite
{
protected:
    /// Creates a site with these devices. Called before the factory is first used.
    void openSite(const QList<sdk::demo::SceneDevice> &devices)
    {
        sdk::demo::Scene scene;
        scene.devices = devices;
        m_site = sdk::demo::DemoSite::create(scene, std::make_shared<sdk::SystemClock>());
        sdk::SdkLibraries libraries = m_site->libraries();
        libraries.decoder = std::make_shared<sdk::ffmpeg::FfmpegDecoderLibrary>();
        VideoItem::registerLibraries(libraries);
        m_store = std::make_shared<DeviceStore>(libraries.clock);
        CDeviceFactory::registerBackEnd(QStringLiteral("dh"), [libraries, store = m_store] {
            return std::make_shared<CDeviceDH>(store, libraries, [] { return SearchSettings(); });
        });
    }
    /// Deletes the process-wide factory, then the site.
    void closeSite()
    {
        CDeviceFactory::deleteInstance();
        VideoItem::registerLibraries({});
        m_site.reset();
    }
    [[nodiscard]] static CDeviceFactory *factory() { return CDeviceFactory::getinstance(); }

    std::shared_ptr<sdk::demo::DemoSite> m_site;
    std::shared_ptr<DeviceStore> m_store; ///< the device list
};
