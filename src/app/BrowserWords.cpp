#include "app/BrowserWords.h"

#include <algorithm>
#include <string>

namespace drossbin {

namespace {

void replaceAll(std::string& text, std::string_view part, std::string_view other) {
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at)) {
        text.replace(at, part.size(), other);
    }
}

/// In lower case as far as the words can tell: only two characters beyond ASCII begin with a
/// letter of theirs in lower case, the Kelvin sign and the capital I with a dot.
void makeLowerCase(std::string& text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    });
    replaceAll(text, "\u212A", "k");
    replaceAll(text, "\u0130", "i\u0307");
}

} // namespace

bool containsBrowserWord(std::string_view name, std::string_view path) {
    std::string text(name);
    text += path;
    makeLowerCase(text);
    return std::ranges::any_of(browserWords, [&text](std::string_view word) {
        return text.find(word) != std::string::npos;
    });
}

} // namespace drossbin
