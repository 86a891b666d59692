// KRGraphicsShader.cpp -- the two shader programs: their GLSL texts and the Shader holder that builds, switches
// and deletes them.
//
// Owns:    gKRShader (three program ids by render mode, the active index), the four shader texts.
// Read by: KRGraphics (render mode, uniforms), the mesh, texture and debug drawing.
//
// Both fragment shaders do the same arithmetic on their source colour c:
//   rgb = (c * (1 - blend.w) + blend * blend.w) * tint      alpha = c.w * transparency * tint.w
// The texture program adds the offset to the coordinate and takes 1.0 off an axis above 1.0, once; the sampler's
// repeat wrapping does the rest.
#include "KRGraphics.h"

#include "KRDebug.h"

#include <GL/glew.h>

Shader gKRShader = {{0, 0, 0}, 0};

const char* const gKRColorVertexShader = R"(
uniform mat4 uPMatrix;
uniform mat4 uVMatrix;
uniform mat4 uWorldMatrix;
attribute vec4 aPosition;
attribute vec4 aColor;
varying vec4 vColor;
void main()
{
    vColor = aColor;
    gl_Position = uPMatrix * uVMatrix * uWorldMatrix * aPosition;
}
)";

const char* const gKRColorFragmentShader = R"(
uniform vec4 uBlendColor;
uniform float uTransparencyValue;
uniform vec4 uTintColor;
varying vec4 vColor;
void main()
{
    vec4 c = vColor;
    gl_FragColor.r = (c.r * (1.0 - uBlendColor.w) + uBlendColor.r * uBlendColor.w) * uTintColor.r;
    gl_FragColor.g = (c.g * (1.0 - uBlendColor.w) + uBlendColor.g * uBlendColor.w) * uTintColor.g;
    gl_FragColor.b = (c.b * (1.0 - uBlendColor.w) + uBlendColor.b * uBlendColor.w) * uTintColor.b;
    gl_FragColor.a = c.w * uTransparencyValue * uTintColor.w;
}
)";

const char* const gKRTextureVertexShader = R"(
uniform mat4 uPMatrix;
uniform mat4 uVMatrix;
uniform mat4 uWorldMatrix;
attribute vec4 aPosition;
attribute vec2 aTextureCoordinate;
varying vec2 vTextureCoordinate;
void main()
{
    vTextureCoordinate = aTextureCoordinate;
    gl_Position = uPMatrix * uVMatrix * uWorldMatrix * aPosition;
}
)";

const char* const gKRTextureFragmentShader = R"(
uniform sampler2D uTexture;
uniform vec4 uBlendColor;
uniform vec2 uTextureOffset;
uniform float uTransparencyValue;
uniform vec4 uTintColor;
varying vec2 vTextureCoordinate;
void main()
{
    vec2 coordinate = vTextureCoordinate + uTextureOffset;
    if (coordinate.x > 1.0)
        coordinate.x = coordinate.x - 1.0;
    if (coordinate.y > 1.0)
        coordinate.y = coordinate.y - 1.0;
    vec4 c = texture2D(uTexture, coordinate);
    gl_FragColor.r = (c.r * (1.0 - uBlendColor.w) + uBlendColor.r * uBlendColor.w) * uTintColor.r;
    gl_FragColor.g = (c.g * (1.0 - uBlendColor.w) + uBlendColor.g * uBlendColor.w) * uTintColor.g;
    gl_FragColor.b = (c.b * (1.0 - uBlendColor.w) + uBlendColor.b * uBlendColor.w) * uTintColor.b;
    gl_FragColor.a = c.w * uTransparencyValue * uTintColor.w;
}
)";

static void BuildProgram(Shader* pShader, u32 index, const char* vertexSource, const char* fragmentSource)
{
    pShader->mProgram[index] = glCreateProgram();
    pShader->Compile(index, vertexSource, GL_VERTEX_SHADER);
    pShader->Compile(index, fragmentSource, GL_FRAGMENT_SHADER);
    // Positions on attribute 0, which a raster position feeds, so that bitmap text is placed by the same shader.
    glBindAttribLocation(pShader->mProgram[index], 0, "aPosition");
    // The link status is not read: a program that failed draws nothing, and the game goes on.
    glLinkProgram(pShader->mProgram[index]);
}

void Shader::Init()
{
    // A context made anew has no program in use, whatever an earlier one had.
    mActive = 0;
    BuildProgram(this, KR_GFX_RM_COLOR, gKRColorVertexShader, gKRColorFragmentShader);
    BuildProgram(this, KR_GFX_RM_TEXTURE, gKRTextureVertexShader, gKRTextureFragmentShader);
}

void Shader::Compile(u32 programIndex, const char* source, u32 shaderType)
{
    GLuint shader = glCreateShader(shaderType);
    glShaderSource(shader, 1, &source, nullptr);
    glCompileShader(shader);
    GLint status = 0;
    glGetShaderiv(shader, GL_COMPILE_STATUS, &status);
    // A shader that failed to compile is left out silently.
    if (status == 1)
        glAttachShader(mProgram[programIndex], shader);
}

bool Shader::Use(u32 index)
{
    if (index == mActive)
        return false;
    if (index == 0)
    {
        Unuse();
        return false;
    }
    glUseProgram(mProgram[index]);
    mActive = index;
    return true;
}

void Shader::Unuse()
{
    glUseProgram(0);
    mActive = 0;
}

u32 Shader::GetActive() const
{
    return mActive;
}

int32_t Shader::GetUniformLocation(const char* name) const
{
    if (mActive == 0)
        return -1;
    return glGetUniformLocation(mProgram[mActive], name);
}

int32_t Shader::GetAttribLocation(const char* name) const
{
    if (mActive == 0)
        return -1;
    return glGetAttribLocation(mProgram[mActive], name);
}

void Shader::Destroy()
{
    for (u32 i = 0; i < 3; ++i)
    {
        if (mProgram[i] == 0)
            continue;
        GLuint attached[3] = {0, 0, 0};
        GLsizei count = 0;
        glGetAttachedShaders(mProgram[i], 3, &count, attached);
        for (GLsizei s = 0; s < count; ++s)
            glDeleteShader(attached[s]);
        glDeleteProgram(mProgram[i]);
        CHECK_GL_ERROR();
        mProgram[i] = 0;
    }
    mActive = 0;
}
