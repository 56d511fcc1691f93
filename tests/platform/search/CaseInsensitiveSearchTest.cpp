#include "platform/search/CaseInsensitiveSearch.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace drossbin {
namespace {

const Locale english{"en_US"};
const Locale turkish{"tr_TR"};

bool finds(std::string_view pattern, std::string_view text, const Locale& locale = english) {
    return CaseInsensitiveSearch(pattern, locale).isFoundIn(text);
}

TEST(CaseInsensitiveSearch, finds_letters_of_either_case) {
    EXPECT_TRUE(finds("CHROME", "com.google.Chrome"));
    EXPECT_TRUE(finds("chrome", "COM.GOOGLE.CHROME"));
    EXPECT_FALSE(finds("chromium", "com.google.Chrome"));
}

TEST(CaseInsensitiveSearch, takes_the_letters_of_ascii_for_alike_and_none_of_its_other_characters) {
    for (char one = 0; one < '\x7F'; ++one) {
        const CaseInsensitiveSearch search(std::string(1, one), english);
        for (char other = 0; other < '\x7F'; ++other) {
            EXPECT_EQ(search.isFoundIn(std::string(1, other)),
                      std::tolower(one) == std::tolower(other))
                << one << " in " << other;
        }
    }
}

TEST(CaseInsensitiveSearch, finds_at_the_start_the_end_and_as_a_whole) {
    EXPECT_TRUE(finds("com", "com.google"));
    EXPECT_TRUE(finds("gle", "com.google"));
    EXPECT_TRUE(finds("com.google", "com.google"));
    EXPECT_FALSE(finds("com.google.", "com.google"));
}

TEST(CaseInsensitiveSearch, takes_no_character_for_a_wildcard) {
    EXPECT_FALSE(finds("c*m", "com.google"));
    EXPECT_FALSE(finds(" com ", "com"));
    EXPECT_TRUE(finds(".", "a.b"));
    EXPECT_FALSE(finds("@", "`"));
    EXPECT_FALSE(finds("[", "{"));
}

TEST(CaseInsensitiveSearch, finds_nothing_with_an_empty_pattern) {
    EXPECT_FALSE(finds("", "com.google"));
    EXPECT_FALSE(finds("", ""));
}

TEST(CaseInsensitiveSearch, finds_nothing_in_an_empty_text) {
    EXPECT_FALSE(finds("a", ""));
}

TEST(CaseInsensitiveSearch, folds_case_beyond_ascii) {
    EXPECT_TRUE(finds("ДОКУМ", "Мои документы"));
    EXPECT_TRUE(finds("größe", "GRÖSSE"));
    EXPECT_TRUE(finds("ΣΊΣΥΦΟΣ", "σίσυφος"));
    EXPECT_TRUE(finds("𐐨", "𐐀"));
}

TEST(CaseInsensitiveSearch, folds_the_kelvin_sign_and_the_long_s_to_ascii) {
    EXPECT_TRUE(finds("k", "\u212A"));
    EXPECT_TRUE(finds("\u212A", "backup"));
    EXPECT_TRUE(finds("\u017F", "Sound"));
    EXPECT_FALSE(finds("\u212A", "audio"));
}

TEST(CaseInsensitiveSearch, finds_canonically_equivalent_spellings) {
    EXPECT_TRUE(finds("café", "Cafe\u0301"));
    EXPECT_TRUE(finds("cafe\u0301", "Café"));
    EXPECT_TRUE(finds("ダウン", "タ\u3099ウンロート\u3099"));
    EXPECT_TRUE(finds("\u1112\u1161\u11AB", "한글"));
    EXPECT_TRUE(finds("Å", "\u212B"));
    EXPECT_TRUE(finds("q\u0307\u0323", "q\u0323\u0307"));
    EXPECT_TRUE(finds("\u01F0", "J\u030C"));
    EXPECT_TRUE(finds("\u0390", "\u03AA\u0301"));
}

TEST(CaseInsensitiveSearch, tells_letters_with_and_without_diacritics_apart) {
    EXPECT_FALSE(finds("cafe", "Café"));
    EXPECT_FALSE(finds("café", "Cafe"));
    EXPECT_FALSE(finds("タ", "ダウン"));
}

TEST(CaseInsensitiveSearch, never_finds_part_of_a_character) {
    EXPECT_FALSE(finds("e", "cafe\u0301"));
    EXPECT_FALSE(finds("\u0301", "cafe\u0301"));
    EXPECT_FALSE(finds("x", "x\u0307"));
    EXPECT_FALSE(finds("\u1112\u1161", "한글"));
    EXPECT_FALSE(finds("👩", "👩\u200D👧"));
    EXPECT_FALSE(finds("🇩", "🇩🇪"));
    EXPECT_FALSE(finds("🇪🇫", "🇩🇪🇫🇷"));
    EXPECT_TRUE(finds("🇫🇷", "🇩🇪🇫🇷"));
    EXPECT_TRUE(finds("👩\u200D👧", "👩\u200D👧"));
}

TEST(CaseInsensitiveSearch, looks_on_after_part_of_a_character) {
    EXPECT_TRUE(finds("x", "x\u0307x"));
    EXPECT_TRUE(finds("s", "ßs"));
    EXPECT_TRUE(finds("\n", "\r\n\n"));
}

TEST(CaseInsensitiveSearch, never_finds_part_of_a_letter_that_folds_to_several) {
    EXPECT_TRUE(finds("STRASSE", "Straße"));
    EXPECT_TRUE(finds("straße", "STRASSE"));
    EXPECT_TRUE(finds("ss", "Straße"));
    EXPECT_FALSE(finds("s", "aße"));
    EXPECT_FALSE(finds("se", "aße"));
    EXPECT_FALSE(finds("as", "aße"));
    EXPECT_TRUE(finds("asse", "aße"));
    EXPECT_TRUE(finds("EFFI", "e\uFB03"));
    EXPECT_FALSE(finds("fi", "e\uFB03"));
}

TEST(CaseInsensitiveSearch, never_splits_a_line_end) {
    EXPECT_FALSE(finds("\n", "a\r\nb"));
    EXPECT_FALSE(finds("\r", "a\r\nb"));
    EXPECT_TRUE(finds("\r\n", "a\r\nb"));
    EXPECT_TRUE(finds("A\r\nB", "a\r\nb"));
    EXPECT_TRUE(finds("\n", "a\nb"));
    EXPECT_FALSE(finds("\n", "ä\r\nb"));
    EXPECT_TRUE(finds("\r\n", "ä\r\nb"));
}

TEST(CaseInsensitiveSearch, knows_the_turkish_i) {
    EXPECT_TRUE(finds("ı", "I", turkish));
    EXPECT_TRUE(finds("I", "kırmızı", turkish));
    EXPECT_TRUE(finds("i", "İstanbul", turkish));
    EXPECT_TRUE(finds("İ", "i", turkish));
    EXPECT_TRUE(finds("i", "I\u0307stanbul", turkish));
    EXPECT_FALSE(finds("i", "I", turkish));
    EXPECT_FALSE(finds("I", "i", turkish));
    EXPECT_TRUE(finds("ı", "I", Locale{"az"}));
}

TEST(CaseInsensitiveSearch, keeps_the_turkish_i_out_of_other_languages) {
    EXPECT_TRUE(finds("i", "I"));
    EXPECT_FALSE(finds("ı", "I"));
    EXPECT_FALSE(finds("I", "ı"));
    EXPECT_FALSE(finds("i", "İ"));
}

TEST(CaseInsensitiveSearch, takes_bytes_that_are_no_utf8_for_replacement_characters) {
    EXPECT_TRUE(finds("b", "a\xFF"
                           "b"));
    EXPECT_TRUE(finds("\uFFFD", "a\xFF"
                                "b"));
    EXPECT_TRUE(finds("a\xFE", "A\xFF"));
    EXPECT_FALSE(finds("\xFF", "ab"));
}

TEST(CaseInsensitiveSearch, finds_in_texts_of_any_length) {
    for (const std::size_t length : {15U, 16U, 17U, 495U, 496U, 511U, 512U, 513U, 5'000U}) {
        std::string text(length, 'x');
        text.back() = 'Y';
        EXPECT_TRUE(finds("xy", text)) << length;
        EXPECT_FALSE(finds("yx", text)) << length;
        EXPECT_FALSE(finds(std::string_view("y\0", 2), text)) << length;
        EXPECT_TRUE(finds("äx", "Ä" + text)) << length;
    }
}

TEST(CaseInsensitiveSearch, may_be_moved) {
    CaseInsensitiveSearch search("a", english);
    search = CaseInsensitiveSearch("b", english);
    EXPECT_TRUE(search.isFoundIn("B"));
    EXPECT_FALSE(search.isFoundIn("A"));
}

} // namespace
} // namespace drossbin
