#include "platform/search/CharacterBoundary.h"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>

#include <memory>

namespace drossbin {

namespace {

std::unique_ptr<icu::BreakIterator> makeCharacterFinder() {
    UErrorCode status = U_ZERO_ERROR;
    return std::unique_ptr<icu::BreakIterator>(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
}

/// Whether ICU finds `place` to be between two characters of `text`. Without its rules any place
/// counts: a match too many is better than a file that cannot be found.
bool isBoundary(const icu::UnicodeString& text, int32_t place) {
    // Making a finder takes longer than most searches, and it remembers its place: one a thread.
    thread_local const std::unique_ptr<icu::BreakIterator> finder = makeCharacterFinder();
    if (finder == nullptr) {
        return true;
    }
    finder->setText(text);
    return finder->isBoundary(place) != 0;
}

/// Whether a character never joins its neighbours.
bool standsAlone(UChar32 character) {
    return u_getIntPropertyValue(character, UCHAR_GRAPHEME_CLUSTER_BREAK) == U_GCB_OTHER;
}

} // namespace

bool isBetweenCharacters(const icu::UnicodeString& text, int32_t place) {
    return place == 0 || place == text.length() ||
           (standsAlone(text.char32At(place - 1)) && standsAlone(text.char32At(place))) ||
           isBoundary(text, place);
}

} // namespace drossbin
