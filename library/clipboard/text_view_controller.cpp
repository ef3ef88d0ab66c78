// The editor's views and buttons.
#include "library/clipboard/text_view_controller.hpp"

#include "bindings/objc/peer.hpp"
#include "bindings/uikit/keyboard.hpp"
#include "library/common/buttons.hpp"
#include "library/common/keyboard_insets.hpp"
#include "library/common/light_background.hpp"
#include "library/common/outline.hpp"
#include "library/common/screens.hpp"

#include <algorithm>
#include <array>

namespace wentra::clipboard {
namespace {

using namespace ns::literals;

class TextViewControllerPeer : public objc::Peer<TextViewControllerPeer, TextViewController> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::property<"textView", &TextViewControllerPeer::textView_>(),
            objc::property<"doneEditingCallback", &TextViewControllerPeer::doneEditingCallback_>(),
            objc::property<"displayText", &TextViewControllerPeer::displayText_>(),
            objc::method<"viewDidLoad", &TextViewControllerPeer::viewDidLoad>(),
            objc::method<"viewWillAppear:", &TextViewControllerPeer::viewWillAppear>(),
            objc::method<"viewWillDisappear:", &TextViewControllerPeer::viewWillDisappear>(),
            objc::method<"keyboardWillShow:", &TextViewControllerPeer::keyboardWillShow>(),
            objc::method<"keyboardWillHide:", &TextViewControllerPeer::keyboardWillHide>(),
            objc::method<"showWithText:", &TextViewControllerPeer::showWithText>(),
            objc::method<"doneEditing", &TextViewControllerPeer::doneEditing>(),
            objc::method<"cancelEditing", &TextViewControllerPeer::cancelEditing>(),
            objc::method<"ClearText", &TextViewControllerPeer::clearText>(),
            objc::method<"getWindow", &ScreenLookups::window>(),
            objc::method<"getCurrentViewController", &ScreenLookups::controller>(),
        };
    }

private:
    void viewDidLoad();
    void viewWillAppear(bool animated);
    void viewWillDisappear(bool animated);
    void keyboardWillShow(ns::Notification notification);
    void keyboardWillHide(ns::Notification) { setInsets(textView_, {}); }
    void showWithText(ns::String text);
    void doneEditing();
    void cancelEditing() { self().dismiss(true); }
    void clearText() { textView_.setText(u""_ns); }
    void addButton(ns::String title, SEL action, double distanceFromBottom);

    objc::Strong<ui::TextView> textView_;
    objc::Copied<TextViewController::Done> doneEditingCallback_;
    objc::Strong<ns::String> displayText_;
};

void TextViewControllerPeer::addButton(ns::String title, SEL action, double distanceFromBottom) {
    const CGSize size = self().view().bounds().size;
    const CGRect frame{{20, size.height - distanceFromBottom}, {size.width - 40, 30}};
    const auto button = makeButton({.title = title, .frame = frame}, self(), action);
    button.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                               ui::ViewAutoresizing::flexibleTopMargin);
    self().view().addSubview(button);
}

void TextViewControllerPeer::viewDidLoad() {
    super<"viewDidLoad">();
    const ui::View view = self().view();
    setLightBackground(view, ui::Color::white());
    addButton(u"清空文本"_ns, objc::selector<"ClearText">(), 230);
    addButton(u"确认编辑"_ns, objc::selector<"doneEditing">(), 190);
    addButton(u"取消编辑"_ns, objc::selector<"cancelEditing">(), 145);

    const CGSize size = view.bounds().size;
    textView_ = ui::TextView::withFrame({{15, 50}, {size.width - 30, size.height - 300}});
    drawOutline(textView_, {5, 2.3, ui::Color::blue().withAlphaComponent(0.5)});
    textView_.setClipsToBounds(true);
    textView_.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                                  ui::ViewAutoresizing::flexibleHeight);
    textView_.setText(displayText_);
    // The keyboard lies over the buttons: dragging the text, were it ever so short, takes it away.
    textView_.setAlwaysBounceVertical(true);
    textView_.setKeyboardDismissMode(ui::KeyboardDismissMode::interactive);
    view.addSubview(textView_);
}

void TextViewControllerPeer::viewWillAppear(bool animated) {
    super<"viewWillAppear:">(animated);
    watchKeyboard(self());
}

void TextViewControllerPeer::viewWillDisappear(bool animated) {
    super<"viewWillDisappear:">(animated);
    stopWatchingKeyboard(self());
}

/// The text's end can be scrolled up from under the keyboard.
void TextViewControllerPeer::keyboardWillShow(ns::Notification notification) {
    const CGRect text = self().view().convertRect(textView_.frame(), nullptr);
    const CGRect keyboard = ui::keyboard::frameEnd(notification);
    const double covered = text.origin.y + text.size.height - keyboard.origin.y;
    setInsets(textView_, {0, 0, keyboard.size.height > 0 ? std::max(0.0, covered) : 0, 0});
}

void TextViewControllerPeer::showWithText(ns::String text) {
    textView_.setText(text);
    topViewController().present(self(), true);
}

void TextViewControllerPeer::doneEditing() {
    if (doneEditingCallback_) {
        doneEditingCallback_(textView_.text());
    }
    self().dismiss(true);
}

} // namespace

void registerTextViewController() { TextViewControllerPeer::registerClass(); }

} // namespace wentra::clipboard
