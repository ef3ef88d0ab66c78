// NSIndexPath: where an item is in a list of sections.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ns {

struct IndexPath : objc::Kind<IndexPath, "NSIndexPath"> {
    using Kind::Kind;

    static IndexPath forItem(long item, long section) {
        return sendClass<"indexPathForItem:inSection:", IndexPath>(item, section);
    }
    [[nodiscard]] long item() const { return send<"item", long>(); }
    [[nodiscard]] long section() const { return send<"section", long>(); }
};

} // namespace ns
