// Functions of the compiler's and the loader's that Linux has under other names or not at all.
#include "device/emulation/imports.hpp"
#include "device/emulation/refusal.hpp"

#include <cmath>
#include <cstdint>

namespace emulation {
namespace {

/// What the compiler puts between a function's variables and its way back.
std::uint64_t stackGuard = 0x00BADA55F00DBEEF;

[[noreturn]] void tellOfSmashedStack() { refuse("a stack that was written over"); }
/// Every import was bound beforehand.
[[noreturn]] void bindLate() { refuse("an import to be bound at its first call"); }

double powerOfTen(double exponent) { return exp10(exponent); }

} // namespace

std::vector<Translation> compilerTranslations() {
    return {
        translation("___exp10", &powerOfTen),
        translation("___stack_chk_fail", &tellOfSmashedStack),
        translation("___stack_chk_guard", &stackGuard),
        translation("dyld_stub_binder", &bindLate),
    };
}

} // namespace emulation
