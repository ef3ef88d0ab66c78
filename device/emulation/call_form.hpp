// Where the phone's calls and Linux's differ for functions of given types, both on arm64.
#pragma once

#include <string_view>
#include <vector>

namespace emulation {

/// What makes a register of 32 bits out of a smaller integer.
enum class Widening { none, unsignedByte, signedByte, unsignedHalf, signedHalf };

/// An argument that the phone's functions expect widened, and Linux's callers leave as it is.
struct NarrowArgument {
    unsigned register_;
    Widening widening;

    bool operator==(const NarrowArgument&) const = default;
};

struct CallForm {
    std::vector<NarrowArgument> narrowArguments;
    /// What the phone's callers expect of the result, and Linux's functions leave out.
    Widening result = Widening::none;
    /// The arguments on the stack, in bytes.
    std::size_t stackSize = 0;
    /// The phone packs arguments on the stack, where Linux gives each a whole word.
    bool isPackedOnStack = false;
};

/// By the encoding of a method's or a block's types, with its hidden arguments. Throws Refusal for
/// types of unknown size.
[[nodiscard]] CallForm callForm(std::string_view types);

} // namespace emulation
