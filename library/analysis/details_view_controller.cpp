// The screen: a text, the search in it, and buttons that jump and copy.
#include "library/analysis/details_view_controller.hpp"

#include "bindings/objc/peer.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/navigation_item.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/search_bar.hpp"
#include "bindings/uikit/text_view.hpp"
#include "library/common/case_insensitive_search.hpp"
#include "library/common/keyboard_insets.hpp"
#include "library/common/screens.hpp"
#include "library/common/text_parts.hpp"

#include <array>

namespace wentra::analysis {
namespace {

using namespace ns::literals;

class DetailsViewControllerPeer
    : public objc::Peer<DetailsViewControllerPeer, DetailsViewController> {
public:
    static constexpr auto methods() {
        using Peer = DetailsViewControllerPeer;
        return std::array{
            objc::property<"systemMessage", &Peer::systemMessage_>(),
            objc::property<"jailbreakMessage", &Peer::jailbreakMessage_>(),
            objc::property<"originalText", &Peer::originalText_>(),
            objc::property<"textView", &Peer::textView_>(),
            objc::property<"searchBar", &Peer::searchBar_>(),
            objc::property<"duplicateButton", &Peer::duplicateButton_>(),
            objc::property<"isAtBottom", &Peer::isAtBottom_>(),
            objc::method<"viewDidLoad", &Peer::viewDidLoad>(),
            objc::method<"setupView", &Peer::setUp>(),
            objc::method<"viewDidLayoutSubviews", &Peer::viewDidLayoutSubviews>(),
            objc::method<"viewWillAppear:", &Peer::viewWillAppear>(),
            objc::method<"viewWillDisappear:", &Peer::viewWillDisappear>(),
            objc::method<"duplicateButtonClicked:", &Peer::copyAddOns>(),
            objc::method<"searchBar:textDidChange:", &Peer::search>(),
            objc::method<"jumpToErrorClicked:", &Peer::jumpToAddOns>(),
            objc::method<"upDownButtonClicked:", &Peer::jump>(),
            objc::method<"keyboardWillShow:", &Peer::keyboardMoves>(),
            objc::method<"keyboardWillHide:", &Peer::keyboardMoves>(),
            objc::method<"keyWindow", &ScreenLookups::first>(),
        };
    }

private:
    void viewDidLoad();
    void setUp();
    void addText();
    void addBarItems();
    [[nodiscard]] ui::BarButtonItem barItem(ns::String title, SEL action) const;
    void viewDidLayoutSubviews();
    void viewWillAppear(bool animated);
    void viewWillDisappear(bool animated);

    void copyAddOns(objc::Object) {
        ui::Pasteboard::generalPasteboard().setString(jailbreakMessage_);
    }
    void search(ui::SearchBar, ns::String sought);
    void jumpToAddOns(objc::Object);
    void jump(ui::BarButtonItem button);

    void keyboardMoves(ns::Notification notification) const {
        keepClear(textView_, firstWindow(), self(), notification);
    }

    objc::Strong<ns::String> systemMessage_;
    objc::Strong<ns::String> jailbreakMessage_;
    objc::Strong<ns::String> originalText_;
    objc::Strong<ui::TextView> textView_;
    objc::Strong<ui::SearchBar> searchBar_;
    objc::Strong<ui::BarButtonItem> duplicateButton_;
    bool isAtBottom_ = false;
};

void DetailsViewControllerPeer::viewDidLoad() {
    super<"viewDidLoad">();
    self().view().setBackgroundColor(ui::Color::systemBackground());
    self().send<"setupView">();
}

void DetailsViewControllerPeer::setUp() {
    addText();
    addBarItems();
}

void DetailsViewControllerPeer::addText() {
    originalText_ = ns::String::from(report(systemMessage_.utf16(), jailbreakMessage_.utf16()));
    textView_ = ui::TextView::withFrame(self().view().bounds());
    textView_.setEditable(false);
    textView_.setText(originalText_);
    self().view().addSubview(textView_);
}

ui::BarButtonItem DetailsViewControllerPeer::barItem(ns::String title, SEL action) const {
    return ui::BarButtonItem::withTitle(title, ui::BarButtonStyle::plain, self(), action);
}

void DetailsViewControllerPeer::addBarItems() {
    searchBar_ = ui::SearchBar::make();
    searchBar_.setPlaceholder(u"搜索内容"_ns);
    searchBar_.setDelegate(self());
    duplicateButton_ = barItem(u"复制异常"_ns, objc::selector<"duplicateButtonClicked:">());
    const auto items = ns::MutableArray::make();
    items.add(barItem(u"顶部"_ns, objc::selector<"upDownButtonClicked:">()));
    items.add(duplicateButton_);
    items.add(barItem(u"跳转异常"_ns, objc::selector<"jumpToErrorClicked:">()));
    self().navigationItem().setTitleView(searchBar_);
    self().navigationItem().setRightBarButtonItems(items);
}

void DetailsViewControllerPeer::viewDidLayoutSubviews() {
    super<"viewDidLayoutSubviews">();
    textView_.setFrame(self().view().bounds());
}

void DetailsViewControllerPeer::viewWillAppear(bool animated) {
    super<"viewWillAppear:">(animated);
    watchKeyboard(self());
}

void DetailsViewControllerPeer::viewWillDisappear(bool animated) {
    super<"viewWillDisappear:">(animated);
    stopWatchingKeyboard(self());
}

void DetailsViewControllerPeer::search(ui::SearchBar /*bar*/, ns::String sought) {
    if (sought.length() == 0) {
        textView_.setText(originalText_);
        return;
    }
    std::u16string found;
    const std::u16string text = originalText_.utf16();
    for (const std::u16string_view line : splitLines(text)) {
        if (!occurrencesIgnoringCase(ns::String::from(line), sought).empty()) {
            found.append(line).append(u"\n\n");
        }
    }
    textView_.setText(ns::String::from(found));
}

void DetailsViewControllerPeer::jumpToAddOns(objc::Object) {
    const std::size_t place = textView_.text().utf16().find(addOnHeading);
    if (place != std::u16string::npos) {
        textView_.scrollRangeToVisible({place, addOnHeading.size()});
    }
}

/// The title says where the next press leads, but for the first: then it says the top, and leads to
/// the end.
void DetailsViewControllerPeer::jump(ui::BarButtonItem button) {
    isAtBottom_ = !isAtBottom_;
    const unsigned long length = textView_.text().length();
    textView_.scrollRangeToVisible(isAtBottom_ && length > 0 ? ns::Range{length - 1, 1}
                                                             : ns::Range{0, 0});
    button.setTitle(isAtBottom_ ? u"顶部"_ns : u"底部"_ns);
}

} // namespace

void registerDetailsViewController() { DetailsViewControllerPeer::registerClass(); }

} // namespace wentra::analysis
