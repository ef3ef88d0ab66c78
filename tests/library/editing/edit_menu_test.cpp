// What passes through the edit menu's hooks, and the synthesizer that a text view keeps.
#include "library/editing/edit_menu.hpp"
#include "library/editing/text_actions.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/menu_controller.hpp"
#include "bindings/uikit/text_field.hpp"
#include "bindings/uikit/text_view.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/platform/platform.hpp"
#include "tests/support/own_process.hpp"

#include <gtest/gtest.h>

namespace wentra::editing {
namespace {

using namespace ns::literals;

void install(std::span<const objc::Change> changes) {
    for (const objc::Change& change : changes) {
        objc::install(change);
    }
}

struct Question {
    SEL action = nullptr;
    objc::Object sender;
};
Question asked;

bool note(objc::Next<bool(SEL, objc::Object)>, objc::Object, SEL action, objc::Object sender) {
    asked = {action, sender};
    return false;
}

void expectTheFormerMethodIsAskedWithItsOwnArguments() {
    const objc::Pool pool;
    desktop::registerPlatform();
    objc::install(objc::hook<"UIResponder", "canPerformAction:withSender:", &note>());
    install(responderHooks());
    const auto view = ui::View::withFrame({});
    const auto action = objc::selector<"copy:">();
    EXPECT_FALSE((view.send<"canPerformAction:withSender:", bool>(action, u"sender"_ns)));
    EXPECT_EQ(asked.action, action);
    EXPECT_TRUE(asked.sender && asked.sender.isEqual(u"sender"_ns));
}

TEST(EditMenuHooks, AskTheFormerMethodWithItsOwnArguments) {
    tests::inProcessOfItsOwn(&expectTheFormerMethodIsAskedWithItsOwnArguments);
}

int questions = 0;

/// As an application may: a view leaves it to one that can be the first responder.
bool wonder(objc::Next<bool(SEL, objc::Object)>, ui::View view, SEL, objc::Object) {
    ++questions;
    return !view.superview().canBecomeFirstResponder();
}

void expectAnUpdateThatAsksToEnd() {
    const objc::Pool pool;
    desktop::registerPlatform();
    install(menuHooks());
    install(responderHooks());
    objc::install(objc::hook<"UIView", "canPerformAction:withSender:", &wonder>());
    const auto window = ui::Window::withFrame({{0, 0}, {100, 100}});
    window.makeKeyAndVisible();
    const auto field = ui::TextField::withFrame({{0, 0}, {100, 20}});
    window.addSubview(field);
    ASSERT_TRUE(field.becomeFirstResponder());
    const auto menu = ui::MenuController::sharedMenuController();
    const auto items = ns::MutableArray::make();
    items.add(ui::MenuItem::with(u"拼音"_ns, objc::selector<"pinyin:">()));
    menu.setMenuItems(items);
    menu.showMenu(field, {{0, 0}, {10, 10}});
    ASSERT_TRUE(menu.isMenuVisible());
    questions = 0;
    EXPECT_FALSE(window.canBecomeFirstResponder());
    EXPECT_GT(questions, 0);
}

TEST(EditMenuHooks, UpdateOnceHoweverOftenTheyAreAskedMeanwhile) {
    tests::inProcessOfItsOwn(&expectAnUpdateThatAsksToEnd);
}

struct UnwillingDelegate : objc::Kind<UnwillingDelegate, "TestUnwillingDelegate"> {};

class UnwillingDelegatePeer
    : public objc::Peer<UnwillingDelegatePeer, UnwillingDelegate, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"textViewDidChange:", &UnwillingDelegatePeer::changed>()};
    }
    static inline int raised = 0;

private:
    void changed(objc::Object) {
        ++raised;
        ns::Exception::with(u"No"_ns, u"not to be changed"_ns).raise();
    }
};

void expectAnUnwillingDelegateToEndNothing() {
    const objc::Pool pool;
    desktop::registerPlatform();
    install(menuItemCategory());
    install(speechCategories());
    install(textViewHooks());
    UnwillingDelegatePeer::registerClass();
    const auto view = ui::TextView::withFrame({});
    const auto delegate = UnwillingDelegate::make();
    view.send<"setDelegate:">(delegate);
    for (const SEL action : {objc::selector<"deleteSelectedText:">(), objc::selector<"cutText:">(),
                             objc::selector<"pasteText:">(), objc::selector<"addComment:">()}) {
        view.setText(u"text"_ns);
        view.setSelectedRange({0, 4});
        EXPECT_NO_THROW(objc::sendTo(view.raw(), action, objc::Object())) << sel_getName(action);
    }
    EXPECT_EQ(UnwillingDelegatePeer::raised, 3) << "what is set by the program is not told";
}

TEST(TextViewActions, SurviveADelegateThatRaises) {
    tests::inProcessOfItsOwn(&expectAnUnwillingDelegateToEndNothing);
}

TEST(SpeechCategories, ATextViewRetainsItsSynthesizer) {
    const objc::Pool pool;
    desktop::registerPlatform();
    install(speechCategories());
    const auto view = ui::TextView::withFrame({});
    const auto synthesizer = ui::View::withFrame({});
    const auto owners = [&] { return synthesizer.send<"retainCount", unsigned long>(); };
    const unsigned long before = owners();
    view.send<"setSynth:">(synthesizer);
    EXPECT_EQ(owners(), before + 1);
    EXPECT_EQ((view.send<"synth", objc::Object>()), synthesizer);
    view.send<"setSynth:">(objc::Object());
    EXPECT_EQ(owners(), before);
}

} // namespace
} // namespace wentra::editing
