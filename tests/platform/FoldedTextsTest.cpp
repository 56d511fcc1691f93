#include "platform/FoldedTexts.h"

#include "platform/CaseInsensitiveSearch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace drossbin {
namespace {

const Locale english{"en_US"};
const Locale turkish{"tr_TR"};

FoldedTexts textsOf(const std::vector<std::string>& originals, const Locale& locale) {
    FoldedTexts texts(locale);
    for (const std::string& original : originals) {
        texts.add(original);
    }
    return texts;
}

TEST(FoldedTexts, hold_ascii_in_small_letters) {
    const FoldedTexts texts = textsOf({"Com.Example [A-Z] @`{"}, english);
    EXPECT_EQ(texts[0].bytes, "com.example [a-z] @`{");
    EXPECT_TRUE(texts[0].isAscii);
}

TEST(FoldedTexts, hold_the_capital_i_of_turkish_as_it_is) {
    EXPECT_EQ(textsOf({"ISTANBUL"}, turkish)[0].bytes, "Istanbul");
}

TEST(FoldedTexts, hold_what_is_not_ascii_as_it_is) {
    const FoldedTexts texts = textsOf({"Caf\u00C9 A", "A\xFF"}, english);
    EXPECT_EQ(texts[0].bytes, "Caf\u00C9 A");
    EXPECT_FALSE(texts[0].isAscii);
    EXPECT_EQ(texts[1].bytes, "A\xFF");
    EXPECT_FALSE(texts[1].isAscii);
}

TEST(FoldedTexts, keep_texts_of_every_length_apart) {
    std::vector<std::string> originals;
    for (std::size_t length = 0; length <= 100; ++length) {
        originals.emplace_back(length, static_cast<char>('a' + length % 26));
    }
    const FoldedTexts texts = textsOf(originals, english);
    for (std::size_t place = 0; place < originals.size(); ++place) {
        EXPECT_EQ(texts[place].bytes, originals[place]);
    }
}

TEST(FoldedTexts, are_searched_like_the_texts_themselves) {
    const std::vector<std::string> originals{"",       "Kit",   "IS",     "\u212Ait", "Stra\u00DFe",
                                             "a\r\nB", "A\xFF", "\u0130s"};
    for (const Locale& locale : {english, turkish}) {
        const FoldedTexts texts = textsOf(originals, locale);
        for (const std::string pattern : {"", "k", "is", "I", "SS", "\n", "b", "\xFF"}) {
            const CaseInsensitiveSearch search(pattern, locale);
            for (std::size_t place = 0; place < originals.size(); ++place) {
                EXPECT_EQ(search.isFoundIn(texts[place]), search.isFoundIn(originals[place]))
                    << pattern << " in " << originals[place] << ", " << locale.identifier;
            }
        }
    }
}

} // namespace
} // namespace drossbin
