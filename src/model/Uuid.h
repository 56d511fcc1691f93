#pragma once

#include <array>
#include <cstdint>

namespace drossbin {

/// A random identity (RFC 4122, version 4).
struct Uuid {
    std::array<std::uint64_t, 2> words{};

    static Uuid random();

    friend bool operator==(const Uuid&, const Uuid&) = default;
};

} // namespace drossbin
