// The place of an item in a list of sections, as a plain value.
#pragma once

#include "bindings/foundation/index_path.hpp"

#include <compare>

namespace desktop {

struct ItemIndex {
    long section = 0;
    long item = 0;
    // A comparison's zero is no pointer. NOLINTNEXTLINE(modernize-use-nullptr)
    friend auto operator<=>(const ItemIndex&, const ItemIndex&) = default;

    /// The path must not be nil.
    static ItemIndex of(ns::IndexPath path) { return {path.section(), path.item()}; }
    [[nodiscard]] ns::IndexPath path() const { return ns::IndexPath::forItem(item, section); }
};

} // namespace desktop
