// The editor's views and buttons.
#include "library/clipboard/text_view_controller.hpp"

#include "bindings/objc/peer.hpp"
#include "bindings/uikit/button.hpp"
#include "library/common/screens.hpp"

#include <array>

namespace wentra::clipboard {
namespace {

using namespace ns::literals;

class Own : public objc::Peer<Own, TextViewController> {
public:
    static auto methods() {
        return std::array{
            objc::property<"textView", &Own::textView_>(),
            objc::property<"doneEditingCallback", &Own::doneEditingCallback_>(),
            objc::property<"displayText", &Own::displayText_>(),
            objc::method<"viewDidLoad", &Own::viewDidLoad>(),
            objc::method<"showWithText:", &Own::showWithText>(),
            objc::method<"doneEditing", &Own::doneEditing>(),
            objc::method<"cancelEditing", &Own::cancelEditing>(),
            objc::method<"ClearText", &Own::clearText>(),
            objc::method<"getWindow", &Own::getWindow>(),
            objc::method<"getCurrentViewController", &Own::getCurrentViewController>(),
        };
    }

private:
    void viewDidLoad();
    void showWithText(ns::String text);
    void doneEditing();
    void cancelEditing() { self().dismiss(true); }
    void clearText() { textView_.setText(u""_ns); }
    [[nodiscard]] ui::Window getWindow() const { return activeWindow(); }
    [[nodiscard]] ui::ViewController getCurrentViewController() const {
        return topViewController();
    }
    template <objc::Literal Action>
    void addButton(ns::String title, double distanceFromBottom);

    objc::Strong<ui::TextView> textView_;
    objc::Copied<TextViewController::Done> doneEditingCallback_;
    objc::Strong<ns::String> displayText_;
};

template <objc::Literal Action>
void Own::addButton(ns::String title, double distanceFromBottom) {
    const ui::View view = self().view();
    const CGSize size = view.bounds().size;
    const auto button = ui::Button::ofType(ui::ButtonType::system);
    button.setFrame({{20, size.height - distanceFromBottom}, {size.width - 40, 30}});
    button.setTitle(title, ui::control_state::normal);
    button.addTarget(self(), objc::selector<Action>(), ui::control_events::touchUpInside);
    view.addSubview(button);
}

void Own::viewDidLoad() {
    super<"viewDidLoad">();
    const ui::View view = self().view();
    view.setBackgroundColor(ui::Color::white());
    addButton<"ClearText">(u"清空文本"_ns, 230);
    addButton<"doneEditing">(u"确认编辑"_ns, 190);
    addButton<"cancelEditing">(u"取消编辑"_ns, 145);

    const CGSize size = view.bounds().size;
    textView_ = ui::TextView::withFrame({{15, 50}, {size.width - 30, size.height - 300}});
    const ca::Layer layer = textView_.layer();
    layer.setBorderWidth(2.3);
    layer.setBorderColor(ui::Color::blue().withAlpha(0.5).cgColor());
    layer.setCornerRadius(5);
    textView_.setClipsToBounds(true);
    textView_.setText(displayText_);
    view.addSubview(textView_);
}

void Own::showWithText(ns::String text) {
    textView_.setText(text);
    topViewController().present(self(), true);
}

void Own::doneEditing() {
    if (doneEditingCallback_) {
        doneEditingCallback_(textView_.text());
    }
    self().dismiss(true);
}

} // namespace

void registerTextViewController() { Own::registerClass(); }

} // namespace wentra::clipboard
