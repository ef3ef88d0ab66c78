// What a page is told of a screen that changes: all that differs, and only tiles that do.
#include "desktop/viewer/shown_screen.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

namespace {

using namespace desktop;
using namespace desktop::viewer;

constexpr int tileWidth = ShownScreen::tileWidth;
constexpr int tileHeight = ShownScreen::tileHeight;

/// A picture with room behind each row, as surfaces have it.
class Picture {
public:
    Picture(int width, int height)
        : width_(width), height_(height), pixels_(rowBytes() * static_cast<std::size_t>(height)) {
        fill(all(), 0xFFFFFFFF);
    }

    [[nodiscard]] PixelRectangle all() const { return {0, 0, width_, height_}; }
    [[nodiscard]] ScreenPixels pixels() const {
        return {pixels_.data(), width_, height_, static_cast<std::ptrdiff_t>(rowBytes())};
    }
    void fill(const PixelRectangle& place, std::uint32_t colour) {
        for (int y = place.y; y < place.y + place.height; ++y) {
            for (int x = place.x; x < place.x + place.width; ++x) {
                std::memcpy(at(x, y), &colour, sizeof colour);
            }
        }
    }
    /// Takes over what was told.
    void apply(const Changes& changes) {
        const unsigned char* from = changes.pixels.data();
        for (const PixelRectangle& place : changes.places) {
            const std::size_t size = static_cast<std::size_t>(place.width) * 4;
            for (int row = 0; row < place.height; ++row, from += size) {
                std::memcpy(at(place.x, place.y + row), from, size);
            }
        }
        EXPECT_EQ(from, changes.pixels.data() + changes.pixels.size());
    }
    [[nodiscard]] bool differs(const Picture& other, const PixelRectangle& place) const {
        for (int y = place.y; y < place.y + place.height; ++y) {
            if (std::memcmp(at(place.x, y), other.at(place.x, y),
                            static_cast<std::size_t>(place.width) * 4) != 0) {
                return true;
            }
        }
        return false;
    }

private:
    [[nodiscard]] std::size_t rowBytes() const {
        return (static_cast<std::size_t>(width_) + 3) * 4;
    }
    [[nodiscard]] const unsigned char* at(int x, int y) const {
        return pixels_.data() + static_cast<std::size_t>(y) * rowBytes() +
               static_cast<std::size_t>(x) * 4;
    }
    unsigned char* at(int x, int y) {
        return const_cast<unsigned char*>(std::as_const(*this).at(x, y));
    }

    int width_;
    int height_;
    Bytes pixels_;
};

using Places = std::vector<PixelRectangle>;

Changes update(ShownScreen& shown, const Picture& picture, const Places& regions) {
    return shown.update(picture.pixels(), regions);
}

TEST(ShownScreen, EverythingIsToldAtFirstAndWhenTheSizeIsAnother) {
    ShownScreen shown;
    for (const auto& [width, height] : {std::pair{100, 40}, {40, 100}, {1, 1}}) {
        Picture picture(width, height);
        Picture page(width, height);
        page.fill(page.all(), 0);
        page.apply(update(shown, picture, {picture.all()}));
        EXPECT_FALSE(page.differs(picture, picture.all())) << width << " x " << height;
        EXPECT_TRUE(update(shown, picture, {picture.all()}).places.empty());
    }
}

TEST(ShownScreen, APixelIsToldWithItsTile) {
    Picture picture(2 * tileWidth + 10, 2 * tileHeight + 5);
    ShownScreen shown;
    static_cast<void>(update(shown, picture, {picture.all()}));
    const PixelRectangle middle{tileWidth + 1, tileHeight + 1, 1, 1};
    picture.fill(middle, 0xFF000000);
    EXPECT_EQ(update(shown, picture, {picture.all()}).places,
              (Places{{tileWidth, tileHeight, tileWidth, tileHeight}}));
    const PixelRectangle corner{2 * tileWidth + 9, 2 * tileHeight + 4, 1, 1};
    picture.fill(corner, 0xFF000000);
    EXPECT_EQ(update(shown, picture, {corner}).places,
              (Places{{2 * tileWidth, 2 * tileHeight, 10, 5}}))
        << "as much of it as there is";
    picture.fill(middle, 0xFF000000);
    EXPECT_TRUE(update(shown, picture, {middle, corner}).places.empty()) << "drawn anew, the same";
}

TEST(ShownScreen, NeighboursInARowAreOnePlace) {
    Picture picture(4 * tileWidth, 2 * tileHeight);
    ShownScreen shown;
    static_cast<void>(update(shown, picture, {picture.all()}));
    picture.fill({tileWidth - 1, 0, tileWidth + 2, 1}, 0xFF0000FF);
    picture.fill({0, tileHeight, 1, 1}, 0xFF0000FF);
    picture.fill({3 * tileWidth, tileHeight, 1, 1}, 0xFF0000FF);
    EXPECT_EQ(update(shown, picture, {picture.all()}).places,
              (Places{{0, 0, 3 * tileWidth, tileHeight},
                      {0, tileHeight, tileWidth, tileHeight},
                      {3 * tileWidth, tileHeight, tileWidth, tileHeight}}));
}

/// Disjoint, and different wherever a tile of them begins.
void expectOnlyNews(const Places& places, const Picture& before, const Picture& after) {
    for (std::size_t index = 0; index < places.size(); ++index) {
        const PixelRectangle& place = places[index];
        for (int x = place.x; x < place.x + place.width; x += tileWidth) {
            const int width = std::min(tileWidth, place.x + place.width - x);
            EXPECT_TRUE(before.differs(after, {x, place.y, width, place.height}));
        }
        for (std::size_t other = 0; other < index; ++other) {
            EXPECT_TRUE(intersection(place, places[other]).isEmpty());
        }
    }
}

TEST(ShownScreen, APageThatTakesOverWhatItIsToldShowsTheScreen) {
    std::mt19937 random(11);
    const auto below = [&random](int end) { return static_cast<int>(random() % unsigned(end)); };
    constexpr int width = 391;
    constexpr int height = 205;
    Picture picture(width, height);
    Picture page(width, height);
    ShownScreen shown;
    page.apply(update(shown, picture, {picture.all()}));
    for (int turn = 0; turn < 200; ++turn) {
        Places regions;
        for (int count = below(4); count > 0; --count) {
            const int x = below(width);
            const int y = below(height);
            regions.push_back({x, y, 1 + below(width - x), 1 + below(height - y)});
            if (below(4) > 0) {
                picture.fill(regions.back(), 0xFF000000U | static_cast<std::uint32_t>(below(3)));
            }
        }
        const Changes changes = update(shown, picture, regions);
        expectOnlyNews(changes.places, page, picture);
        page.apply(changes);
        ASSERT_FALSE(page.differs(picture, picture.all())) << "turn " << turn;
    }
}

} // namespace
