// KRGraphicsFont.cpp -- bitmap fonts: the characters 32 to 127 of a system font rendered with FreeType into 96
// display lists of glBitmap calls, and text drawn at a raster position in world coordinates.
//
// Owns:    nothing between calls; a font is its display lists, named by the first one.
// Read by: no part of the game; public surface of the engine.
//
// Face names map to the DejaVu family that Debian ships (fonts-dejavu-core): a monospaced name to DejaVu Sans
// Mono, a serif name to DejaVu Serif, any other to DejaVu Sans. A bold or italic file is used where the machine
// has one; what is missing is made up by the renderer (emboldened outline, slanted transform).
#include "KRGraphics.h"

#include "KRGraphicsInternal.h"
#include "KRSystem.h"

#include <GL/glew.h>
#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstring>
#include <ft2build.h>
#include <unistd.h>
#include <vector>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

static const char* const kFontFolder = "/usr/share/fonts/truetype/dejavu/";
static const int kFirstChar = 32;
static const int kCharCount = 96;

static bool NameHasAny(const std::string& name, std::initializer_list<const char*> words)
{
    for (const char* word : words)
        if (name.find(word) != std::string::npos)
            return true;
    return false;
}

std::string KRGfxFontFile(const char* face, bool bold, bool italic, bool* pBoldDone, bool* pItalicDone)
{
    std::string name = face ? face : "";
    std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return (char)std::tolower(c); });

    std::string family = "DejaVuSans";
    const char* slant = "Oblique";
    if (NameHasAny(name, {"mono", "courier", "consol", "fixed", "terminal", "typewriter", "lucida console"}))
        family = "DejaVuSansMono";
    else if (NameHasAny(name, {"serif", "times", "georgia", "roman", "garamond", "palatino", "cambria", "book"}) &&
             !NameHasAny(name, {"sans"}))
    {
        family = "DejaVuSerif";
        slant = "Italic";
    }

    // The asked style first, then what comes closest: bold alone, slant alone, the plain face.
    struct Choice
    {
        bool bold, italic;
    };
    const Choice choices[4] = {{bold, italic}, {bold, false}, {false, italic}, {false, false}};
    for (const Choice& choice : choices)
    {
        std::string style;
        if (choice.bold)
            style += "Bold";
        if (choice.italic)
            style += slant;
        std::string path = std::string(kFontFolder) + family + (style.empty() ? "" : "-" + style) + ".ttf";
        if (access(path.c_str(), R_OK) == 0)
        {
            *pBoldDone = choice.bold;
            *pItalicDone = choice.italic;
            return path;
        }
    }
    *pBoldDone = false;
    *pItalicDone = false;
    return std::string(kFontFolder) + family + ".ttf";
}

// Compiles one character: the glyph's one-bit rows turned bottom row first, as glBitmap reads them, placed by
// the glyph's bearings and followed by its advance.
static void CompileGlyph(FT_Face face, u32 list, int character, bool embolden)
{
    glNewList(list, GL_COMPILE);
    bool loaded = FT_Load_Char(face, (FT_ULong)character, FT_LOAD_DEFAULT | FT_LOAD_NO_BITMAP) == 0;
    if (loaded && embolden && face->glyph->format == FT_GLYPH_FORMAT_OUTLINE)
        FT_Outline_Embolden(&face->glyph->outline, FT_MulFix(face->units_per_EM, face->size->metrics.y_scale) / 24);
    if (loaded && FT_Render_Glyph(face->glyph, FT_RENDER_MODE_MONO) == 0)
    {
        const FT_Bitmap& bitmap = face->glyph->bitmap;
        int width = (int)bitmap.width, rows = (int)bitmap.rows;
        int stride = (width + 7) / 8;
        std::vector<unsigned char> flipped((size_t)std::max(1, stride * rows), 0);
        for (int row = 0; row < rows; ++row)
            std::memcpy(&flipped[(size_t)(rows - 1 - row) * stride], bitmap.buffer + (ptrdiff_t)row * bitmap.pitch,
                        (size_t)stride);
        glBitmap(width, rows, (float)-face->glyph->bitmap_left, (float)(rows - face->glyph->bitmap_top),
                 (float)face->glyph->advance.x / 64.0f, 0.0f, flipped.data());
    }
    glEndList();
}

u32 KRGfxCreateFont(const char* face, int32_t size, u8 bold, u8 italic)
{
    u32 base = glGenLists(kCharCount);

    bool boldDone = false, italicDone = false;
    std::string path = KRGfxFontFile(face, bold != 0, italic != 0, &boldDone, &italicDone);

    // A font that cannot be opened leaves its lists empty: text in it draws nothing.
    FT_Library library = nullptr;
    FT_Face ftFace = nullptr;
    if (FT_Init_FreeType(&library) != 0)
        return base;
    if (FT_New_Face(library, path.c_str(), 0, &ftFace) == 0)
    {
        // The size is the height of a character, in pixels.
        FT_Set_Pixel_Sizes(ftFace, 0, (FT_UInt)std::max(1, size));
        if (italic && !italicDone)
        {
            FT_Matrix slant = {0x10000, 0x0366A, 0, 0x10000};
            FT_Set_Transform(ftFace, &slant, nullptr);
        }
        glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
        glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
        glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
        glPixelStorei(GL_UNPACK_SKIP_ROWS, 0);
        glPixelStorei(GL_UNPACK_SKIP_PIXELS, 0);
        glPixelStorei(GL_UNPACK_LSB_FIRST, GL_FALSE);
        for (int i = 0; i < kCharCount; ++i)
            CompileGlyph(ftFace, base + (u32)i, kFirstChar + i, bold && !boldDone);
        glPopClientAttrib();
        FT_Done_Face(ftFace);
    }
    FT_Done_FreeType(library);
    return base;
}

void KRGfxDestroyFont(u32 base)
{
    glDeleteLists(base, kCharCount);
}

void KRGfxPrint(u32 base, const char* format, int32_t x, int32_t y, float red, float green, float blue)
{
    if (!format)
        return;

    // Text whose start lies far off the screen is skipped; up to a screen to the left and below still counts,
    // since a long text may reach into view from there.
    int minX = (int)((float)(-gKRWinWidth / 2) + gKRCamPosX + 1.0f);
    int maxX = (int)((float)(gKRWinWidth / 2) + gKRCamPosX - 1.0f);
    int minY = (int)((float)(-gKRWinHeight / 2) + gKRCamPosY + 1.0f);
    int maxY = (int)((float)(gKRWinHeight / 2) + gKRCamPosY - 1.0f);
    if (x < minX - gKRWinWidth || x > maxX || y < minY - gKRWinHeight || y > maxY)
        return;

    // A raster position outside the viewport is invalid and draws nothing; a viewport three times the size with
    // the view shrunk by three keeps positions left of and below the screen valid at the same place on screen.
    int w = (int)((float)gKRWinWidth * gKRWinScaleX);
    int h = (int)((float)gKRWinHeight * gKRWinScaleY);
    glViewport(-w, -h, (int)((float)(3 * gKRWinWidth) * gKRWinScaleX),
               (int)((float)(3 * gKRWinHeight) * gKRWinScaleY));
    KRGfxSetPosition(0.0f, 0.0f);
    const float kThird = 0.33333334f;
    KRGfxUploadViewMatrix(gKRWinScaleX * kThird, gKRWinScaleY * kThird);

    KRGfxSetBlendColor(red, green, blue, 1.0f);
    // The raster position goes through the active vertex shader. Drivers feed its position attribute either from
    // the raster coordinates or from attribute 0's current value (Mesa does the latter): positions sit on
    // attribute 0 in both programs, and both are given.
    glVertexAttrib4f(0, (float)x, (float)y, 0.0f, 1.0f);
    glRasterPos2f((float)x, (float)y);

    char text[256];
    KRGfxFormatPrintText(text, format, x, y, red, green, blue);

    // The bitmaps' fragments run through the active fragment shader: the blend colour gives them their colour.
    // Their alpha comes from the program's varyings, which Mesa leaves at zero for the colour program, so text
    // there shows only with blending off.
    glPushAttrib(GL_LIST_BIT);
    glListBase(base - (u32)kFirstChar);
    glCallLists((GLsizei)std::strlen(text), GL_UNSIGNED_BYTE, text);
    glPopAttrib();

    KRGfxSetBlendColor(0.0f, 0.0f, 0.0f, 0.0f);
    glViewport(0, 0, w, h);
    KRGfxUploadViewMatrix(gKRWinScaleX, gKRWinScaleY);
}
