#include "pages/registry/ValueGlyph.h"

#include "platform/WindowsTypes.h"

Glyph valueGlyph(unsigned int type)
{
    switch (type) {
    case REG_SZ: return Glyph::Text;
    case REG_DWORD:
    case REG_QWORD: return Glyph::Number;
    default: return Glyph::Binary;
    }
}
