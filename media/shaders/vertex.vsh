attribute vec4 qt_Vertex;
attribute vec2 texCoord;

uniform mat4 u_modelMatrix;   // zoom and pan
uniform mat4 u_viewMatrix;
uniform mat4 u_projectMatrix; // aspect ratio of the frame in the view
uniform vec2 chromaPart;      // fraction of the samples of U and V that the frame covers

varying vec2 lumaPoint;
varying vec2 chromaPoint;

void main()
{
    lumaPoint = texCoord;
    chromaPoint = texCoord * chromaPart;
    gl_Position = u_projectMatrix * u_viewMatrix * u_modelMatrix * qt_Vertex;
}
