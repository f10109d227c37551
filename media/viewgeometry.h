// Which part of a picture a view shows, and where.
#pragma once

#include <QMatrix4x4>
#include <QPointF>
#include <QSizeF>

#include <cstdint>

/// Zoom and pan. The view shows a window of the scene that it shows whole at level 0; the centre of the
/// window is in units of that scene, 0 to 1 from its left and its top.
class ViewGeometry
{
public:
    static constexpr std::int32_t maximumLevel = 20;

    [[nodiscard]] std::int32_t level() const { return m_level; }
    [[nodiscard]] float scale() const { return m_scale; } ///< 1.2 to the power of the level
    [[nodiscard]] QPointF centre() const { return m_centre; }

    /// Moves the scene by so many pixels of the view. Does nothing in an empty view.
    void drag(double deltaX, double deltaY, const QSizeF &view);

    /// Sets the level, which ends at its limits; the point of the scene under `anchor`, in pixels of the
    /// view, stays where it is as far as the window's limits let it.
    void zoomTo(std::int32_t level, const QPointF &anchor, const QSizeF &view);

    /// By so many levels, at least by one; not at all for 0.
    void zoomBy(double steps, const QPointF &anchor, const QSizeF &view);

private:
    void keepInside();

    std::int32_t m_level = 0;
    float m_scale = 1.0F;
    QPointF m_centre = {0.5, 0.5};
};

enum class PictureFill
{
    Stretch,           ///< the whole view
    PreserveAspectFit, ///< as large as goes into the view in the picture's own shape, in the middle
};

/// The part of the view's width and height that a picture fills; both 1 when either is empty.
[[nodiscard]] QSizeF filledPart(PictureFill fill, const QSizeF &picture, const QSizeF &view);

/// For a square from -1 to 1 with y upward: `model` brings zoom and pan, `project` the shape of the picture.
struct ViewMatrices
{
    QMatrix4x4 model;
    QMatrix4x4 project;
};
[[nodiscard]] ViewMatrices viewMatrices(const ViewGeometry &geometry, const QSizeF &filled);
