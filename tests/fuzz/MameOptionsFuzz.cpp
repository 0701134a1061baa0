// What MAME prints for -showconfig, read for the option names it knows.
#include "FuzzInput.h"
#include "settings/KnownMameOptions.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const auto known = KnownMameOptions::Parse(fuzz::AsText(data, size));
    if (known && known->Size() == 0) {
        __builtin_trap(); // an answer is only an answer when it names an option
    }
    if (known) {
        (void)known->Knows("speed");
        (void)known->Knows(fuzz::AsText(data, size > 40 ? 40 : size));
    }
    return 0;
}
