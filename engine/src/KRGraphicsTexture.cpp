// KRGraphicsTexture.cpp -- textures: image files decoded with stb_image into BGRA and uploaded top row first,
// textures from memory, binding with the texture offset, filters, and freeing.
//
// Owns:    nothing beyond the texture objects it hands out; the caller frees them with KRGfxTextureUnload.
// Read by: every state's Load (KRGfxTextureLoad) and Draw (KRGfxTextureSet).
#include "KRGraphics.h"

#include "KRDebug.h"

#include <GL/glew.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stb_image.h>

void KRGfxTextureInitialize(KRGfxTexture* pTexture)
{
    pTexture->glId = (u32*)std::calloc(1, sizeof(u32));
}

// A new texture object with nearest filtering and OpenGL's default repeat wrapping, bound.
static KRGfxTexture* NewBoundTexture(const char* name)
{
    KRGfxTexture* pTexture = (KRGfxTexture*)std::calloc(1, sizeof(KRGfxTexture));
    KRGfxTextureInitialize(pTexture);
    if (name)
        std::memcpy(pTexture->name, name, std::strlen(name) + 1);
    glGenTextures(1, pTexture->glId);
    glBindTexture(GL_TEXTURE_2D, *pTexture->glId);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    return pTexture;
}

// Decodes to 32-bit pixels in B, G, R, A byte order, rows top first, colour and alpha as stored. On failure the
// size is -1 by -1 and there are no pixels, which the upload then refuses.
static unsigned char* DecodeBGRA(const char* path, int* pWidth, int* pHeight)
{
    stbi_set_flip_vertically_on_load(0);
    int channels = 0;
    unsigned char* pPixels = stbi_load(path, pWidth, pHeight, &channels, 4);
    if (!pPixels)
    {
        *pWidth = -1;
        *pHeight = -1;
        return nullptr;
    }
    // Red and blue change places a whole (little-endian) pixel at a time: one load and one store per pixel, which
    // keeps the sanitizer build's unoptimised, checked loop quick over a level's 31 MB of pictures.
    const size_t count = (size_t)*pWidth * (size_t)*pHeight;
    uint32_t* pWords = (uint32_t*)pPixels;
    for (size_t i = 0; i < count; ++i)
    {
        const uint32_t p = pWords[i];
        pWords[i] = (p & 0xFF00FF00u) | ((p >> 16) & 0xFFu) | ((p & 0xFFu) << 16);
    }
    return pPixels;
}

KRGfxTexture* KRGfxTextureLoad(const char* path)
{
    if (std::strlen(path) > 255)
        return nullptr;

    int width = 0, height = 0;
    unsigned char* pPixels = DecodeBGRA(path, &width, &height);

    KRGfxTexture* pTexture = NewBoundTexture(path);
    // A missing or undecodable file is not tested for: its negative size raises GL_INVALID_VALUE here, and the
    // next CHECK_GL_ERROR (a mesh end, a texture set or the frame's end) stops the process.
    // Rows go up in the file's order, top row first, so that v = 0 is the top of the picture.
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, width, height, 0, GL_BGRA, GL_UNSIGNED_BYTE, pPixels);

    glBindTexture(GL_TEXTURE_2D, 0);
    stbi_image_free(pPixels);
    return pTexture;
}

KRGfxTexture* KRGfxTextureLoadFromMemory(const unsigned char* pRGBA, int32_t width, int32_t height)
{
    KRGfxTexture* pTexture = NewBoundTexture(nullptr);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE, pRGBA);
    glBindTexture(GL_TEXTURE_2D, 0);
    return pTexture;
}

void KRGfxTextureSet(KRGfxTexture* pTexture, float offsetX, float offsetY)
{
    if (!pTexture)
    {
        glBindTexture(GL_TEXTURE_2D, 0);
        return;
    }

    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, *pTexture->glId);
    glUniform1i(gKRShader.GetUniformLocation("uTexture"), 0);
    CHECK_GL_ERROR();

    // Strictly above 1.0: an offset of 1.0 stays 1.0, and negative offsets are left alone.
    while (offsetX > 1.0f)
        offsetX -= 1.0f;
    while (offsetY > 1.0f)
        offsetY -= 1.0f;
    glUniform2f(gKRShader.GetUniformLocation("uTextureOffset"), offsetX, offsetY);
    CHECK_GL_ERROR();
}

void KRGfxTextureUnload(KRGfxTexture* pTexture)
{
    // Only the deletion is guarded: the freeing reads through the pointer, which must not be null.
    if (pTexture)
        glDeleteTextures(1, pTexture->glId);
    std::free(pTexture->glId);
    std::free(pTexture);
}

void KRGfxSetTextureMode(int32_t mode)
{
    if (mode == KR_GFX_TM_NEAREST)
    {
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    }
    else if (mode == KR_GFX_TM_LINEAR)
    {
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    }
    else
    {
        std::printf("Unsupported texture mode!\n");
    }
}

void KRGfxSaveTextureToFile(KRGfxTexture* pTexture, const char* path)
{
    if (pTexture && path)
        std::printf("KRGfxSaveTextureToFile not supported in the OpenGL version of the Kestrel Runtime!\n");
}
