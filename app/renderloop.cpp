#include "app/renderloop.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace {

bool isRenderedInSoftware()
{
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    if (!surface.isValid() || !context.create() || !context.makeCurrent(&surface))
        return false;
    const auto *renderer = reinterpret_cast<const char *>(context.functions()->glGetString(GL_RENDERER));
    return QByteArray(renderer).contains("llvmpipe");
}

} // namespace

void avoidRenderThreadsInSoftware()
{
    constexpr const char *loop = "QSG_RENDER_LOOP";
    if (!qEnvironmentVariableIsSet(loop) && isRenderedInSoftware())
        qputenv(loop, "basic");
}
