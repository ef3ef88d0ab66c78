// Texts on their way to the platform.
#pragma once

#include "bindings/foundation/array.hpp"

#include <functional>
#include <ranges>

namespace wentra {

/// A new array of strings, one for each of the UTF-16 texts, or for the part of each element that
/// is a text.
template <class Part = std::identity>
[[nodiscard]] ns::MutableArray stringArray(const std::ranges::input_range auto& texts,
                                           Part part = {}) {
    const auto array = ns::MutableArray::make();
    for (const auto& text : texts) {
        array.add(ns::String::from(std::invoke(part, text)));
    }
    return array;
}

} // namespace wentra
