// The dialog's views and what its buttons do.
#include "library/analysis/movable_alert_view.hpp"

#include "bindings/objc/peer.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/text_view.hpp"
#include "library/analysis/line_filters.hpp"
#include "library/common/alert.hpp"
#include "library/common/buttons.hpp"
#include "library/common/draggable_view.hpp"
#include "library/common/gestures.hpp"
#include "library/common/light_background.hpp"
#include "library/common/outline.hpp"
#include "library/common/screens.hpp"

#include <array>

namespace wentra::analysis {
namespace {

using namespace ns::literals;

class MovableAlertViewPeer : public objc::Peer<MovableAlertViewPeer, MovableAlertView> {
public:
    static constexpr auto methods() {
        using Peer = MovableAlertViewPeer;
        return std::array{
            objc::method<"initWithTitle:message:", &Peer::initWithTitle>(),
            objc::property<"titleLabel", &Peer::titleLabel_>(),
            objc::property<"messageTextView", &Peer::messageTextView_>(),
            objc::property<"allText", &Peer::allText_>(),
            objc::property<"okButton", &Peer::okButton_>(),
            objc::property<"buttonForCopy", &Peer::buttonForCopy_>(),
            objc::property<"filterUrlButton", &Peer::filterUrlButton_>(),
            objc::property<"filterNumberButton", &Peer::filterNumberButton_>(),
            objc::property<"filterlibraryButton", &Peer::filterLibraryButton_>(),
            objc::property<"filterDylibButton", &Peer::filterDylibButton_>(),
            objc::property<"filterSystemButton", &Peer::filterSystemButton_>(),
            objc::property<"filtererrorButton", &Peer::filterErrorButton_>(),
            objc::property<"topButton", &Peer::topButton_>(),
            objc::property<"bottomButton", &Peer::bottomButton_>(),
            objc::method<"moveDialog:", &Peer::move>(),
            objc::method<"getWindow", &ScreenLookups::window>(),
            objc::method<"getCurrentViewController", &ScreenLookups::controller>(),
            objc::method<"closeAlert", &Peer::close>(),
            objc::method<"copyText", &Peer::copyText>(),
            objc::method<"filterUrls", &Peer::show<urlFilter>>(),
            objc::method<"filterlibrary", &Peer::show<libraryFilter>>(),
            objc::method<"filterDylib", &Peer::show<dylibFilter>>(),
            objc::method<"filtererror", &Peer::show<errorFilter>>(),
            objc::method<"filterSystem", &Peer::show<systemFilter>>(),
            objc::method<"filterNumbers", &Peer::show<numberFilter>>(),
        };
    }

private:
    MovableAlertView initWithTitle(ns::String title, ns::String message);
    void addTitle(ns::String title);
    void addText(ns::String message);
    void addButtons();
    /// Buttons are 30 points high.
    [[nodiscard]] ui::Button addButton(ns::String title, CGPoint origin, double width, SEL action);

    void move(ui::PanGestureRecognizer pan) { moveAlong(self(), pan, self().superview()); }
    void close() { self().removeFromSuperview(); }
    void copyText() { ui::Pasteboard::generalPasteboard().setString(allText_.text()); }
    template <const LineFilter& Filter>
    void show() {
        showLines(Filter);
    }
    void showLines(const LineFilter& filter);

    objc::Strong<ui::Label> titleLabel_;
    objc::Strong<ui::TextView> messageTextView_;
    objc::Strong<ui::TextView> allText_; ///< what the filters read: the same text view
    objc::Strong<ui::Button> okButton_;
    objc::Strong<ui::Button> buttonForCopy_;
    objc::Strong<ui::Button> filterUrlButton_;
    objc::Strong<ui::Button> filterNumberButton_;
    objc::Strong<ui::Button> filterLibraryButton_;
    objc::Strong<ui::Button> filterDylibButton_;
    objc::Strong<ui::Button> filterSystemButton_;
    objc::Strong<ui::Button> filterErrorButton_;
    // Nothing makes these two; others may keep theirs here.
    objc::Strong<ui::Button> topButton_;
    objc::Strong<ui::Button> bottomButton_;
};

MovableAlertView MovableAlertViewPeer::initWithTitle(ns::String title, ns::String message) {
    constexpr CGSize size{318, 545};
    super<"initWithFrame:", ui::View>(CGRect{{}, size});
    const CGSize screen = ui::Screen::mainScreen().bounds().size;
    self().setCenter({screen.width / 2, screen.height / 2});
    setLightBackground(self(), ui::Color::white());
    drawOutline(self(), {14, 3, ui::Color::lightGray()});
    addTitle(title);
    addText(message);
    addButtons();
    addPan(self(), self(), objc::selector<"moveDialog:">());
    return self();
}

void MovableAlertViewPeer::addTitle(ns::String title) {
    titleLabel_ = ui::Label::withFrame({{20, 16}, {278, 20}});
    titleLabel_.setText(title);
    titleLabel_.setTextAlignment(ui::TextAlignment::center);
    titleLabel_.setFont(ui::Font::boldSystem(17));
    self().addSubview(titleLabel_);
}

void MovableAlertViewPeer::addText(ns::String message) {
    messageTextView_ = ui::TextView::withFrame({{5, 40}, {306, 428}});
    messageTextView_.setText(message);
    messageTextView_.setFont(ui::Font::system(14));
    self().addSubview(messageTextView_);
    allText_ = messageTextView_;
}

ui::Button MovableAlertViewPeer::addButton(ns::String title, CGPoint origin, double width,
                                           SEL action) {
    const ButtonLook look{.title = title, .frame = {origin, {width, 30}}, .textSize = 15};
    const auto button = makeButton(look, self(), action);
    self().addSubview(button);
    return button;
}

void MovableAlertViewPeer::addButtons() {
    okButton_ = addButton(u"关闭窗口"_ns, {241.5, 505}, 75, objc::selector<"closeAlert">());
    buttonForCopy_ = addButton(u"复制全文"_ns, {3, 505}, 80, objc::selector<"copyText">());
    filterUrlButton_ = addButton(u"过滤网站"_ns, {80, 505}, 75, objc::selector<"filterUrls">());
    filterNumberButton_ =
        addButton(u"过滤数字"_ns, {159, 505}, 78, objc::selector<"filterNumbers">());
    filterLibraryButton_ = addButton(u"过滤库"_ns, {6, 470}, 55, objc::selector<"filterlibrary">());
    filterDylibButton_ =
        addButton(u"过滤dylib"_ns, {160.5, 470}, 75, objc::selector<"filterDylib">());
    filterSystemButton_ =
        addButton(u"过滤system"_ns, {67.3, 470}, 95, objc::selector<"filterSystem">());
    filterErrorButton_ = addButton(u"过滤异常"_ns, {240, 470}, 80, objc::selector<"filtererror">());
}

void MovableAlertViewPeer::showLines(const LineFilter& filter) {
    const auto lines = ns::String::from(filtered(allText_.text().utf16(), filter));
    Alert(ns::String::from(filter.title), lines)
        .action(u"确定"_ns)
        .covering(ui::ModalPresentation::overFullScreen)
        .present();
}

} // namespace

void registerMovableAlertView() { MovableAlertViewPeer::registerClass(); }

} // namespace wentra::analysis
