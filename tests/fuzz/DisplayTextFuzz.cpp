#include "ByteSource.h"
#include "Characters.h"
#include "Require.h"
#include "cleaner/DeletionLog.h"
#include "model/DiskItem.h"
#include "platform/words/DisplayText.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <system_error>

namespace drossbin::fuzz {
namespace {

/// By the numbers themselves, not by what the system's tables say of them.
bool endsLineOrTurnsText(std::int32_t character) {
    return character < 0x20 || (character >= 0x7F && character <= 0x9F) ||
           (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

bool isPrintableAscii(const std::string& bytes) {
    return std::ranges::all_of(bytes, [](char c) { return c >= ' ' && c <= '~'; });
}

void requireOneLineAnItem(const std::string& name) {
    const DiskItem item{.name = name};
    const std::error_code error = std::make_error_code(std::errc::io_error);
    const std::string log = deletionlog::text(
        Date(), {deletionlog::deletedLine(item), deletionlog::failedLine(item, error)}, 0);
    require(std::ranges::count(log, '\n') == 5, "a log has a line for each item");
    require(std::ranges::count(log, '\r') == 0, "a log has no other line ends");
}

} // namespace
} // namespace drossbin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace drossbin;
    const std::string name = fuzz::ByteSource(bytes, size).takeRest();
    const std::string shown = displayText(name);
    fuzz::requireCharacters(shown, fuzz::endsLineOrTurnsText,
                            "what is shown is one line in its own order");
    fuzz::require(displayText(shown) == shown, "what is shown is shown as it is");
    fuzz::require(!fuzz::isPrintableAscii(name) || shown == name, "plain names stay as they are");
    fuzz::requireOneLineAnItem(name);
    return 0;
}
