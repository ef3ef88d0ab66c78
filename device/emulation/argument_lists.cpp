// Arguments of any number: the phone's list is the address of words on the stack, Linux's a
// structure that also knows registers.
#include "device/emulation/calls.hpp"
#include "device/emulation/imports.hpp"

#include <cstdarg>
#include <cstdio>
#include <cstring>

extern "C" void NSLogv(id format, va_list arguments);

namespace emulation {
namespace {

/// AAPCS64's: with no registers left, everything is read from the stack.
struct LinuxList {
    void* stack;
    void* generalEnd = nullptr;
    void* floatingEnd = nullptr;
    int generalOffset = 0;
    int floatingOffset = 0;
};
static_assert(sizeof(LinuxList) == sizeof(va_list));

struct List {
    explicit List(void* words) {
        const LinuxList all{words};
        std::memcpy(&arguments, &all, sizeof all);
    }
    va_list arguments;
};

} // namespace

extern "C" [[gnu::visibility("hidden")]] void emulation_NSLogList(id format, void* words) {
    List list(words);
    NSLogv(format, list.arguments);
}

extern "C" [[gnu::visibility("hidden")]] int emulation_vsnprintf(char* buffer, std::size_t size,
                                                                 const char* format, void* words) {
    List list(words);
    return std::vsnprintf(buffer, size, format, list.arguments);
}

std::vector<Translation> listTranslations() {
    return {
        translation("_NSLog", &emulation_NSLog),
        translation("_snprintf", &emulation_snprintf),
        translation("_vsnprintf", &emulation_vsnprintf),
    };
}

} // namespace emulation
