// The grid, its switches, and what a tap on one does.
#include "library/clipboard/popover_content_view_controller.hpp"

#include "bindings/foundation/number.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/collection_view.hpp"
#include "bindings/uikit/collection_view_flow_layout.hpp"
#include "bindings/uikit/screen.hpp"
#include "library/common/buttons.hpp"
#include "library/common/haptic.hpp"
#include "library/common/outline.hpp"
#include "library/preferences/preference_writing.hpp"
#include "library/preferences/preferences.hpp"

#include <array>

namespace wentra::clipboard {
namespace {

using namespace ns::literals;

constexpr CGRect gridFrame{{45, 300}, {346, 400}};
/// By which a switch finds the label that tells its state.
constexpr long statusTag = 10086;

ns::String cellIdentifier() { return u"xrcell"_ns; }

ns::String statusText(bool isOn) { return isOn ? u"开启✅"_ns : u"关闭❌"_ns; }

bool isOn(ns::String key) { return preferences::Preferences::read().on(key.utf8()); }

void addStatus(ui::Button button, bool isOn) {
    constexpr double gap = 6;
    const CGSize face = button.bounds().size;
    const auto status =
        ui::Label::withFrame({{0, face.height + gap}, {face.width, face.height / 2}});
    status.setText(statusText(isOn));
    status.setTextAlignment(ui::TextAlignment::center);
    status.setTag(statusTag);
    button.addSubview(status);
}

class PopoverContentViewControllerPeer
    : public objc::Peer<PopoverContentViewControllerPeer, PopoverContentViewController> {
    using Self = PopoverContentViewControllerPeer;

public:
    static constexpr auto methods() {
        return std::array{
            objc::property<"buttonArray", &Self::titles_>(),
            objc::property<"keysArray", &Self::keys_>(),
            objc::property<"button", &Self::button_>(),
            objc::property<"statusLabel", &Self::statusLabel_>(),
            objc::method<"loadView", &Self::loadView>(),
            objc::method<"viewDidLoad", &Self::viewDidLoad>(),
            objc::method<"collectionView:numberOfItemsInSection:", &Self::count>(),
            objc::method<"collectionView:cellForItemAtIndexPath:", &Self::cell>(),
            objc::method<"buttonClicked:", &Self::toggle>(),
            objc::method<"adaptivePresentationStyleForPresentationController:", &Self::adapted>(),
        };
    }

private:
    void loadView();
    void viewDidLoad();
    [[nodiscard]] long count(ui::CollectionView, long) const { return 15; }
    [[nodiscard]] ui::CollectionViewCell cell(ui::CollectionView grid, ns::IndexPath path) const;
    void addSwitch(ui::View content, unsigned long index) const;
    void toggle(ui::Button button) const;
    /// A popover stays a popover on a phone.
    [[nodiscard]] ui::ModalPresentation adapted(objc::Object) const {
        return ui::ModalPresentation::none;
    }

    objc::Strong<ns::Array> titles_;
    objc::Strong<ns::Array> keys_;
    objc::Strong<ui::Button> button_;     // unused
    objc::Strong<ui::Label> statusLabel_; // unused
};

/// The grid lies beyond the popover's edges: the view can be scrolled, and shows the grid's middle
/// first, with a part of every switch.
void PopoverContentViewControllerPeer::loadView() {
    const auto view = ui::ScrollView::withFrame(ui::Screen::mainScreen().bounds());
    const double width = self().preferredContentSize().width;
    view.setContentSize(
        {gridFrame.origin.x + gridFrame.size.width, gridFrame.origin.y + gridFrame.size.height});
    view.setContentOffset({gridFrame.origin.x + (gridFrame.size.width - width) / 2, //
                           gridFrame.origin.y});
    self().setView(view);
}

void PopoverContentViewControllerPeer::viewDidLoad() {
    super<"viewDidLoad">();
    const auto layout = ui::CollectionViewFlowLayout::make();
    layout.setItemSize({112, 66});
    layout.setMinimumLineSpacing(0);
    layout.setMinimumInteritemSpacing(0);
    const auto grid = ui::CollectionView::withFrame(gridFrame, layout);
    grid.registerClass(ui::CollectionViewCell::classObject(), cellIdentifier());
    grid.setDataSource(self());
    grid.setDelegate(self());
    drawOutline(grid, {6, 1.5, ui::Color::gray()});
    self().view().addSubview(grid);
}

/// Without a title or a key there is no switch; the error is reported, and the grid goes on.
ui::CollectionViewCell PopoverContentViewControllerPeer::cell(ui::CollectionView grid,
                                                              ns::IndexPath path) const {
    const ui::CollectionViewCell cell = grid.dequeueReusableCell(cellIdentifier(), path);
    for (const ui::View view : cell.contentView().subviews().copied()) {
        view.removeFromSuperview();
    }
    objc::contained("PopoverContentViewController", [&] {
        addSwitch(cell.contentView(), static_cast<unsigned long>(path.item()));
    });
    return cell;
}

void PopoverContentViewControllerPeer::addSwitch(ui::View content, unsigned long index) const {
    const double width = content.bounds().size.width - 15;
    const auto key = keys_.at(index).as<ns::String>();
    const auto button = makeButton({.title = titles_.at(index).as<ns::String>(),
                                    .frame = {{7.5, 10}, {width, 30}},
                                    .textSize = 13.8,
                                    .titleColor = ui::Color::black(),
                                    .background = ui::Color::white()},
                                   self(), objc::selector<"buttonClicked:">());
    button.setAccessibilityLabel(key);
    drawOutline(button, {5, 1, ui::Color::gray()});
    addStatus(button, isOn(key));
    content.addSubview(button);
}

void PopoverContentViewControllerPeer::toggle(ui::Button button) const {
    const ns::String key = button.accessibilityLabel();
    const bool wasOn = isOn(key);
    // Without a file nothing is stored; the label tells what was asked for all the same.
    static_cast<void>(preferences::changePreference(key, ns::Number::from(!wasOn)));
    button.viewWithTag(statusTag).as<ui::Label>().setText(statusText(!wasOn));
    doubleHapticTap();
}

} // namespace

void registerPopoverContentViewController() { PopoverContentViewControllerPeer::registerClass(); }

} // namespace wentra::clipboard
