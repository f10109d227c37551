#include "media/internal/framepainter.h"

#include "media/logging.h"

#include <QCoreApplication>
#include <QFile>
#include <QOpenGLContext>

#include <array>

namespace {

// Constants that the headers of an ES system may lack.
constexpr int redFormat8 = 0x8229;     // GL_R8
constexpr unsigned redFormat = 0x1903; // GL_RED
constexpr int defaultUnpackAlignment = 4;

/// Whether the context supports GL_RED for textures with one channel. Core profiles support only GL_RED,
/// older contexts only GL_LUMINANCE.
bool hasRedTextures(const QOpenGLContext &context)
{
    return context.format().majorVersion() >= 3 ||
           context.hasExtension(context.isOpenGLES() ? "GL_EXT_texture_rg" : "GL_ARB_texture_rg");
}

/// The shader file in the working directory, otherwise the one in the folder of the application.
QString shaderPath(const QString &name)
{
    const QString path = QStringLiteral("./Shaders/") + name;
    return QFile::exists(path) ? path
                               : QCoreApplication::applicationDirPath() + QStringLiteral("/Shaders/") + name;
}

struct Corner
{
    std::array<float, 2> position; ///< y upward
    std::array<float, 2> texture;  ///< y downward, as the lines of a frame
};

constexpr std::array<Corner, 4> corners = {{
    {.position = {-1, -1}, .texture = {0, 1}},
    {.position = {1, -1}, .texture = {1, 1}},
    {.position = {-1, 1}, .texture = {0, 0}},
    {.position = {1, 1}, .texture = {1, 0}},
}};

} // namespace

FramePainter::~FramePainter()
{
    if (m_isInitialized)
        deleteTextures();
}

void FramePainter::initialize()
{
    if (m_isInitialized)
        return;
    m_isInitialized = true;
    initializeOpenGLFunctions();
    const bool red = hasRedTextures(*QOpenGLContext::currentContext());
    m_internalFormat = red ? redFormat8 : GL_LUMINANCE;
    m_format = red ? redFormat : GL_LUMINANCE;
    if (red && QOpenGLContext::currentContext()->isOpenGLES() &&
        QOpenGLContext::currentContext()->format().majorVersion() < 3) {
        m_internalFormat = static_cast<int>(redFormat); // ES 2 has no sized formats
    }
    buildProgram();
    buildSquare();
}

void FramePainter::buildProgram()
{
    const bool hasVertexShader =
        m_program.addShaderFromSourceFile(QOpenGLShader::Vertex, shaderPath(QStringLiteral("vertex.vsh")));
    if (!hasVertexShader)
        qCWarning(logMedia) << " add vertex shader file failed.";
    const bool hasFragmentShader = m_program.addShaderFromSourceFile(
        QOpenGLShader::Fragment, shaderPath(QStringLiteral("fragment.fsh")));
    if (!hasFragmentShader)
        qCWarning(logMedia) << " add fragment shader file failed.";
    if (!hasVertexShader || !hasFragmentShader)
        return;
    m_canDraw = m_program.link();
    if (!m_canDraw)
        qCWarning(logMedia) << "The shaders cannot be linked:" << m_program.log();
}

void FramePainter::buildSquare()
{
    m_vertexArray.create(); // optional: draw() sets the attributes each time
    m_square.create();
    m_square.bind();
    m_square.allocate(corners.data(), sizeof(corners));
    m_square.release();
}

void FramePainter::setFrameSize(const QSize &size)
{
    initialize();
    deleteTextures();
    m_size = size;
    GLint longestSide = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &longestSide);
    if (size.width() > longestSide || size.height() > longestSide) {
        qCWarning(logMedia) << "The graphics driver does not support frames of" << size;
        return;
    }
    const QSize chroma((size.width() + 1) / 2, (size.height() + 1) / 2);
    const std::array<QSize, 3> planes = {size, chroma, chroma};
    glGenTextures(static_cast<GLsizei>(m_textures.size()), m_textures.data());
    for (std::size_t plane = 0; plane < planes.size(); ++plane) {
        glBindTexture(GL_TEXTURE_2D, m_textures.at(plane));
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
        glTexImage2D(GL_TEXTURE_2D, 0, m_internalFormat, planes.at(plane).width(), planes.at(plane).height(),
                     0, m_format, GL_UNSIGNED_BYTE, nullptr);
    }
}

DrawingError FramePainter::error() const
{
    if (!m_canDraw)
        return DrawingError::NoShaders;
    return hasTextures() ? DrawingError::None : DrawingError::TooLarge;
}

void FramePainter::upload(const VideoFrame &frame)
{
    m_colour = frame.colour;
    const std::array<const std::uint8_t *, 3> planes = {frame.y(), frame.u(), frame.v()};
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    for (std::size_t plane = 0; plane < planes.size(); ++plane) {
        const bool isLuma = plane == 0;
        glBindTexture(GL_TEXTURE_2D, m_textures.at(plane));
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, isLuma ? frame.width : frame.chromaWidth(),
                        isLuma ? frame.height : frame.chromaHeight(), m_format, GL_UNSIGNED_BYTE,
                        planes.at(plane));
    }
    glPixelStorei(GL_UNPACK_ALIGNMENT, defaultUnpackAlignment);
}

void FramePainter::clear(const QSize &view)
{
    initialize();
    glViewport(0, 0, view.width(), view.height());
    glDisable(GL_BLEND);
    glDisable(GL_CULL_FACE);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_SCISSOR_TEST);
    glDisable(GL_STENCIL_TEST);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT);
}

void FramePainter::draw(const ViewMatrices &matrices)
{
    if (!m_canDraw)
        return;
    m_program.bind();
    m_program.setUniformValue("u_modelMatrix", matrices.model);
    m_program.setUniformValue("u_viewMatrix", QMatrix4x4());
    m_program.setUniformValue("u_projectMatrix", matrices.project);
    m_program.setUniformValue("pixFmt", static_cast<int>(m_colour));
    // With an odd number of pixels, the last sample of U and V covers one pixel instead of two.
    const auto coveredPart = [](int pixels) {
        return static_cast<float>(pixels) / static_cast<float>(pixels + pixels % 2);
    };
    m_program.setUniformValue("chromaPart", coveredPart(m_size.width()), coveredPart(m_size.height()));
    constexpr std::array<const char *, 3> samplers = {"tex_y", "tex_u", "tex_v"};
    for (std::size_t plane = 0; plane < samplers.size(); ++plane) {
        glActiveTexture(GL_TEXTURE0 + static_cast<unsigned>(plane));
        glBindTexture(GL_TEXTURE_2D, m_textures.at(plane));
        m_program.setUniformValue(samplers.at(plane), static_cast<int>(plane));
    }

    const QOpenGLVertexArrayObject::Binder vertexArray(&m_vertexArray);
    m_square.bind();
    for (const char *name : {"qt_Vertex", "texCoord"}) {
        const std::size_t offset =
            qstrcmp(name, "texCoord") == 0 ? offsetof(Corner, texture) : offsetof(Corner, position);
        m_program.enableAttributeArray(name);
        m_program.setAttributeBuffer(name, GL_FLOAT, static_cast<int>(offset), 2, sizeof(Corner));
    }
    glDrawArrays(GL_TRIANGLE_STRIP, 0, static_cast<GLsizei>(corners.size()));
    m_square.release();
    m_program.release();
    glActiveTexture(GL_TEXTURE0);
}

void FramePainter::deleteTextures()
{
    if (hasTextures())
        glDeleteTextures(static_cast<GLsizei>(m_textures.size()), m_textures.data());
    m_textures = {};
}
