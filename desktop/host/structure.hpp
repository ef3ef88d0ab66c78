// The C structures that messages carry: {"rect":[x,y,w,h]} and its like.
#pragma once

#include "desktop/host/response_line.hpp"

#include <array>
#include <cstddef>
#include <string_view>

namespace desktop::host {

/// A structure of at most six fields of eight bytes, all floating or all unsigned.
struct Structure {
    /// Under which its fields stand in JSON.
    const char* key;
    /// The names that compilers give it in encodings.
    std::array<std::string_view, 2> names;
    std::size_t fieldCount;
    bool isFloating;

    static constexpr std::size_t mostFields = 6;
    using Bytes = std::array<std::byte, mostFields * sizeof(double)>;

    /// Throws RequestError when the value is not of this structure.
    [[nodiscard]] Bytes fromJson(const Json& value) const;
    [[nodiscard]] Json toJson(const Bytes& bytes) const;
};

/// The structure that an encoding ("{CGRect={CGPoint=dd}{CGSize=dd}}") names; null when unknown.
[[nodiscard]] const Structure* structureOf(std::string_view encoding);

/// The structure that such a JSON key stands for; null when it stands for none.
[[nodiscard]] const Structure* structureForKey(std::string_view key);

} // namespace desktop::host
