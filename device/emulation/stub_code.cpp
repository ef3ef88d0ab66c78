// Writing instructions.
#include "device/emulation/stub_code.hpp"

#include <algorithm>
#include <array>

namespace emulation {
namespace {

// Instructions of arm64. A load counts from itself to the word that it reads.
enum : std::uint32_t {
    noOperation = 0xD503201F,
    loadX16FourOn = 0x58000090,
    loadX17FiveOn = 0x580000B1,
    loadX16TwoOn = 0x58000050,
    goToX16 = 0xD61F0200,
    goToX17 = 0xD61F0220
};

/// UXTB, SXTB, UXTH or SXTH of a register into itself.
std::uint32_t widen(const NarrowArgument& argument) {
    constexpr std::array<std::uint32_t, 5> operations{noOperation, 0x53001C00, 0x13001C00,
                                                      0x53003C00, 0x13003C00};
    return operations[static_cast<std::size_t>(argument.widening)] | argument.register_ << 5U |
           argument.register_;
}

void appendWord(std::vector<std::uint32_t>& code, std::uint64_t word) {
    code.push_back(static_cast<std::uint32_t>(word));
    code.push_back(static_cast<std::uint32_t>(word >> 32U));
}

} // namespace

std::vector<std::uint32_t> wideningCode(const std::vector<NarrowArgument>& arguments,
                                        std::uint64_t function) {
    std::vector<std::uint32_t> code(arguments.size());
    std::ranges::transform(arguments, code.begin(), &widen);
    if (code.size() % 2 != 0) {
        code.push_back(noOperation); // so that the word is aligned
    }
    code.insert(code.end(), {loadX16TwoOn, goToX16});
    appendWord(code, function);
    return code;
}

std::vector<std::uint32_t> callingCode(std::uint64_t caller, std::uint64_t function) {
    std::vector<std::uint32_t> code{loadX16FourOn, loadX17FiveOn, goToX17, noOperation};
    appendWord(code, function);
    appendWord(code, caller);
    return code;
}

} // namespace emulation
