#include "media/viewgeometry.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float zoomStep = 1.2F;

/// The nearest centre whose section, `half` to either side, is within 0 to 1.
float insideCentre(float centre, float half)
{
    if (centre - half < 0.0F)
        return half;
    if (centre + half > 1.0F)
        return 1.0F - half;
    return centre;
}

} // namespace

void ViewGeometry::drag(double deltaX, double deltaY, const QSizeF &view)
{
    if (view.width() <= 0 || view.height() <= 0 || !std::isfinite(deltaX) || !std::isfinite(deltaY))
        return;
    const float x = static_cast<float>(m_centre.x()) -
                    static_cast<float>(deltaX) / m_scale / static_cast<float>(view.width());
    const float y = static_cast<float>(m_centre.y()) -
                    static_cast<float>(deltaY) / m_scale / static_cast<float>(view.height());
    m_centre = {x, y};
    keepInside();
}

void ViewGeometry::zoomTo(std::int32_t level, const QPointF &anchor, const QSizeF &view)
{
    const std::int32_t wanted = std::clamp(level, 0, maximumLevel);
    if (wanted == m_level) {
        keepInside();
        return;
    }
    const float oldScale = m_scale;
    m_level = wanted;
    m_scale = std::pow(zoomStep, static_cast<float>(wanted));
    const double growth = m_scale / oldScale - 1.0F;
    drag(growth * (view.width() / 2 - anchor.x()), growth * (view.height() / 2 - anchor.y()), view);
    keepInside(); // drag() does not do it in an empty view
}

void ViewGeometry::zoomBy(double steps, const QPointF &anchor, const QSizeF &view)
{
    if (!(std::abs(steps) > 0)) // 0 or NaN
        return;
    const double levels = std::max(std::round(std::min(std::abs(steps), double(maximumLevel))), 1.0);
    zoomTo(m_level + static_cast<std::int32_t>(std::copysign(levels, steps)), anchor, view);
}

void ViewGeometry::keepInside()
{
    const float half = 0.5F / m_scale;
    m_centre = {insideCentre(static_cast<float>(m_centre.x()), half),
                insideCentre(static_cast<float>(m_centre.y()), half)};
}

QSizeF filledPart(FrameFill fill, const QSizeF &frame, const QSizeF &view)
{
    if (fill == FrameFill::Stretch || frame.isEmpty() || view.isEmpty())
        return {1, 1};
    const QSizeF fitted = frame.scaled(view, Qt::KeepAspectRatio);
    return {fitted.width() / view.width(), fitted.height() / view.height()};
}

ViewMatrices viewMatrices(const ViewGeometry &geometry, const QSizeF &filled)
{
    // The content is the view with the frame in its centre, including the bars next to the frame, so that
    // zoom keeps the point under the pointer. A point p of the square is mapped to scale * (filled * p + 1 -
    // 2 * centre).
    const auto width = static_cast<float>(filled.width());
    const auto height = static_cast<float>(filled.height());
    const float scale = geometry.scale();
    const auto shiftX = static_cast<float>(1 - 2 * geometry.centre().x());
    const auto shiftY = static_cast<float>(1 - 2 * geometry.centre().y());
    ViewMatrices matrices;
    matrices.model.translate(scale * shiftX / width, -scale * shiftY / height);
    matrices.model.scale(scale, scale);
    matrices.project.scale(width, height);
    return matrices;
}
