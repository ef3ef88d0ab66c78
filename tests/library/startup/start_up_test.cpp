// Loading the library into the desktop platform: every hook in its place, the toolbox in its time.
#include "library/startup/start_up.hpp"

#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/text_view.hpp"
#include "desktop/foundation/url_session.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/uikit/uikit.hpp"
#include "library/blocking/request_hooks.hpp"
#include "library/common/draggable_view.hpp"
#include "library/editing/edit_menu_hooks.hpp"
#include "library/editing/text_gesture_hooks.hpp"
#include "library/labels/color_from_string.hpp"
#include "library/labels/label_text_hooks.hpp"
#include "library/labels/long_press_copy.hpp"
#include "library/labels/rule_editor/editor.hpp"
#include "library/labels/rule_editor_hooks.hpp"
#include "library/scratchpad/scratch_pad_hook.hpp"
#include "library/toolbox/view_model.hpp"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace wentra::startup {
namespace {

using Tables = std::vector<std::span<const objc::Change>>;

Tables allTables() {
    return {
        draggableCategory(),         labels::longPressCopyCategory(), labels::colourCategory(),
        labels::editorProperties(),  labels::editorOpening(),         labels::editorSaving(),
        labels::editorCommands(),    labels::editorGestures(),        labels::fontPicking(),
        labels::keywordSearch(),     labels::colourChoosing(),        editing::menuItemCategory(),
        editing::speechCategories(), labels::longPressCopyLoad(),     labels::labelTextLoad(),
        labels::yyLabelTextLoad(),   scratchpad::scratchPadHooks(),   blocking::requestHooks(),
        labels::containerHooks(),    labels::labelTextHooks(),        labels::cameraHooks(),
        editing::editMenuHooks(),    editing::textGestureHooks()};
}

IMP implementation(const objc::Change& change) {
    const Class cls = objc::detail::target(change.className, change.side);
    const SEL name = sel_registerName(change.selector);
    const Method method = cls != nullptr ? class_getInstanceMethod(cls, name) : nullptr;
    return method != nullptr ? method_getImplementation(method) : nullptr;
}

/// The rows' methods as they are now, by the rows' descriptions.
std::map<std::string, IMP> implementations() {
    std::map<std::string, IMP> found;
    for (const auto table : allTables()) {
        for (const objc::Change& change : table) {
            found[change.description()] = implementation(change);
        }
    }
    return found;
}

int updates = 0;
void countUpdate(objc::Next<void()> next, toolbox::ViewModel) {
    ++updates;
    next();
}

TEST(StartUp, InstallsEveryRowOnceAndTheToolboxLater) {
    const objc::Pool pool;
    desktop::Clock::shared().setMode(desktop::Clock::Mode::virtual_);
    desktop::foundation::installUrlSessions();
    desktop::uikit::registerClasses();
    desktop::uikit::startApplication({390, 844, 3});

    const auto before = implementations();
    startUp();
    const auto after = implementations();
    // Applications' own classes, frameworks that the desktop does not have, and methods that exist
    // on no platform: the table has rows for them all the same.
    const std::set<std::string> absent{
        "PSSplitViewController viewDidLoad",
        "UITableViewLabel initWithFrame:",
        "UITableViewLabel issettingsTranslationEnabled",
        "UITableViewLabel handleszTap:",
        "AWELeftSideBarCollectionReusableView layoutSubviews",
        "T1TimelineNavigationController layoutSubviews",
        "XCamera.XHContentView layoutSubviews",
        "YYLabel setText:",
        "+NSURLSession dataTaskWithURL:",
        "NSURLRequest setURL:",
    };
    for (const auto& [row, former] : before) {
        if (absent.contains(row)) {
            EXPECT_EQ(after.at(row), former) << row;
        } else {
            EXPECT_NE(after.at(row), former) << row;
        }
    }

    startUp();
    EXPECT_EQ(implementations(), after) << "a second call installed something again";

    objc::install(objc::hook<"ZKViewModel", "updateView", &countUpdate>());
    desktop::run_loop::advance(0.29);
    EXPECT_EQ(updates, 0);
    desktop::run_loop::advance(0.02);
    EXPECT_EQ(updates, 1);
    desktop::run_loop::advance(10);
    EXPECT_EQ(updates, 1);
}

TEST(StartUp, RunsInTheFixedOrder) {
    std::vector<std::string_view> names;
    for (const Step& step : steps()) {
        names.push_back(step.name);
    }
    ASSERT_EQ(names.size(), 12U);
    EXPECT_EQ(names[1], "UILabel(LongPressCopy) load");
    EXPECT_EQ(names[2], "UILabel(hook) load");
    EXPECT_EQ(names[3], "YYLabel load");
    for (std::size_t initialiser = 1; initialiser <= 8; ++initialiser) {
        EXPECT_EQ(names[3 + initialiser].front(), static_cast<char>('0' + initialiser));
    }
}

} // namespace
} // namespace wentra::startup
