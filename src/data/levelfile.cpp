// levelfile.cpp -- reading and writing level files.
//
// Owns:    nothing; every reader fills the pool of the state that calls it, through that state's create.
// Used by: the Init of every level state, of the main menu and of the credits; the editor's load and save.
//
// The reader keeps the shape it has always had, and its quirks are relied on:
// - the end-of-file flag is asked before each read and is set only by a read that runs into the end, so after
//   a last line that ends in a line end the loop runs once more, its read finds nothing, and the last line is
//   seen twice: a file ending in a complete x line makes an object whose y is that x;
// - numbers are read as atoi reads them: blanks skipped, one sign, digits up to the first other character, 0
//   without digits, no range test; so a CR, a fraction or trailing text does no harm;
// - a line longer than 999 characters arrives as two lines and shifts the record.
#include "levelfile.h"

#include "textfile.h"
#include "userlevel.h"
#include "savefolder.h"

#include <climits>
#include <cstdlib>
#include <sstream>
#include <string>

f32 LevelFileScale(s32 kind, LevelFileScales table)
{
    if (kind == TYPE_CHARACTER)
        return 50.0f;
    if (kind == TYPE_ZOOM_POWERUP)
        return 30.0f;
    if (kind == TYPE_EXIT_PORTAL)
        return 55.0f;
    if (kind == TYPE_BATTERYP && table == LEVEL_FILE_SCALES_PLAY)
        return 40.0f;
    return 1.0f;
}

// atoi without its undefined overflow: digits past the range wrap as the 32-bit arithmetic of the game's
// runtime would leave them. Nothing relies on the value of such a number.
static s32 LeadingInteger(const char* text)
{
    while (*text == ' ' || (*text >= '\t' && *text <= '\r'))
        text++;
    bool negative = false;
    if (*text == '-' || *text == '+')
        negative = *text++ == '-';
    u32 value = 0;
    while (*text >= '0' && *text <= '9')
        value = value * 10u + (u32)(*text++ - '0');
    return (s32)(negative ? 0u - value : value);
}

bool LevelFileRead(const char* path, GameObjCreateFn create, GameObjInst** ppCharacter, LevelFileScales table)
{
    s32 field = 0;
    s32 kind = 0;
    f32 x = 0.0f;
    char mystring[1000] = {};

    FILE* infile = TextFileOpen(path, "rt");
    if (!infile)
        return false;

    // A read error would never reach the end of the file; it ends the loop as the end would.
    while (!std::feof(infile) && !std::ferror(infile))
    {
        // Not tested: a read that finds nothing leaves the last line in mystring.
        TextFileGets(mystring, (int)sizeof(mystring), infile);

        if (field == 0)
        {
            kind = LeadingInteger(mystring);
            field = 1;
        }
        else if (field == 1)
        {
            x = (f32)LeadingInteger(mystring);
            field = 2;
        }
        else
        {
            KRVec2 position = {x, (f32)LeadingInteger(mystring)};
            const KRVec2 zero = {0.0f, 0.0f};
            GameObjInst* pInst = create((u32)kind, LevelFileScale(kind, table), &position, &zero, 0.0f, &zero);
            if (kind == TYPE_CHARACTER)
                *ppCharacter = pInst;
            field = 0;
        }
    }
    std::fclose(infile);
    return true;
}

bool LevelFileReadUser(GameObjCreateFn create, GameObjInst** ppCharacter)
{
    std::string tempfilename = UserLevelPath();
    return LevelFileRead(tempfilename.c_str(), create, ppCharacter, LEVEL_FILE_SCALES_PLAY);
}

// A position cut toward zero. Out of the 32-bit range, and for not-a-number, the result is the lowest integer,
// as the processor's truncating conversion gives it.
static s32 CutTowardZero(f32 value)
{
    if (!(value > -2147483904.0f && value < 2147483648.0f))
        return INT_MIN;
    return (s32)value;
}

static bool IsLevelObject(const GameObjInst* pInst)
{
    if (!(pInst->flag & FLAG_ACTIVE))
        return false;
    u32 kind = pInst->pObject->type;
    return kind != TYPE_CURSOR && kind != TYPE_HAND && !pInst->isInterface;
}

bool LevelFileWrite(const char* path, const GameObjPool* pPool)
{
    FILE* outfile = std::fopen(path, "w+");
    if (!outfile)
        return false;

    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        const GameObjInst* pInst = pPool->sGameObjInstList + i;
        if (!IsLevelObject(pInst))
            continue;

        std::ostringstream record;
        record << pInst->pObject->type << "\n"
               << CutTowardZero(pInst->posCurr.x) << "\n"
               << CutTowardZero(pInst->posCurr.y) << "\n";
        std::fputs(record.str().c_str(), outfile);
    }
    std::fclose(outfile);
    return true;
}

void LevelFileSaveUser(const GameObjPool* pPool)
{
    std::string tempfilename = UserLevelPath();
    if (!LevelFileWrite(tempfilename.c_str(), pPool))
    {
        // The first save into a missing folder only makes the folders; the editor says it saved either way.
        SaveFolderCreate();
    }
}
