#include "platform/words/DisplayText.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <array>
#include <cstdint>
#include <cstdio>

namespace drossbin {

namespace {

/// The marks U+200E, U+200F and U+061C act like a letter without a width. Right-to-left names carry
/// them, and they turn nothing around.
bool isDirectionMark(UChar32 character) {
    return character == 0x200E || character == 0x200F || character == 0x061C;
}

/// Whether a character would break the line or change the order of the text around it. Joiners and
/// other format characters do neither: Persian words and many emoji need them.
bool isDisruptive(UChar32 character) {
    constexpr std::uint32_t breaksLine = U_GC_CC_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;
    const bool turnsText = u_hasBinaryProperty(character, UCHAR_BIDI_CONTROL) != 0;
    return (U_GET_GC_MASK(character) & breaksLine) != 0 ||
           (turnsText && !isDirectionMark(character));
}

icu::UnicodeString escape(UChar32 character) {
    switch (character) {
    case u'\n':
        return u"\\n";
    case u'\t':
        return u"\\t";
    case u'\r':
        return u"\\r";
    default:
        break;
    }
    constexpr UChar32 lastByte = 0xFF;
    std::array<char, 16> text{};
    const int length =
        std::snprintf(text.data(), text.size(), character <= lastByte ? "\\x%02X" : "\\u%04X",
                      static_cast<unsigned>(character));
    return icu::UnicodeString::fromUTF8({text.data(), length});
}

} // namespace

// A backslash stays as it is: the text is never read back, so it only has to be plain to the eye,
// and doubling would show a name that the file does not have.
std::string displayText(std::string_view bytes) {
    const auto name =
        icu::UnicodeString::fromUTF8({bytes.data(), static_cast<std::int32_t>(bytes.size())});
    icu::UnicodeString text;
    for (std::int32_t place = 0; place < name.length(); place = name.moveIndex32(place, 1)) {
        const UChar32 character = name.char32At(place);
        if (isDisruptive(character)) {
            text.append(escape(character));
        } else {
            text.append(character);
        }
    }
    std::string utf8;
    return text.toUTF8String(utf8);
}

} // namespace drossbin
