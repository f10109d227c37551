// Zoom, pan and aspect ratio of a live view.
#pragma once

#include <QMatrix4x4>
#include <QPointF>
#include <QSizeF>

#include <cstdint>

/// Zoom and pan. The content is the image that fills the view at level 0, with the bars next to the frame.
/// The view shows a section of the content. The section has 1 / scale() of the content's width and height,
/// and never extends beyond the content. Not thread-safe.
class ViewGeometry
{
public:
    static constexpr std::int32_t maximumLevel = 20;

    [[nodiscard]] std::int32_t level() const { return m_level; } ///< 0 to maximumLevel
    [[nodiscard]] float scale() const { return m_scale; }        ///< 1.2 to the power of the level
    /// Centre of the section, from 0 (left or top) to 1 (right or bottom of the content).
    [[nodiscard]] QPointF centre() const { return m_centre; }

    /// Moves the content by a distance in pixels of the view: positive values move it right and down. The
    /// section stops at the edges of the content. No effect if the view is empty or a value is not finite.
    void drag(double deltaX, double deltaY, const QSizeF &view);

    /// Sets the level, clamped to its range. The point of the content under `anchor`, in pixels of the view,
    /// stays there unless the section would extend beyond the content.
    void zoomTo(std::int32_t level, const QPointF &anchor, const QSizeF &view);

    /// Changes the level by `steps` as zoomTo(). `steps` is rounded to a whole number, and to 1 or -1 if it
    /// is smaller. No effect for 0 and NaN.
    void zoomBy(double steps, const QPointF &anchor, const QSizeF &view);

private:
    void keepInside();

    std::int32_t m_level = 0;
    float m_scale = 1.0F;
    QPointF m_centre = {0.5, 0.5};
};

/// How a frame fills the view.
enum class FrameFill
{
    Stretch,           ///< completely
    PreserveAspectFit, ///< centred, as large as possible with the frame's aspect ratio
};

/// The fraction of the view's width and height, from 0 to 1, that a frame fills at level 0; 1 x 1 if the
/// frame or the view is empty. Both sizes have the same unit.
[[nodiscard]] QSizeF filledPart(FrameFill fill, const QSizeF &frame, const QSizeF &view);

/// Matrices for a square from -1 to 1 with upward y. They are applied as project * model: `model` zooms and
/// pans, `project` applies the aspect ratio.
struct ViewMatrices
{
    QMatrix4x4 model;
    QMatrix4x4 project;
};

/// `filled` is the result of filledPart().
[[nodiscard]] ViewMatrices viewMatrices(const ViewGeometry &geometry, const QSizeF &filled);
