#pragma once

#include "media/currentframe.h"
#include "media/drawingerror.h"
#include "media/viewgeometry.h"

#include <QOpenGLBuffer>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>
#include <QOpenGLVertexArrayObject>
#include <QSize>

#include <array>

/// Draws frames in planar YUV 4:2:0 with OpenGL. The shaders are files in the folder "Shaders" of the working
/// directory or, if missing there, of the application. All functions and the destructor require the same
/// current context, which may be of desktop OpenGL, its core profile or ES. They do not restore the OpenGL
/// state. The order is setFrameSize() for the first frame and after a change of the size, upload() for each
/// frame, then clear() and draw() for each repaint.
class FramePainter : protected QOpenGLFunctions
{
public:
    FramePainter() = default;
    ~FramePainter();

    FramePainter(const FramePainter &) = delete;
    FramePainter &operator=(const FramePainter &) = delete;

    /// Replaces the textures by textures for frames of this size in pixels. A size that exceeds the driver's
    /// texture size leaves no textures; a warning is logged.
    void setFrameSize(const QSize &size);
    /// The last setFrameSize(), also if it has created no textures; invalid before the first one.
    [[nodiscard]] QSize frameSize() const { return m_size; }
    [[nodiscard]] bool hasTextures() const { return m_textures.front() != 0; }

    /// Whether frames of frameSize() can be drawn. To be called after setFrameSize().
    [[nodiscard]] DrawingError error() const;

    /// Copies a frame of frameSize() to the textures. Requires hasTextures() and a complete frame.
    void upload(const VideoFrame &frame);

    /// Sets the viewport to `view`, in device pixels, and makes it transparent.
    void clear(const QSize &view);

    /// Draws the last uploaded frame into the viewport of clear(). No effect without valid shaders. Requires
    /// an uploaded frame.
    void draw(const ViewMatrices &matrices);

private:
    void initialize();
    void buildProgram();
    void buildSquare();
    void deleteTextures();

    bool m_isInitialized = false;
    bool m_canDraw = false;   ///< the shaders are valid
    int m_internalFormat = 0; ///< of the textures
    unsigned m_format = 0;    ///< of the uploaded bytes
    QSize m_size;
    sdk::FrameColour m_colour = sdk::FrameColour::Bt601Limited;
    std::array<unsigned, 3> m_textures = {}; ///< Y, U, V; 0 for none
    QOpenGLShaderProgram m_program;
    QOpenGLVertexArrayObject m_vertexArray;
    QOpenGLBuffer m_square;
};
