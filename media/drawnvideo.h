#pragma once

#include "media/currentframe.h"
#include "media/drawingerror.h"
#include "media/viewgeometry.h"

/// The part of an item that ItemRender draws. The item implements it. ItemRender calls the functions on the
/// render thread while the main thread is blocked, except setDrawingError().
class DrawnVideo
{
public:
    [[nodiscard]] virtual const ViewGeometry &geometry() const = 0;
    [[nodiscard]] virtual FrameFill frameFill() const = 0;
    [[nodiscard]] virtual CurrentFrame &currentFrame() = 0;
    [[nodiscard]] virtual DrawingError drawingError() const = 0;
    /// Main thread.
    virtual void setDrawingError(DrawingError error) = 0;

protected:
    DrawnVideo() = default;
    DrawnVideo(const DrawnVideo &) = default;
    DrawnVideo &operator=(const DrawnVideo &) = default;
    ~DrawnVideo() = default; // not deleted as a DrawnVideo
};
