// When contents are drawn, how much of them, and what they take.
#include "desktop/drawing/display/content_store.hpp"

#include <gtest/gtest.h>

#include <optional>

namespace {

using namespace desktop;

class ContentStoreTest : public testing::Test {
protected:
    /// Asks for the picture of a content, of which the screen shows what lies on it.
    ContentStore::Picture show(const Rectangle& box, const AffineTransform& place,
                               std::uint64_t stamp = 1) {
        DisplayList list{.screen = {0, 0, 1000, 1000}, .groups = {}, .items = {}};
        DisplayItem item;
        item.kind = DisplayItem::Kind::content;
        item.stamp = stamp;
        item.shape = {place, box};
        list.add(item);
        return store.picture(list.items.at(0), [this, box](std::uint64_t, Canvas& canvas) {
            ++drawings;
            canvas.fill(ink.value_or(box), {1, 0, 0, 1});
        });
    }

    ContentStore store;
    std::optional<Rectangle> ink;
    int drawings = 0;
};

TEST_F(ContentStoreTest, DrawsAgainOnlyWhatLooksDifferent) {
    const Rectangle box{0, 0, 20, 10};
    show(box, {2, 0, 0, 2, 100, 100});
    const auto moved = show(box, {2, 0, 0, 2, 130.4, 99.6});
    EXPECT_EQ(drawings, 1);
    EXPECT_EQ(moved.x, 130) << "pictures lie on whole pixels";
    EXPECT_EQ(moved.y, 100);
    show(box, {3, 0, 0, 3, 100, 100});
    EXPECT_EQ(drawings, 2) << "another scale";
    show({0, 0, 21, 10}, {3, 0, 0, 3, 100, 100});
    EXPECT_EQ(drawings, 3) << "other bounds";
    show({0, 0, 21, 10}, {3, 0, 0, 3, 100, 100}, 2);
    EXPECT_EQ(drawings, 4) << "another stamp";
}

TEST_F(ContentStoreTest, KeepsOnlyThePartThatIsNotClear) {
    ink = Rectangle{5, 3, 2, 1};
    const auto picture = show({0, 0, 100, 100}, {2, 0, 0, 2, 50, 50});
    EXPECT_EQ(picture.x, 60);
    EXPECT_EQ(picture.y, 56);
    EXPECT_EQ(store.bytes(), 4U * 2 * 4);
    ink = Rectangle{};
    EXPECT_FALSE(show({0, 0, 9, 9}, {}, 2).surface);
}

TEST_F(ContentStoreTest, DrawsOfAHugeContentWhatCanBeSeen) {
    const Rectangle huge{0, 0, 900, 1e7};
    show(huge, {1, 0, 0, 1, 0, -5e6});
    EXPECT_LE(store.bytes(), std::size_t{4} * 900 * 1000);
    show(huge, {1, 0, 0, 1, 0, -5e6 - 400});
    const int before = drawings;
    show(huge, {1, 0, 0, 1, 0, -5e6 - 500});
    EXPECT_EQ(drawings, before) << "some more was drawn when it began to move";
}

TEST_F(ContentStoreTest, BoundsItsMemory) {
    for (std::uint64_t stamp = 1; stamp <= 40; ++stamp) {
        show({0, 0, 900, 900}, {}, stamp);
        EXPECT_LE(store.bytes(), ContentStore::mostBytes);
    }
    show({0, 0, 900, 900}, {}, 40);
    EXPECT_EQ(drawings, 40) << "the latest is there";
    show({0, 0, 900, 900}, {}, 1);
    EXPECT_EQ(drawings, 41) << "the oldest is not";
}

} // namespace
