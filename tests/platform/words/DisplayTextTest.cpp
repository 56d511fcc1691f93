#include "platform/words/DisplayText.h"

#include <gtest/gtest.h>

#include <string>

namespace drossbin {
namespace {

using namespace std::string_literals;

TEST(DisplayText, leaves_ordinary_names_as_they_are) {
    for (const std::string name : {"", "com.apple.Safari", "Größe 😀", "ダウンロード", "<h1>x</h1>",
                                   "a&b", "-rf", "e\u0301", "\u00A0"}) {
        EXPECT_EQ(displayText(name), name);
    }
}

TEST(DisplayText, shows_control_characters_as_escapes) {
    EXPECT_EQ(displayText("a\nb"), R"(a\nb)");
    EXPECT_EQ(displayText("a\tb\rc"), R"(a\tb\rc)");
    EXPECT_EQ(displayText("\x1B[31mred"), R"(\x1B[31mred)");
    EXPECT_EQ(displayText("\0\x01\x1F"s), R"(\x00\x01\x1F)");
    EXPECT_EQ(displayText("\x7F"), R"(\x7F)");
}

TEST(DisplayText, shows_the_second_block_of_control_characters_as_escapes) {
    EXPECT_EQ(displayText("\u0080\u0085\u009B\u009F"), R"(\x80\x85\x9B\x9F)");
}

TEST(DisplayText, shows_bidirectional_controls_as_escapes) {
    EXPECT_EQ(displayText("\u202A\u202B\u202C\u202D\u202E"), R"(\u202A\u202B\u202C\u202D\u202E)");
    EXPECT_EQ(displayText("\u2066\u2067\u2068\u2069"), R"(\u2066\u2067\u2068\u2069)");
    EXPECT_EQ(displayText("photo\u202Egnp.exe"), R"(photo\u202Egnp.exe)");
}

// They were once shown as escapes, in the middle of every name that carries them.
TEST(DisplayText, keeps_the_plain_marks_of_direction_that_right_to_left_names_carry) {
    for (const std::string name : {"\u200Fתמונה 1.jpg\u200E", "صورة\u061C (1).png", "\u200F"}) {
        EXPECT_EQ(displayText(name), name);
    }
}

TEST(DisplayText, shows_line_and_paragraph_separators_as_escapes) {
    EXPECT_EQ(displayText("a\u2028b\u2029c"), R"(a\u2028b\u2029c)");
}

TEST(DisplayText, keeps_joiners_that_words_and_emoji_need) {
    const std::string persian = "می\u200Cخواهم";
    const std::string family = "👨\u200D👩\u200D👧";
    EXPECT_EQ(displayText(persian), persian);
    EXPECT_EQ(displayText(family), family);
}

TEST(DisplayText, shows_one_replacement_for_each_maximal_part_that_is_no_utf8) {
    EXPECT_EQ(displayText("\xFF"), "\uFFFD");
    EXPECT_EQ(displayText("a\x80z"), "a\uFFFDz");
    EXPECT_EQ(displayText("\xC0\xAF"), "\uFFFD\uFFFD");
    EXPECT_EQ(displayText("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(displayText("\xF0\x9F\x98z"), "\uFFFDz");
    EXPECT_EQ(displayText("\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41"), "\uFFFD\uFFFD\uFFFD\uFFFDA");
    EXPECT_EQ(displayText("cut \xE3\x81"), "cut \uFFFD");
}

TEST(DisplayText, leaves_a_literal_backslash_alone) {
    EXPECT_EQ(displayText(R"(a\nb)"), R"(a\nb)");
    EXPECT_EQ(displayText("\\"), "\\");
}

} // namespace
} // namespace drossbin
