#pragma once

#include "media/internal/picturepainter.h"
#include "media/viewgeometry.h"

#include <QQuickFramebufferObject>
#include <QSize>

#include <cstdint>

/// Draws a VideoItem. Lives on the scene's render thread; sees the item only while the scene's thread waits.
class ItemRender : public QQuickFramebufferObject::Renderer
{
public:
    void synchronize(QQuickFramebufferObject *item) override;
    void render() override;

private:
    PicturePainter m_painter;
    ViewGeometry m_geometry;
    PictureFill m_fill = PictureFill::PreserveAspectFit;
    std::uint64_t m_shownNumber = 0; ///< of the picture in the textures
    QSize m_viewSize;                ///< in pixels of the screen
    bool m_hasPicture = false;
};
