// Texts on their way to the platform.
#pragma once

#include "bindings/foundation/array.hpp"

#include <ranges>

namespace wentra {

/// A new array of strings, one for each of the UTF-16 texts.
[[nodiscard]] ns::MutableArray stringArray(const std::ranges::input_range auto& texts) {
    const auto array = ns::MutableArray::make();
    for (const std::u16string_view text : texts) {
        array.add(ns::String::from(text));
    }
    return array;
}

} // namespace wentra
