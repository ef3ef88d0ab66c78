// The system's symbols: names, measures, weight.
#include "desktop/drawing/symbol.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

using desktop::symbol;
using desktop::SymbolStyle;

/// How much ink a symbol has, in pixels.
double ink(const SymbolStyle& style, const char* name) {
    const auto image = symbol(name, style, 3);
    double sum = 0;
    for (int y = 0; y < image->pixelHeight(); ++y) {
        for (int x = 0; x < image->pixelWidth(); ++x) {
            sum += image->pixel(x, y).alpha;
        }
    }
    return sum;
}

TEST(Symbols, AreKnownByThePhonesNames) {
    for (const char* name : {"app.badge.checkmark",
                             "arrow.down.forward.and.arrow.up.backward.circle",
                             "arrow.left.and.right.circle",
                             "arrow.up.left.and.down.right.and.arrow.up.right.and.down.left",
                             "arrowshape.turn.up.forward",
                             "book",
                             "camera.circle.fill",
                             "chart.bar.doc.horizontal",
                             "checkmark.circle",
                             "checkmark.circle.fill",
                             "checkmark.square",
                             "chevron.backward",
                             "chevron.down.square",
                             "doc.on.doc",
                             "dongsign.square",
                             "dot.viewfinder",
                             "envelope",
                             "faxmachine",
                             "magnifyingglass",
                             "network",
                             "pencil.and.outline",
                             "photo",
                             "photo.artframe",
                             "plus",
                             "questionmark.circle",
                             "square.and.arrow.up",
                             "square.fill.text.grid.1x2",
                             "square.grid.3x3",
                             "stop.circle.fill",
                             "textformat.abc.dottedunderline",
                             "trash",
                             "trash.fill"}) {
        EXPECT_TRUE(symbol(name, {}, 3)) << name;
    }
    for (const char* name : {"", ".", "..", "nonesuch", "trash_fill", "square_arrow_up", "Trash"}) {
        EXPECT_FALSE(symbol(name, {}, 3)) << name;
    }
}

TEST(Symbols, GoWithTextOfTheirSize) {
    const auto usual = symbol("trash", {}, 3);
    EXPECT_NEAR(usual->size().height, 22, 1.5);
    EXPECT_NEAR(usual->size().width, 20, 1.5);
    const auto twice = symbol("trash", {34}, 3);
    EXPECT_NEAR(twice->size().height, 2 * usual->size().height, 1);
    EXPECT_GT(usual->pixel(usual->pixelWidth() / 2, 2).alpha, 0.5) << "the lid, upside up";
}

TEST(Symbols, AreHeavierInHeavierWeights) {
    for (const char* name : {"xmark", "dongsign.square"}) {
        EXPECT_GT(ink({17, 700}, name), 1.2 * ink({17, 400}, name));
        EXPECT_EQ(ink({17, 100}, name), ink({17, 400}, name));
    }
}

/// The ink of a symbol at places of it, from 0 to 9 in both directions: `#` all, `.` none.
std::string look(const char* name, const std::vector<std::pair<int, int>>& places) {
    const auto image = symbol(name, {50}, 3);
    std::string seen;
    for (const auto& [x, y] : places) {
        const double alpha = image
                                 ->pixel((2 * x + 1) * image->pixelWidth() / 20,
                                         (2 * y + 1) * image->pixelHeight() / 20)
                                 .alpha;
        seen += alpha > 0.9 ? '#' : alpha < 0.1 ? '.' : '?';
    }
    return seen;
}

TEST(Symbols, AreDrawnByHandWhereTheIconSetHasNone) {
    EXPECT_EQ(look("dot.viewfinder", {{4, 4}, {1, 0}, {8, 9}, {4, 0}, {2, 2}}), "###..");
    EXPECT_EQ(look("square.fill.text.grid.1x2", {{1, 2}, {1, 8}, {6, 0}, {6, 1}}), "###.");
    EXPECT_EQ(look("app.badge.checkmark", {{7, 0}, {2, 1}, {8, 2}, {5, 1}, {4, 5}}), "###..");
    EXPECT_EQ(look("dongsign.square", {{1, 0}, {8, 9}, {4, 3}, {4, 1}, {7, 7}}), "###..");
}

TEST(Symbols, SurviveAnySize) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double size :
         {0.0, -5.0, std::numeric_limits<double>::quiet_NaN(), 1e-9, infinity}) {
        ASSERT_TRUE(symbol("plus", {size}, 1)) << size;
    }
    EXPECT_LE(symbol("plus", {infinity}, 1)->pixelWidth(), 1000);
}

} // namespace
