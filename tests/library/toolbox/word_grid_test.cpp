// The word grid with a large text: what it costs is counted, not timed.
#include "bindings/foundation/set.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/button.hpp"
#include "desktop/platform/platform.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/uikit/uikit.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/grid/tile_measuring.hpp"

#include <gtest/gtest.h>

#include <string>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

constexpr unsigned long tokenCount = 20'000;

ns::Array tokens() {
    const auto words = ns::MutableArray::make();
    for (unsigned long token = 0; token < tokenCount; ++token) {
        words.add(ns::String::fromUtf8("w" + std::to_string(token)));
    }
    return words;
}

unsigned long removals = 0;
void countRemoval(objc::Next<void(objc::Object)> next, objc::Object, objc::Object element) {
    ++removals;
    next(element);
}

unsigned long comparisons = 0;
bool countComparison(objc::Next<bool(objc::Object)> next, objc::Object, objc::Object other) {
    ++comparisons;
    return next(other);
}

ns::String titleAfterTap(FloatingViewController controller) {
    const auto button = controller.send<"selectAllButton", ui::Button>();
    const ns::String before = button.titleFor(ui::ControlState::normal);
    controller.send<"selectAllButtonClicked:">(button);
    constexpr int mostSleeps = 100; // the tiles are collected on another thread
    constexpr double longestSleep = 0.1;
    for (int sleeps = 0; sleeps < mostSleeps && button.titleFor(ui::ControlState::normal) == before;
         ++sleeps) {
        desktop::run_loop::sleep(-1, longestSleep);
        desktop::run_loop::runUntilIdle();
    }
    return button.titleFor(ui::ControlState::normal);
}

TEST(WordGrid, MeasuresATileForTheWidthThatItsGridHasNow) {
    const objc::Pool pool;
    desktop::registerPlatform();
    const auto token = ns::String::from(std::u16string(200, u'x'));
    for (const double width : {300.0, 150.0, 300.0}) {
        EXPECT_GT(measuredTile(token, width).width, width - 50) << width;
        EXPECT_LE(measuredTile(token, width).width, width + 3) << width;
    }
}

TEST(WordGrid, LetsALargeTextGoInOnePass) {
    const objc::Pool pool;
    desktop::Clock::shared().setMode(desktop::Clock::Mode::virtual_);
    desktop::registerPlatform();
    desktop::uikit::startApplication(desktop::usualDevice());
    registerFloatingViewController();
    const auto controller = FloatingViewController::make();
    static_cast<void>(controller.view());
    controller.updateWordsArray(tokens());

    EXPECT_TRUE(titleAfterTap(controller).isEqualToString(u"取消全选"_ns));
    EXPECT_EQ(controller.selectedWords().count(), tokenCount);
    const auto picked = controller.send<"selectedIndexPaths", ns::MutableSet>();
    EXPECT_EQ(picked.count(), tokenCount);

    ASSERT_EQ(objc::install(objc::hook<"GSMutableSet", "removeObject:", &countRemoval>()),
              objc::Outcome::installed);
    ASSERT_EQ(objc::install(objc::hook<"NSIndexPath", "isEqual:", &countComparison>()),
              objc::Outcome::installed);
    EXPECT_TRUE(titleAfterTap(controller).isEqualToString(u"全选文字"_ns));
    EXPECT_EQ(picked.count(), 0U);
    EXPECT_EQ(removals, 0U);
    EXPECT_LE(comparisons, 4 * tokenCount);
}

} // namespace
} // namespace wentra::toolbox
