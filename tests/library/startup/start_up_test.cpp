// Loading the library into the desktop platform: every hook in its place, the toolbox in its time.
#include "library/startup/start_up.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/text_view.hpp"
#include "desktop/foundation/url_session.hpp"
#include "desktop/platform/platform.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/uikit/uikit.hpp"
#include "library/toolbox/view_model.hpp"
#include "tests/support/own_process.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

namespace wentra::startup {
namespace {

/// Every table that start-up installs.
std::vector<std::span<const objc::Change>> allTables() {
    std::vector<std::span<const objc::Change>> tables;
    for (const Face& face : faces()) {
        for (const Table category : face.categories) {
            tables.push_back(category());
        }
    }
    for (const Step& step : steps()) {
        for (const Table hooks : step.hooks) {
            tables.push_back(hooks());
        }
    }
    return tables;
}

IMP implementation(const objc::Change& change) {
    const Class cls = change.side == objc::Side::type ? objc_getMetaClass(change.className)
                                                      : objc_lookUpClass(change.className);
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

/// The names that are observed on the main queue, as they come.
std::vector<std::string> observed;
IMP formerObserve = nullptr;
id keepObserved(id self, SEL message, id name, id object, id queue, id block) {
    if (queue == ns::OperationQueue::mainQueue().raw()) {
        observed.push_back(objc::wrap<ns::String>(name).utf8());
    }
    return objc::invoke<objc::Object>(formerObserve, self, message, name, object, queue, block)
        .raw();
}

/// Not a hook: the desktop's Foundation writes the block's type in its own way.
void watchObservers() {
    const Method method =
        class_getInstanceMethod(objc_lookUpClass("NSNotificationCenter"),
                                sel_registerName("addObserverForName:object:queue:usingBlock:"));
    formerObserve = method_setImplementation(method, reinterpret_cast<IMP>(&keepObserved));
}

int updates = 0;
void countUpdate(objc::Next<void()> next, toolbox::ViewModel) {
    ++updates;
    next();
}

void expectEveryRowOnceAndTheToolboxLater() {
    const objc::Pool pool;
    desktop::Clock::shared().setMode(desktop::Clock::Mode::virtual_);
    desktop::foundation::installUrlSessions();
    desktop::registerPlatform();
    desktop::uikit::startApplication(desktop::usualDevice());

    watchObservers();
    const auto before = implementations();
    startUp();
    EXPECT_EQ(std::ranges::count(observed, std::string("UIMenuControllerWillShowMenuNotification")),
              1);
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

    toolbox::ViewModel::sendClass<"class">(); // its methods come with it
    objc::install(objc::hook<"updateView", &countUpdate>());
    desktop::run_loop::advance(0.29);
    EXPECT_EQ(updates, 0);
    desktop::run_loop::advance(0.02);
    EXPECT_EQ(updates, 1);
    desktop::run_loop::advance(10);
    EXPECT_EQ(updates, 1);
}

TEST(StartUp, InstallsEveryRowOnceAndTheToolboxLater) {
    tests::inProcessOfItsOwn(&expectEveryRowOnceAndTheToolboxLater);
}

/// "UILabel setText:, …": the first row of each of a step's tables.
std::string firstRows(const Step& step) {
    std::string rows;
    for (const Table hooks : step.hooks) {
        rows += (rows.empty() ? "" : ", ") + hooks().front().description();
    }
    return rows;
}

TEST(StartUp, InstallsItsHooksInTheFixedOrder) {
    std::vector<std::string> rows;
    for (const Step& step : steps()) {
        rows.push_back(firstRows(step));
    }
    const std::vector<std::string> expected{
        "", // classes and categories
        "UILabel didMoveToSuperview",
        "UILabel setText:",
        "YYLabel setText:",
        "PSSplitViewController viewDidLoad",
        "", // the preference path and the toolbox
        "+NSURL URLWithString:",
        "UIStackView layoutSubviews, UILabel setText:",
        "XCamera.XHContentView layoutSubviews",
        "", // the observer of the edit menu
        "UIResponder canBecomeFirstResponder, UITextView canPerformAction:withSender:, "
        "UITextField canPerformAction:withSender:, UIMenuController update",
        "YYLabel initWithFrame:",
    };
    EXPECT_EQ(rows, expected);
    for (const Step& step : steps()) {
        EXPECT_EQ(step.action != nullptr, step.hooks.empty()) << step.name;
    }
}

} // namespace
} // namespace wentra::startup
