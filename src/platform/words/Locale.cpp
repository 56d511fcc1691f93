#include "platform/words/Locale.h"

#include <unicode/locid.h>

namespace drossbin {

Locale Locale::current() {
    return {icu::Locale::getDefault().getName()};
}

void Locale::setCurrent(const Locale& locale) {
    // ICU refuses only what is no identifier at all; the locale then stays what it was.
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(locale.identifier.c_str()), status);
}

} // namespace drossbin
