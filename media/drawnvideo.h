#pragma once

#include "media/currentframe.h"
#include "media/drawingerror.h"
#include "media/viewgeometry.h"

/// The part of an item that ItemRender draws. The item is a QQuickFramebufferObject and implements this
/// interface. ItemRender calls the functions on the render thread while the main thread is blocked, except
/// setDrawingError().
class DrawnVideo
{
public:
    [[nodiscard]] virtual const ViewGeometry &geometry() const = 0; ///< zoom and pan
    [[nodiscard]] virtual FrameFill frameFill() const = 0;          ///< how a frame fills the item
    [[nodiscard]] virtual CurrentFrame &currentFrame() = 0;         ///< the latest decoded frame
    /// The error of the last setDrawingError(); None before the first one.
    [[nodiscard]] virtual DrawingError drawingError() const = 0;
    /// Called on the main thread when the error differs from drawingError(). None: the frame is drawn again,
    /// or there is no frame.
    virtual void setDrawingError(DrawingError error) = 0;

protected:
    DrawnVideo() = default;
    DrawnVideo(const DrawnVideo &) = default;
    DrawnVideo &operator=(const DrawnVideo &) = default;
    ~DrawnVideo() = default; // not deleted as a DrawnVideo
};
