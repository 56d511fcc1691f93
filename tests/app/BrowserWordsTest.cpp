#include "app/BrowserWords.h"

#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <string>

namespace drossbin {
namespace {

TEST(BrowserWords, are_the_ten_in_their_order) {
    std::string words;
    for (const std::string_view word : browserWords) {
        words.append(word).append(" ");
    }
    EXPECT_EQ(words, "chrome safari firefox brave opera edge arc vivaldi browser webkit ");
}

TEST(BrowserWords, are_each_found_alone_inside_and_in_capitals) {
    for (const std::string_view word : browserWords) {
        const std::string text(word);
        std::string capitals = text;
        for (char& letter : capitals) {
            letter = static_cast<char>(std::toupper(letter));
        }
        EXPECT_TRUE(containsBrowserWord(text, "/")) << text;
        EXPECT_TRUE(containsBrowserWord("x", "/tmp/x" + text + "x/y")) << text;
        EXPECT_TRUE(containsBrowserWord(capitals, "/")) << capitals;
    }
}

TEST(BrowserWords, are_not_found_when_a_letter_is_missing_or_wrong) {
    for (const std::string_view word : browserWords) {
        const std::string text(word);
        EXPECT_FALSE(containsBrowserWord(text.substr(1), "/")) << text.substr(1);
        EXPECT_FALSE(containsBrowserWord(text.substr(0, text.size() - 1), "/")) << text;
        EXPECT_FALSE(containsBrowserWord("_" + text.substr(1), "/")) << text;
    }
}

TEST(BrowserWords, are_found_inside_other_words) {
    EXPECT_TRUE(containsBrowserWord("Archive Utility", "/"));
    EXPECT_TRUE(containsBrowserWord("knowledge", "/"));
    EXPECT_TRUE(containsBrowserWord("x", "/home/ada/search/x"));
    EXPECT_FALSE(containsBrowserWord("Spotify", "/home/ada/Spotify"));
}

TEST(BrowserWords, are_found_where_the_name_runs_into_the_path) {
    EXPECT_TRUE(containsBrowserWord("saf", "ari"));
    EXPECT_FALSE(containsBrowserWord("saf", "/ari"));
    EXPECT_FALSE(containsBrowserWord("ari", "saf"));
}

TEST(BrowserWords, are_found_right_after_a_false_start) {
    EXPECT_TRUE(containsBrowserWord("chchrome", "/"));
    EXPECT_TRUE(containsBrowserWord("aarc", "/"));
    EXPECT_TRUE(containsBrowserWord("operedge", "/"));
    EXPECT_FALSE(containsBrowserWord("chrchrom", "/"));
}

TEST(BrowserWords, are_not_found_in_empty_texts_or_across_foreign_bytes) {
    EXPECT_FALSE(containsBrowserWord("", ""));
    EXPECT_FALSE(containsBrowserWord("ar\xC3\xA9"
                                     "c",
                                     "/"));
    EXPECT_FALSE(containsBrowserWord("ar\xFF"
                                     "c",
                                     "/"));
    EXPECT_TRUE(containsBrowserWord("\xFF"
                                    "arc",
                                    "/"));
}

TEST(BrowserWords, see_the_kelvin_sign_and_the_dotted_capital_i_as_their_lower_case) {
    EXPECT_TRUE(containsBrowserWord("Web\u212Ait", "/"));
    EXPECT_TRUE(containsBrowserWord("safar\u0130", "/"));
    // In lower case a combining dot follows the i, so no word goes on behind it.
    EXPECT_FALSE(containsBrowserWord("v\u0130valdi", "/"));
    EXPECT_FALSE(containsBrowserWord("web\u212B"
                                     "it",
                                     "/"));
}

TEST(BrowserWords, need_no_other_character_beyond_ascii) {
    std::u32string found;
    for (UChar32 character = 0x80; character <= 0x10FFFF; ++character) {
        icu::UnicodeString text(character);
        text.toLower(icu::Locale::getRoot());
        if (text.charAt(0) < 0x80) {
            found.push_back(static_cast<char32_t>(character));
        }
    }
    EXPECT_EQ(found, U"\u0130\u212A");
}

} // namespace
} // namespace drossbin
