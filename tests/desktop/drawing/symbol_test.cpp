// The system's symbols: names, measures, weight.
#include "desktop/drawing/symbol.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using desktop::symbol;
using desktop::SymbolStyle;

/// How much ink a symbol has, in pixels.
double ink(const SymbolStyle& style) {
    const auto image = symbol("xmark", style, 3);
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
    EXPECT_GT(ink({17, 700}), 1.2 * ink({17, 400}));
    EXPECT_EQ(ink({17, 100}), ink({17, 400}));
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
