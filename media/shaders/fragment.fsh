#ifdef GL_ES
#ifdef GL_FRAGMENT_PRECISION_HIGH
precision highp float;
#else
precision mediump float;
#endif
#endif

uniform sampler2D tex_y;
uniform sampler2D tex_u;
uniform sampler2D tex_v;
uniform int pixFmt; // 0: BT.601, Y from 16 to 235; 1: BT.601, Y from 0 to 255; 2 and 3: the same for BT.709

varying vec2 lumaPoint;
varying vec2 chromaPoint;

void main()
{
    float y = texture2D(tex_y, lumaPoint).r;
    float u = texture2D(tex_u, chromaPoint).r - 128.0 / 255.0;
    float v = texture2D(tex_v, chromaPoint).r - 128.0 / 255.0;
    if (pixFmt == 0 || pixFmt == 2) {
        y = (y - 16.0 / 255.0) * 255.0 / 219.0;
        u *= 255.0 / 224.0;
        v *= 255.0 / 224.0;
    }
    vec3 colour;
    if (pixFmt < 2)
        colour = vec3(y + 1.402 * v, y - 0.344136 * u - 0.714136 * v, y + 1.772 * u);
    else
        colour = vec3(y + 1.5748 * v, y - 0.187324 * u - 0.468124 * v, y + 1.8556 * u);
    gl_FragColor = vec4(clamp(colour, 0.0, 1.0), 1.0);
}
