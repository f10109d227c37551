#pragma once

#include "media/currentpicture.h"
#include "media/pictureproblem.h"
#include "media/viewgeometry.h"

#include <QOpenGLBuffer>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>
#include <QOpenGLVertexArrayObject>
#include <QSize>

#include <array>

/// Draws pictures in planar YUV 4:2:0 by OpenGL, in whatever context is current: of the desktop, its core
/// profile, or ES. Every operation needs that context, and so does the destructor. States are left changed.
class PicturePainter : protected QOpenGLFunctions
{
public:
    PicturePainter() = default;
    ~PicturePainter();

    PicturePainter(const PicturePainter &) = delete;
    PicturePainter &operator=(const PicturePainter &) = delete;

    /// Creates the textures again. There are none if the graphics driver does not support the size.
    void setPictureSize(const QSize &size);
    [[nodiscard]] QSize pictureSize() const { return m_size; }
    [[nodiscard]] bool hasTextures() const { return m_textures.front() != 0; }

    /// Of a picture of that size.
    [[nodiscard]] PictureProblem problem() const;

    /// Takes a picture of that size.
    void upload(const DecodedPicture &picture);

    /// Makes the whole view transparent; draw() draws into it.
    void clear(const QSize &view);
    void draw(const ViewMatrices &matrices);

private:
    void begin();
    void buildProgram();
    void buildSquare();
    void deleteTextures();

    bool m_hasBegun = false;
    bool m_canDraw = false; ///< the shaders were there and in order
    int m_internalFormat = 0;
    unsigned m_format = 0;
    QSize m_size;
    sdk::PictureColour m_colour = sdk::PictureColour::Bt601Limited;
    std::array<unsigned, 3> m_textures = {}; ///< Y, U, V; 0 for none
    QOpenGLShaderProgram m_program;
    QOpenGLVertexArrayObject m_vertexArray;
    QOpenGLBuffer m_square;
};
