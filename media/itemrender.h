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
    /// Copies the geometry and uploads the current frame if that was not uploaded before. Reports a change of
    /// the drawing error by a queued call of DrawnVideo::setDrawingError(). `item` must be a DrawnVideo.
    void synchronize(QQuickFramebufferObject *item) override;

    /// Draws the uploaded frame; transparent without a complete frame and after a drawing error.
    void render() override;

private:
    FramePainter m_painter;
    ViewGeometry m_geometry;
    FrameFill m_fill = FrameFill::PreserveAspectFit;
    std::uint64_t m_uploadedNumber = 0; ///< of the frame in the textures; 0 for none
    QSize m_viewSize;                   ///< in device pixels
    bool m_hasFrame = false;
};
