// HexCell: a byte in a grid.
#pragma once

#include "bindings/uikit/collection_view_cell.hpp"
#include "bindings/uikit/label.hpp"

namespace wentra::files {

struct HexCell : objc::Kind<HexCell, "HexCell", ui::CollectionViewCell> {
    using Kind::Kind;

    /// Fills the cell.
    [[nodiscard]] ui::Label hexLabel() const { return send<"hexLabel", ui::Label>(); }
};

/// Declares the class.
[[gnu::cold]] void registerHexCell();

} // namespace wentra::files
