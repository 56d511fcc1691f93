#include "ByteSource.h"
#include "Require.h"
#include "platform/search/CaseInsensitiveSearch.h"

#include <unicode/brkiter.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace drossbin::fuzz {
namespace {

struct Language {
    Locale locale;
    std::uint32_t folding;
};

/// The same search by its definition: any stretch of whole characters that is the pattern once
/// both are composed and folded.
class SlowSearch {
  public:
    explicit SlowSearch(std::uint32_t folding)
        : m_folding(folding) {}

    bool finds(const std::string& pattern, const std::string& bytes) {
        const icu::UnicodeString key = alike(composed(icu::UnicodeString::fromUTF8(pattern)));
        const icu::UnicodeString text = composed(icu::UnicodeString::fromUTF8(bytes));
        const std::vector<std::int32_t> boundaries = boundariesOf(text);
        for (auto start = boundaries.begin(); !key.isEmpty() && start != boundaries.end();
             ++start) {
            for (auto end = start + 1; end != boundaries.end(); ++end) {
                const auto stretch = alike(text.tempSubStringBetween(*start, *end));
                if (stretch == key) {
                    return true;
                }
                // Composing makes one of three at most: a longer stretch cannot get shorter than
                // that.
                if (stretch.length() > 3 * key.length() + 8) {
                    break;
                }
            }
        }
        return false;
    }

  private:
    icu::UnicodeString composed(const icu::UnicodeString& text) {
        UErrorCode status = U_ZERO_ERROR;
        return icu::Normalizer2::getNFCInstance(status)->normalize(text, status);
    }

    icu::UnicodeString alike(icu::UnicodeString text) { return composed(text.foldCase(m_folding)); }

    std::vector<std::int32_t> boundariesOf(const icu::UnicodeString& text) {
        UErrorCode status = U_ZERO_ERROR;
        static const std::unique_ptr<icu::BreakIterator> finder(
            icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
        finder->setText(text);
        std::vector<std::int32_t> boundaries;
        for (auto place = finder->first(); place != icu::BreakIterator::DONE;
             place = finder->next()) {
            boundaries.push_back(place);
        }
        return boundaries;
    }

    std::uint32_t m_folding;
};

const Language& languageOf(std::uint8_t byte) {
    static const std::array languages{Language{{"en_US"}, U_FOLD_CASE_DEFAULT},
                                      Language{{"tr_TR"}, U_FOLD_CASE_EXCLUDE_SPECIAL_I},
                                      Language{{"az"}, U_FOLD_CASE_EXCLUDE_SPECIAL_I},
                                      Language{{"de_DE"}, U_FOLD_CASE_DEFAULT}};
    return languages.at(byte % languages.size());
}

} // namespace
} // namespace drossbin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace drossbin;
    constexpr std::size_t longestText = 60; // for the slow one's sake
    fuzz::ByteSource source(bytes, size);
    const fuzz::Language& language = fuzz::languageOf(source.take());
    const std::string pattern = source.takeText(source.take() % 12U);
    const std::string text = source.takeText(longestText);
    const CaseInsensitiveSearch search(pattern, language.locale);
    fuzz::require(search.isFoundIn(text) == fuzz::SlowSearch(language.folding).finds(pattern, text),
                  "the filter finds what its definition finds");
    fuzz::require(search.isFoundIn(pattern) == !pattern.empty(), "a text is found in itself");
    return 0;
}
