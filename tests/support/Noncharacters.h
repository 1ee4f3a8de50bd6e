#pragma once

#include <QString>

/// The 66 code points that Unicode keeps from ever being characters, in their order. A text may
/// hold them all the same.
inline QString allNoncharacters()
{
    QString text;
    for (char16_t unit = 0xfdd0; unit <= 0xfdef; ++unit)
        text += QChar(unit);
    for (char32_t plane = 0; plane <= 0x10; ++plane) {
        for (const char32_t last : {0xfffeU, 0xffffU}) {
            const char32_t character = plane << 16 | last;
            text += QString::fromUcs4(&character, 1);
        }
    }
    return text;
}
