// errno. Both sides number most errors differently, and the phone asks where its own lies.
#include "device/emulation/imports.hpp"
#include "device/emulation/phone_numbers.hpp"
#include "device/emulation/refusal.hpp"

#include <cerrno>
#include <utility>

namespace emulation {
namespace {

/// What Linux's functions have set since is taken over when the library looks.
int* errorPlace() {
    thread_local int error = 0;
    if (const int found = std::exchange(errno, 0); found != 0) {
        const auto number = phoneError(found);
        if (!number) {
            refuse("Linux's error " + std::to_string(found));
        }
        error = *number;
    }
    return &error;
}

} // namespace

std::vector<Translation> errorTranslations() { return {translation("___error", &errorPlace)}; }

} // namespace emulation
