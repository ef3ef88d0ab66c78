// Shapes, images and groups reach the right pixels.
#include "desktop/drawing/canvas.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace desktop;

namespace {

constexpr Colour red{1, 0, 0};
constexpr Colour blue{0, 0, 1};
constexpr Colour clear{0, 0, 0, 0};

TEST(Canvas, HasThePixelsOfThePhone) {
    const Image image = Canvas({390, 844}, 3).snapshot();
    EXPECT_EQ(image.pixelWidth(), 1170);
    EXPECT_EQ(image.pixelHeight(), 2532);
    EXPECT_EQ(image.size(), (Size{390, 844}));
    EXPECT_EQ(image.pixel(5, 5), clear);
}

TEST(Canvas, BoundsItsSize) {
    const Image smallest = Canvas({std::nan(""), -5}, std::nan("")).snapshot();
    EXPECT_EQ(smallest.pixelWidth(), 1);
    EXPECT_EQ(smallest.pixelHeight(), 1);
    EXPECT_EQ(Canvas({1e300, 1}, 1).snapshot().pixelWidth(), Image::largestSide);
}

TEST(Canvas, FillsWithRoundCorners) {
    Canvas canvas({20, 20}, 2);
    canvas.fill({0, 0, 20, 20}, red, 10);
    const Image image = canvas.snapshot();
    EXPECT_EQ(image.pixel(20, 20), red);
    EXPECT_EQ(image.pixel(0, 0), clear);
    EXPECT_EQ(image.pixel(39, 39), clear);
    EXPECT_EQ(image.pixel(20, 1), red);
}

TEST(Canvas, StrokesInside) {
    Canvas canvas({20, 20}, 1);
    canvas.stroke({5, 5, 10, 10}, red, 2);
    const Image image = canvas.snapshot();
    EXPECT_EQ(image.pixel(4, 10), clear);
    EXPECT_EQ(image.pixel(5, 10), red);
    EXPECT_EQ(image.pixel(6, 10), red);
    EXPECT_EQ(image.pixel(7, 10), clear);
}

TEST(Canvas, KeepsStates) {
    Canvas canvas({20, 20}, 1);
    canvas.save();
    canvas.translate(10, 0);
    canvas.clip({0, 0, 5, 5});
    canvas.fill({-100, -100, 200, 200}, red);
    canvas.restore();
    canvas.fill({0, 19, 1, 1}, blue);
    const Image image = canvas.snapshot();
    EXPECT_EQ(image.pixel(9, 0), clear);
    EXPECT_EQ(image.pixel(14, 4), red);
    EXPECT_EQ(image.pixel(15, 4), clear);
    EXPECT_EQ(image.pixel(14, 5), clear);
    EXPECT_EQ(image.pixel(0, 19), blue);
}

TEST(Canvas, TransformsAsThePhoneDoes) {
    Canvas canvas({20, 20}, 1);
    // A quarter turn: x goes down, y goes left.
    EXPECT_TRUE(canvas.concatenate({.a = 0, .b = 1, .c = -1, .d = 0, .tx = 10, .ty = 0}));
    canvas.fill({5, 2, 1, 1}, red);
    EXPECT_EQ(canvas.snapshot().pixel(7, 5), red);
}

TEST(Canvas, RefusesImpossibleTransforms) {
    Canvas canvas({4, 4}, 1);
    EXPECT_FALSE(canvas.concatenate({.a = 0}));
    EXPECT_FALSE(canvas.concatenate({.a = std::nan("")}));
    EXPECT_FALSE(canvas.translate(HUGE_VAL, 0));
    canvas.fill({0, 0, 4, 4}, red);
    EXPECT_EQ(canvas.snapshot().pixel(2, 2), red);
}

TEST(Canvas, SurvivesImpossibleRectangles) {
    Canvas canvas({4, 4}, 1);
    const double notANumber = std::nan("");
    for (const Rectangle& area : {Rectangle{0, 0, -1, 4}, Rectangle{notANumber, 0, 4, 4},
                                  Rectangle{0, 0, notANumber, 4}, Rectangle{0, 0, 0, 0}}) {
        canvas.fill(area, red, notANumber);
        canvas.stroke(area, red, 1);
        canvas.drawShadow(area, red, {notANumber, 0}, HUGE_VAL);
    }
    EXPECT_EQ(canvas.snapshot().pixel(1, 1), clear);
    canvas.fill({-1e300, -1e300, std::numeric_limits<double>::max(), HUGE_VAL}, blue);
    EXPECT_EQ(canvas.snapshot().pixel(1, 1), blue);
    EXPECT_EQ(cairo_status(canvas.context()), CAIRO_STATUS_SUCCESS);
}

TEST(Canvas, ComposesGroupsAsOne) {
    Canvas canvas({4, 4}, 1);
    canvas.beginGroup();
    canvas.fill({0, 0, 4, 4}, red);
    canvas.fill({0, 0, 4, 4}, blue);
    canvas.endGroup(0.5);
    const Colour colour = canvas.snapshot().pixel(1, 1);
    EXPECT_NEAR(colour.alpha, 0.5, 0.01);
    EXPECT_EQ(colour.red, 0);
    EXPECT_NEAR(colour.blue, 1, 0.01);
}

TEST(Canvas, DrawsImagesStretched) {
    Canvas small({2, 1}, 1);
    small.fill({0, 0, 1, 1}, red);
    small.fill({1, 0, 1, 1}, blue);
    Canvas canvas({40, 20}, 1);
    canvas.draw(small.snapshot(), {10, 5, 20, 10});
    const Image image = canvas.snapshot();
    EXPECT_EQ(image.pixel(9, 10), clear);
    EXPECT_EQ(image.pixel(11, 6), red);
    EXPECT_EQ(image.pixel(28, 13), blue);
    EXPECT_EQ(image.pixel(30, 10), clear);
}

TEST(Canvas, BlursShadows) {
    Canvas canvas({100, 100}, 1);
    canvas.drawShadow({30, 30, 40, 40}, {0, 0, 0, 1}, {0, 10}, 5);
    const Image image = canvas.snapshot();
    EXPECT_GT(image.pixel(50, 60).alpha, 0.98);
    EXPECT_NEAR(image.pixel(50, 40).alpha, 0.5, 0.06);
    EXPECT_NEAR(image.pixel(50, 79).alpha, 0.5, 0.06);
    EXPECT_LT(image.pixel(50, 24).alpha, 0.02);
    // One deviation outside of the edge, as a Gaussian has it.
    EXPECT_NEAR(image.pixel(50, 34).alpha, 0.16, 0.04);
}

TEST(Canvas, DrawsOnOtherContexts) {
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 4, 4);
    cairo_t* context = cairo_create(surface);
    Canvas canvas(context);
    canvas.fill({0, 0, 4, 4}, red);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
    EXPECT_EQ(canvas.snapshot().pixel(3, 3), red);
}

} // namespace
