#include "media/itemrender.h"

#include "media/drawnvideo.h"

#include <QOpenGLFramebufferObject>
#include <QQuickOpenGLUtils>

void ItemRender::synchronize(QQuickFramebufferObject *item)
{
    auto *video = dynamic_cast<DrawnVideo *>(item);
    m_geometry = video->geometry();
    m_fill = video->frameFill();
    // The bytes are valid while the lock is held, so the upload is inside.
    DrawingError error = DrawingError::None;
    video->currentFrame().read([this, &error](VideoFrame &frame) {
        m_hasFrame = frame.isComplete();
        const QSize size(frame.width, frame.height);
        if (m_hasFrame && (frame.isSizeStale || m_painter.frameSize() != size)) {
            m_painter.setFrameSize(size);
            m_uploadedNumber = 0;
        }
        if (m_hasFrame)
            error = m_painter.error();
        m_hasFrame = m_hasFrame && error == DrawingError::None;
        frame.isSizeStale = false;
        if (m_hasFrame && frame.number != m_uploadedNumber) {
            m_painter.upload(frame);
            m_uploadedNumber = frame.number;
        }
    });
    if (video->drawingError() != error) {
        // Queued: properties change on the main thread, which is blocked now.
        QMetaObject::invokeMethod(
            item, [video, error] { video->setDrawingError(error); }, Qt::QueuedConnection);
    }
    QQuickOpenGLUtils::resetOpenGLState();
}

void ItemRender::render()
{
    m_viewSize = framebufferObject()->size();
    m_painter.clear(m_viewSize);
    if (m_hasFrame) {
        const QSizeF filled = filledPart(m_fill, m_painter.frameSize(), m_viewSize);
        m_painter.draw(viewMatrices(m_geometry, filled));
    }
    QQuickOpenGLUtils::resetOpenGLState();
}
