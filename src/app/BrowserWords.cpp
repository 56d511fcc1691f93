#include "app/BrowserWords.h"

#include <climits>
#include <cstddef>
#include <cstdint>

namespace drossbin {

namespace {

/// All the words side by side, one bit a letter.
struct Alphabet {
    std::array<std::uint64_t, UCHAR_MAX + 1> placesOf{}; ///< where a byte, in either case, stands
    std::uint64_t firsts = 0;
    std::uint64_t lasts = 0;
};

constexpr Alphabet makeAlphabet() {
    Alphabet alphabet;
    std::uint64_t place = 1;
    for (const std::string_view word : browserWords) {
        alphabet.firsts |= place;
        std::uint64_t last = place;
        for (const char letter : word) {
            alphabet.placesOf.at(static_cast<unsigned char>(letter)) |= place;
            alphabet.placesOf.at(static_cast<unsigned char>(letter - 'a' + 'A')) |= place;
            last = place;
            place <<= 1U;
        }
        alphabet.lasts |= last;
    }
    return alphabet;
}

constexpr Alphabet alphabet = makeAlphabet();

/// Reads a text once, whatever the number of words: a set bit says that what was read ends with
/// its word up to that letter, and each byte moves every such match one letter on.
class Reader {
  public:
    /// Whether a word was complete somewhere up to the end of `text`.
    bool read(std::string_view text) {
        for (std::size_t at = 0; at < text.size() && !m_found; ++at) {
            const auto byte = static_cast<unsigned char>(text[at]);
            step(byte <= CHAR_MAX ? byte : asciiOf(text, at));
        }
        return m_found;
    }

  private:
    void step(unsigned char byte) {
        m_matches = ((m_matches << 1U) | alphabet.firsts) & alphabet.placesOf[byte];
        m_found = (m_matches & alphabet.lasts) != 0;
    }

    /// Two characters beyond ASCII begin with an ASCII letter in lower case. The Kelvin sign is a
    /// "k", and is read whole; the capital I with a dot is an "i" with a combining dot, which ends
    /// every match as its second byte does.
    static unsigned char asciiOf(std::string_view text, std::size_t& at) {
        constexpr std::string_view kelvinSign = "\u212A";
        constexpr std::string_view dottedCapitalI = "\u0130";
        if (text.substr(at).starts_with(kelvinSign)) {
            at += kelvinSign.size() - 1;
            return 'k';
        }
        return text.substr(at).starts_with(dottedCapitalI) ? 'i'
                                                           : static_cast<unsigned char>(text[at]);
    }

    std::uint64_t m_matches = 0;
    bool m_found = false;
};

} // namespace

bool containsBrowserWord(std::string_view name, std::string_view path) {
    Reader reader;
    return reader.read(name) || reader.read(path);
}

} // namespace drossbin
