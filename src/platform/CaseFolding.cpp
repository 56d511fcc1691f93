#include "platform/CaseFolding.h"

#include <unicode/locid.h>
#include <unicode/uchar.h>

#include <cstring>
#include <string>

namespace drossbin {

namespace {

bool hasDotlessI(const Locale& locale) {
    const std::string language = icu::Locale(locale.identifier.c_str()).getLanguage();
    return language == "tr" || language == "az";
}

} // namespace

CaseFolding::CaseFolding(const Locale& locale)
    : m_option(hasDotlessI(locale) ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT) {}

bool CaseFolding::keepsCapitalI() const {
    return m_option == U_FOLD_CASE_EXCLUDE_SPECIAL_I;
}

FoldedText CaseFolding::fold(std::string_view text, std::span<Block> blocks) const {
    blocks.back() = {};
    std::memcpy(blocks.data(), text.data(), text.size());
    const bool isAscii = foldAscii(blocks);
    if (!isAscii) {
        std::memcpy(blocks.data(), text.data(), text.size());
    }
    return {{reinterpret_cast<const char*>(blocks.data()), text.size()}, isAscii};
}

/// Folds whole blocks in place; false if they hold more than ASCII.
bool CaseFolding::foldAscii(std::span<Block> blocks) const {
    const unsigned char kept = keepsCapitalI() ? 'I' : '\0';
    unsigned char bits = 0;
    for (Block& block : blocks) {
        for (unsigned char& c : block) {
            bits |= c;
            const bool isCapital = c >= 'A' && c <= 'Z' && c != kept;
            c = static_cast<unsigned char>(c + (isCapital ? 'a' - 'A' : 0));
        }
    }
    return bits <= 0x7F;
}

} // namespace drossbin
