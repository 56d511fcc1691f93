#include "platform/CaseInsensitiveSearch.h"

#include "platform/CharacterBoundary.h"

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace drossbin {

namespace {

constexpr char16_t dotlessI = u'\u0131';

icu::UnicodeString decoded(std::string_view text) {
    return icu::UnicodeString::fromUTF8({text.data(), static_cast<int32_t>(text.size())});
}

// Without its tables ICU cannot compose. The search then still finds what is spelled alike.
bool isComposed(const icu::UnicodeString& text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* composer = icu::Normalizer2::getNFCInstance(status);
    return U_FAILURE(status) || composer->isNormalized(text, status) != 0;
}

icu::UnicodeString composed(const icu::UnicodeString& text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* composer = icu::Normalizer2::getNFCInstance(status);
    return isComposed(text) ? text : composer->normalize(text, status);
}

/// Whether `key` is in `text` at a place that begins and ends where `isWhole` holds.
template <class IsWhole>
bool containsWhole(const icu::UnicodeString& text, const icu::UnicodeString& key, IsWhole isWhole) {
    int32_t place = text.indexOf(key);
    while (place >= 0 && !(isWhole(place) && isWhole(place + key.length()))) {
        place = text.indexOf(key, place + 1);
    }
    return place >= 0;
}

} // namespace

struct CaseInsensitiveSearch::Pattern {
    CaseFolding folding;
    icu::UnicodeString key; ///< composed, folded, composed again

    /// The key as it stands in folded ASCII text, if it can be in one. A capital I of its own is
    /// the only capital left in such text, and stands for "ı".
    std::optional<std::string> asciiKey;

    Pattern(std::string_view pattern, const Locale& locale)
        : folding(locale)
        , key(composed(composed(decoded(pattern)).foldCase(folding.option())))
        , asciiKey(keyInAscii()) {}

    [[nodiscard]] std::optional<std::string> keyInAscii() const {
        std::string ascii;
        for (int32_t index = 0; index < key.length(); ++index) {
            const char16_t unit = key[index];
            const bool isCapitalI = unit == dotlessI && folding.keepsCapitalI();
            if (unit > 0x7F && !isCapitalI) {
                return std::nullopt;
            }
            ascii += isCapitalI ? 'I' : static_cast<char>(unit);
        }
        return ascii;
    }

    /// `folded` is ASCII, where only a carriage return and a line feed make one character.
    [[nodiscard]] bool isFoundInAscii(std::string_view folded) const {
        const auto splitsLineEnd = [folded](std::size_t place) {
            return place > 0 && place < folded.size() && folded[place - 1] == '\r' &&
                   folded[place] == '\n';
        };
        std::size_t place = asciiKey ? folded.find(*asciiKey) : std::string_view::npos;
        while (place != std::string_view::npos &&
               (splitsLineEnd(place) || splitsLineEnd(place + asciiKey->size()))) {
            place = folded.find(*asciiKey, place + 1);
        }
        return place != std::string_view::npos;
    }

    [[nodiscard]] bool isFoundInUnicode(const icu::UnicodeString& text) const {
        icu::UnicodeString folded = text;
        folded.foldCase(folding.option());
        // Folding never shortens a text, so one of the same length has kept every place.
        if (folded.length() == text.length() && isComposed(folded)) {
            return containsWhole(
                folded, key, [&text](int32_t place) { return isBetweenCharacters(text, place); });
        }
        return composed(folded).indexOf(key) >= 0 && isFoundCharacterwise(text);
    }

    /// The exact way for texts whose places move when they are folded, as in "ß" and "ss".
    [[nodiscard]] bool isFoundCharacterwise(const icu::UnicodeString& text) const {
        icu::UnicodeString folded;
        std::vector<int32_t> boundaries{0};
        for (int32_t start = 0, next = 0; start < text.length(); start = next) {
            do {
                next = text.moveIndex32(next, 1);
            } while (!isBetweenCharacters(text, next));
            icu::UnicodeString character = text.tempSubStringBetween(start, next);
            folded.append(composed(character.foldCase(folding.option())));
            boundaries.push_back(folded.length());
        }
        return containsWhole(folded, key, [&boundaries](int32_t place) {
            return std::ranges::binary_search(boundaries, place);
        });
    }
};

CaseInsensitiveSearch::CaseInsensitiveSearch(std::string_view pattern, const Locale& locale)
    : m_pattern(std::make_unique<const Pattern>(pattern, locale)) {}

CaseInsensitiveSearch::~CaseInsensitiveSearch() = default;
CaseInsensitiveSearch::CaseInsensitiveSearch(CaseInsensitiveSearch&&) noexcept = default;
CaseInsensitiveSearch& CaseInsensitiveSearch::operator=(CaseInsensitiveSearch&&) noexcept = default;

bool CaseInsensitiveSearch::isFoundIn(std::string_view text) const {
    // Most texts are short and ASCII, and are looked through without a call to ICU or the heap.
    std::array<CaseFolding::Block, 32> shortText; // NOLINT(cppcoreguidelines-pro-type-member-init)
    std::vector<CaseFolding::Block> longText;
    const std::size_t count = CaseFolding::blocksFor(text);
    if (count > shortText.size()) {
        longText.resize(count);
    }
    return isFoundIn(m_pattern->folding.fold(
        text, longText.empty() ? std::span(shortText).first(count) : std::span(longText)));
}

bool CaseInsensitiveSearch::isFoundIn(FoldedText text) const {
    if (m_pattern->key.isEmpty()) {
        return false;
    }
    return text.isAscii ? m_pattern->isFoundInAscii(text.bytes)
                        : m_pattern->isFoundInUnicode(composed(decoded(text.bytes)));
}

} // namespace drossbin
