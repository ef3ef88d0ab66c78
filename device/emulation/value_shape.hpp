// How large the values of a type are and what they are made of, by the type's encoding.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace emulation {

struct ValueShape {
    std::size_t size = 0; ///< In bytes.
    std::size_t alignment = 1;
    /// The first character of the encoding: `{` for a structure.
    char kind = 'v';
    /// How many floating-point numbers of one type it consists of; 0 if of anything else too.
    unsigned floats = 0;

    [[nodiscard]] bool isAggregate() const { return kind == '{' || kind == '(' || kind == '['; }
    bool operator==(const ValueShape&) const = default;
};

/// The shapes of all types of a method's or a block's encoding, the result's first. Throws Refusal
/// for a type of unknown size.
[[nodiscard]] std::vector<ValueShape> shapesOf(std::string_view types);

} // namespace emulation
