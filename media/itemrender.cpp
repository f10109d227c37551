#include "media/itemrender.h"

#include "media/videoitem.h"

#include <QOpenGLFramebufferObject>
#include <QQuickOpenGLUtils>

void ItemRender::synchronize(QQuickFramebufferObject *item)
{
    auto *video = static_cast<VideoItem *>(item);
    m_geometry = video->geometry();
    m_fill = video->fillMode() == VideoItem::Stretch ? PictureFill::Stretch : PictureFill::PreserveAspectFit;
    // The next picture waits until this one is in the textures: so long its bytes stay.
    PictureProblem problem = PictureProblem::None;
    video->currentPicture().lookAt([this, &problem](DecodedPicture &picture) {
        m_hasPicture = picture.isWhole();
        const QSize size(picture.width, picture.height);
        if (m_hasPicture && (picture.isSizeStale || m_painter.pictureSize() != size)) {
            m_painter.setPictureSize(size);
            m_shownNumber = 0;
        }
        if (m_hasPicture)
            problem = m_painter.problem();
        m_hasPicture = m_hasPicture && problem == PictureProblem::None;
        picture.isSizeStale = false;
        if (m_hasPicture && picture.number != m_shownNumber) {
            m_painter.upload(picture);
            m_shownNumber = picture.number;
        }
    });
    if (video->pictureProblem() != problem) {
        // Not at once: the scene's thread waits, and its properties change only on it.
        QMetaObject::invokeMethod(
            video, [video, problem] { video->setPictureProblem(problem); }, Qt::QueuedConnection);
    }
    QQuickOpenGLUtils::resetOpenGLState();
}

void ItemRender::render()
{
    m_viewSize = framebufferObject()->size();
    m_painter.clear(m_viewSize);
    if (m_hasPicture) {
        const QSizeF filled = filledPart(m_fill, m_painter.pictureSize(), m_viewSize);
        m_painter.draw(viewMatrices(m_geometry, filled));
    }
    QQuickOpenGLUtils::resetOpenGLState();
}
