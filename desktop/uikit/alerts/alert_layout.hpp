// How an alert or action sheet divides its room. Points; no views.
#pragma once

#include "bindings/coregraphics/geometry.hpp"

#include <vector>

namespace desktop {

/// What is to be laid out.
struct AlertContent {
    bool isSheet = false;
    /// The height of title, message and fields; 0 when there is none of them.
    double headerHeight = 0;
    /// Actions in the card, without a sheet's cancel action.
    std::size_t rowCount = 0;
    /// Whether two rows are short enough to lie side by side.
    bool rowsAreShort = false;
    /// Whether a sheet has a cancel action, on a card of its own.
    bool hasCancelCard = false;
};

/// Rectangles in the coordinates of the whole; what does not fit scrolls in header and list.
struct AlertLayout {
    static constexpr double alertWidth = 270;
    static constexpr double alertRow = 44;
    static constexpr double sheetRow = 57;
    /// Between a sheet and the edges of the screen, and between its cards.
    static constexpr double sheetGap = 8;

    CGSize size;
    CGRect card;
    CGRect header;
    CGRect list;
    /// In the list's coordinates, from the top.
    std::vector<CGRect> rows;
    double listContentHeight = 0;
    CGRect cancelCard;
};

/// The layout on a screen where that much room is free.
[[nodiscard]] AlertLayout layOutAlert(const AlertContent& content, CGSize room);

} // namespace desktop
