#pragma once

#include <string>

namespace drossbin {

/// A locale by its BCP 47 or ICU identifier ("en_US", "de-DE", "ar").
struct Locale {
    std::string identifier;

    /// The user's locale: the process-wide default that ICU keeps.
    static Locale current();

    /// Makes `locale` the user's locale for the process. Call before other threads start.
    static void setCurrent(const Locale& locale);
};

} // namespace drossbin
