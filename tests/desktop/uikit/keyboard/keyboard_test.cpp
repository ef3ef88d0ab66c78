// The keyboard, the caret and the edit menu, by touch and by clock.
#include "tests/desktop/uikit/text_fixture.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/uikit/menu_controller.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "desktop/uikit/keyboard/keyboard.hpp"
#include "desktop/uikit/menus/menu_controller.hpp"
#include "desktop/uikit/text/text_effects_window.hpp"

namespace {

using namespace ns::literals;

class KeyboardTest : public tests::TextTest {
protected:
    KeyboardTest() {
        for (const char16_t* name :
             {u"UIKeyboardWillShowNotification", u"UIKeyboardDidShowNotification",
              u"UIKeyboardWillHideNotification", u"UIKeyboardDidHideNotification"}) {
            observers_.emplace_back(ns::NotificationCenter::defaultCenter().addObserverForName(
                ns::String::from(name), nullptr, nullptr,
                objc::Block<void(ns::Notification)>::from([this](ns::Notification notification) {
                    const std::string full = notification.name().utf8();
                    posted_ += full.substr(10, full.size() - 22) + " ";
                    info_ = notification.userInfo();
                })));
        }
    }
    ~KeyboardTest() override {
        window_.send<"endEditing:", bool>(true);
        desktop::run_loop::advance(1);
        for (const auto& observer : observers_) {
            ns::NotificationCenter::defaultCenter().send<"removeObserver:">(observer.raw());
        }
    }
    std::string takePosted() { return std::exchange(posted_, {}); }
    CGRect frame(ns::String key) { return info_.get(key).send<"CGRectValue", CGRect>(); }
    std::vector<std::string> menuTitles() {
        std::vector<std::string> titles;
        const auto shared = ui::MenuController::sharedMenuController();
        for (const auto& item : desktop::MenuController::of(shared).shownItems()) {
            titles.push_back(item.title().utf8());
        }
        return titles;
    }
    /// The caret's own view.
    ui::View caret() {
        const ui::View last = [this] {
            ui::View found;
            for (const ui::View child : view_.subviews()) {
                found = child;
            }
            return found;
        }();
        return last.subviews().first();
    }

    /// The focus in a text view that scrolls, and the keyboard on the screen.
    void showKeyboard(ui::KeyboardDismissMode mode) {
        view_.setFrame({{20, 100}, {300, 300}});
        view_.setAlwaysBounceVertical(true);
        view_.setKeyboardDismissMode(mode);
        view_.becomeFirstResponder();
        desktop::run_loop::advance(1);
        takePosted();
    }
    static void dragTo(double y) {
        move({160, y});
        desktop::run_loop::advance(0.02);
    }
    static double keyboardTop() {
        const auto window = desktop::TextEffectsWindow::shared();
        const objc::Object keyboard = window.subviews().first();
        return keyboard ? keyboard.assume<ui::View>().frame().origin.y : 844;
    }

    std::vector<objc::Strong<objc::Object>> observers_;
    std::string posted_;
    objc::Strong<ns::Dictionary> info_;
};

TEST_F(KeyboardTest, ComesAndGoesWithTheFocus) {
    const ui::Window key = ui::Application::sharedApplication().keyWindow();
    const auto windows = ui::Application::sharedApplication().windows().count();
    view_.becomeFirstResponder();
    EXPECT_EQ(takePosted(), "WillShow ");
    EXPECT_EQ(frame(u"UIKeyboardFrameBeginUserInfoKey"_ns), (CGRect{{0, 844}, {390, 336}}));
    EXPECT_EQ(frame(u"UIKeyboardFrameEndUserInfoKey"_ns), (CGRect{{0, 508}, {390, 336}}));
    EXPECT_EQ(
        info_.get(u"UIKeyboardAnimationDurationUserInfoKey"_ns).assume<ns::Number>().doubleValue(),
        0.25);
    EXPECT_EQ(
        info_.get(u"UIKeyboardAnimationCurveUserInfoKey"_ns).assume<ns::Number>().integerValue(),
        7);
    desktop::run_loop::advance(0.24);
    EXPECT_EQ(takePosted(), "");
    desktop::run_loop::advance(0.02);
    EXPECT_EQ(takePosted(), "DidShow ");
    EXPECT_EQ(ui::Application::sharedApplication().keyWindow(), key);
    EXPECT_EQ(ui::Application::sharedApplication().windows().count(), windows);
    field_.becomeFirstResponder();
    EXPECT_EQ(takePosted(), "") << "it stays";
    field_.resignFirstResponder();
    desktop::run_loop::advance(0.3);
    EXPECT_EQ(takePosted(), "WillHide DidHide ");
    view_.setEditable(false);
    EXPECT_TRUE(view_.becomeFirstResponder());
    EXPECT_EQ(takePosted(), "") << "nothing to type";
}

TEST_F(KeyboardTest, IsAwayWhileThereIsARealOne) {
    using desktop::Keyboard;
    showKeyboard(ui::KeyboardDismissMode::none);
    Keyboard::shared().setHardware(true);
    desktop::run_loop::advance(0.3);
    EXPECT_EQ(takePosted(), "WillHide DidHide ");
    EXPECT_TRUE(view_.isFirstResponder());
    EXPECT_EQ(Keyboard::shared().height(), 0);
    field_.becomeFirstResponder();
    desktop::run_loop::advance(0.3);
    EXPECT_EQ(takePosted(), "");

    const objc::Strong<ui::View> bar = ui::View::withFrame({{0, 0}, {0, 44}});
    view_.send<"setInputAccessoryView:">(bar.raw());
    view_.becomeFirstResponder();
    desktop::run_loop::advance(0.3);
    EXPECT_EQ(takePosted(), "WillShow DidShow ") << "what stands above the keys is still there";
    EXPECT_EQ(Keyboard::shared().height(), 44);

    Keyboard::shared().setHardware(false);
    desktop::run_loop::advance(0.3);
    EXPECT_EQ(takePosted(), "WillShow DidShow ");
    EXPECT_EQ(Keyboard::shared().height(), 336 + 44);
    EXPECT_EQ(keyboardTop(), 844 - 336 - 44);
}

TEST_F(KeyboardTest, StaysWhileContentIsDraggedUnlessToldOtherwise) {
    showKeyboard(ui::KeyboardDismissMode::none);
    down({160, 200});
    dragTo(260);
    dragTo(800);
    EXPECT_EQ(keyboardTop(), 508);
    up();
    EXPECT_TRUE(view_.isFirstResponder());
}

TEST_F(KeyboardTest, GoesAsSoonAsContentIsDragged) {
    showKeyboard(ui::KeyboardDismissMode::onDrag);
    down({160, 200});
    EXPECT_TRUE(view_.isFirstResponder());
    dragTo(230);
    EXPECT_EQ(takePosted(), "WillHide ");
    EXPECT_FALSE(view_.isFirstResponder());
    up();
}

TEST_F(KeyboardTest, FollowsAFingerDownAndUpAgain) {
    showKeyboard(ui::KeyboardDismissMode::interactive);
    down({160, 200});
    dragTo(300);
    EXPECT_EQ(keyboardTop(), 508) << "not before the finger is there";
    dragTo(700);
    EXPECT_EQ(keyboardTop(), 700);
    dragTo(600);
    EXPECT_EQ(keyboardTop(), 600);
    up();
    desktop::run_loop::advance(1);
    EXPECT_EQ(keyboardTop(), 508);
    EXPECT_TRUE(view_.isFirstResponder());
    EXPECT_EQ(takePosted(), "");
}

TEST_F(KeyboardTest, GoesWithAFingerThatLeavesDownwards) {
    showKeyboard(ui::KeyboardDismissMode::interactive);
    view_.send<"setDelegate:">(textLog_.raw());
    for (const bool gives : {false, true}) {
        text().refused = gives ? "" : "shouldEnd";
        down({160, 200});
        dragTo(300);
        dragTo(520);
        dragTo(560);
        up();
        desktop::run_loop::advance(1);
        EXPECT_EQ(view_.isFirstResponder(), !gives);
        EXPECT_EQ(keyboardTop(), gives ? 844 : 508);
        EXPECT_EQ(takePosted(), gives ? "WillHide DidHide " : "");
    }
}

TEST_F(KeyboardTest, ItsKeysType) {
    view_.becomeFirstResponder();
    desktop::run_loop::advance(0.3);
    const auto key = [](double x, double row) { return CGPoint{x, 508 + 45 + 30 + 54 * row}; };
    tap(key(20, 0));
    tap(key(20, 2)); // shift
    tap(key(60, 0));
    tap(key(60, 0));
    tap(key(200, 3)); // space
    tap(key(40, 3));  // digits
    tap(key(20, 0));
    tap(key(350, 3)); // return
    EXPECT_EQ(view_.text().utf8(), "qWw 1\n");
    tap(key(370, 2)); // delete
    tap(key(370, 2));
    EXPECT_EQ(view_.text().utf8(), "qWw ");
    tap({200, 512});
    EXPECT_EQ(view_.text().utf8(), "qWw ") << "no key there";
}

TEST_F(KeyboardTest, TheCaretBlinksAlone) {
    view_.becomeFirstResponder();
    view_.layoutIfNeeded();
    EXPECT_FALSE(caret().isHidden());
    desktop::run_loop::advance(0.6);
    EXPECT_TRUE(caret().isHidden());
    desktop::run_loop::advance(0.5);
    EXPECT_FALSE(caret().isHidden());
    desktop::run_loop::advance(0.5);
    ui::TextInput(view_).insertText(u"x"_ns);
    view_.layoutIfNeeded();
    EXPECT_FALSE(caret().isHidden()) << "where it goes it is seen";
    view_.resignFirstResponder();
    view_.layoutIfNeeded();
    EXPECT_TRUE(caret().isHidden());
}

TEST_F(KeyboardTest, FingersPlaceTheCaretAndSelect) {
    view_.setText(u"some words here"_ns);
    tap({26, 118});
    EXPECT_TRUE(view_.isFirstResponder());
    EXPECT_EQ(view_.selectedRange(), ns::Range());
    EXPECT_TRUE(menuTitles().empty());
    desktop::run_loop::advance(1);
    tap({85, 118});
    tap({85, 118});
    EXPECT_EQ(view_.selectedRange(), (ns::Range{5, 5}));
    EXPECT_EQ(menuTitles(), (std::vector<std::string>{"剪切", "拷贝", "全选"}));
    desktop::run_loop::advance(1);
    down({310, 118});
    desktop::run_loop::advance(0.6);
    EXPECT_EQ(view_.selectedRange(), (ns::Range{15, 0}));
    up();
    EXPECT_EQ(menuTitles().front(), ui::Pasteboard::generalPasteboard().string() ? "粘贴" : "选择");
    view_.resignFirstResponder();
    EXPECT_TRUE(menuTitles().empty()) << "it goes with the focus";
}

TEST_F(KeyboardTest, TheMenuIsTapped) {
    view_.setText(u"some words here"_ns);
    const auto item = ui::MenuItem::with(u"自定"_ns, objc::selector<"selectAll:">());
    const auto other = ui::MenuItem::with(u"无人"_ns, objc::selector<"noSuchAction:">());
    const auto items = ns::MutableArray::make();
    items.add(item);
    items.add(other);
    const auto menu = ui::MenuController::sharedMenuController();
    menu.setMenuItems(items);
    tap({85, 118});
    tap({85, 118});
    EXPECT_EQ(menuTitles(), (std::vector<std::string>{"剪切", "拷贝", "全选", "自定"}));
    const CGRect bar = menu.send<"menuFrame", CGRect>();
    const bool isAbove = bar.origin.y < 100;
    tap({bar.origin.x + bar.size.width - 10, bar.origin.y + (isAbove ? 10 : 30)});
    EXPECT_EQ(view_.selectedRange(), (ns::Range{0, 15}));
    EXPECT_FALSE(menu.isMenuVisible());
    menu.setMenuItems(nullptr);
}

TEST_F(KeyboardTest, TheClearButtonClears) {
    field_.send<"setClearButtonMode:">(1L);
    field_.setText(u"abc"_ns);
    field_.setDelegate(textLog_);
    field_.becomeFirstResponder();
    field_.layoutIfNeeded();
    text().refused = "shouldClear";
    tap({20 + 300 - 14, 77});
    EXPECT_EQ(field_.text().utf8(), "abc");
    text().refused = "";
    tap({20 + 300 - 14, 77});
    EXPECT_EQ(field_.text().utf8(), "");
    EXPECT_TRUE(field_.isFirstResponder());
}

} // namespace
