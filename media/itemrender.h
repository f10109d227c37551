#pragma once

#include "media/internal/framepainter.h"
#include "media/viewgeometry.h"

#include <QQuickFramebufferObject>
#include <QSize>

#include <cstdint>

/// Draws an item that implements DrawnVideo. Lives on the render thread; accesses the item only in
/// synchronize(), while the main thread is blocked.
class ItemRender : public QQuickFramebufferObject::Renderer
{
public:
    void synchronize(QQuickFramebufferObject *item) override;
    void render() override;

private:
    FramePainter m_painter;
    ViewGeometry m_geometry;
    FrameFill m_fill = FrameFill::PreserveAspectFit;
    std::uint64_t m_uploadedNumber = 0; ///< of the frame in the textures; 0 for none
    QSize m_viewSize;                   ///< in device pixels
    bool m_hasFrame = false;
};
