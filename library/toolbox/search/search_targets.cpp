// The table of targets, their menu, and how they are reached.
#include "library/toolbox/search/search_targets.hpp"

#include "bindings/foundation/number.hpp"
#include "bindings/safariservices/safari_view_controller.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/popover_presentation_controller.hpp"
#include "bindings/uikit/table_view_controller.hpp"
#include "library/common/animated.hpp"
#include "library/common/light_background.hpp"
#include "library/common/links.hpp"
#include "library/common/screens.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"
#include "library/toolbox/panel/host_screens.hpp"
#include "library/toolbox/search/target_rows.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

/// By the system, or in the application when the user wants that of web pages.
void open(ns::Url url, Opener opener) {
    if (url && opener == Opener::browser &&
        preferences::Preferences::read().on(preferences::keys.searchInApp)) {
        topViewController().present(sf::SafariViewController::with(url), animated);
    } else {
        openUrl(url);
    }
}

ns::Url urlOf(std::u16string_view address) {
    return ns::Url::withString(ns::String::from(address));
}

ns::String reuseIdentifier() { return u"cellID"_ns; }

} // namespace

ns::Array shownTargets(ns::Dictionary preferences) {
    const auto titles = ns::MutableArray::make();
    const auto on = ns::Number::from(true);
    for (const TargetRow& target : targetRows) {
        const auto title = ns::String::from(target.title);
        if (preferences.get(title).isEqual(on)) {
            titles.add(title);
        }
    }
    return titles;
}

ns::Dictionary targetMethods() {
    const auto methods = ns::MutableDictionary::make();
    for (const TargetRow& target : targetRows) {
        methods.set(ns::String::from(target.method), ns::String::from(target.title));
    }
    return methods;
}

void SearchTargets::showMenu(ui::LongPressGestureRecognizer press) {
    if (press.state() != ui::GestureState::began || !press.view()) {
        return;
    }
    constexpr CGSize size{140, 480};
    const auto list = ui::TableViewController::withStyle(ui::TableViewStyle::plain);
    list.setPreferredContentSize(size);
    setLightBackground(list.tableView(), ui::Color::white());
    list.tableView().setSeparatorStyle(ui::TableViewCellSeparatorStyle::singleLine);
    list.tableView().registerClass(ui::TableViewCell::classObject(), reuseIdentifier());
    list.tableView().setDelegate(self());
    list.tableView().setDataSource(self());
    list.setModalPresentationStyle(ui::ModalPresentation::popover);
    const auto popover = list.popoverPresentationController();
    popover.setPermittedArrowDirections(ui::PopoverArrowDirection::down);
    popover.setSourceView(press.view());
    popover.setSourceRect(press.view().bounds());
    popover.setBackgroundColor(ui::Color::white());
    popover.setDelegate(self());
    menu_ = list;
    presentOverHost(self(), list);
}

ns::String SearchTargets::titleAt(ns::IndexPath path) const {
    return shown_.at(static_cast<unsigned long>(path.item())).as<ns::String>();
}

ui::TableViewCell SearchTargets::cell(ui::TableView table, ns::IndexPath path) const {
    const auto cell = table.dequeueReusableCell(reuseIdentifier(), path);
    cell.textLabel().setText(titleAt(path));
    return cell;
}

/// A target may show a screen, which must not go with the menu: so the menu goes first.
void SearchTargets::chose(ui::TableView table, ns::IndexPath path) {
    table.deselectRow(path, animated);
    const ns::String title = titleAt(path);
    if (const ui::ViewController menu = menu_.strong(); menu.presentingViewController()) {
        menu.dismiss(animated, ui::ViewController::Completion::from(
                                   [this, keptAlive = objc::Strong(self()),
                                    title = objc::Strong(title)] { call(title); }));
    } else {
        call(title);
    }
}

void SearchTargets::call(ns::String title) const {
    const SEL method = sel_registerName(methods_.get(title).as<ns::String>().utf8().c_str());
    if (self().respondsToSelector(method)) {
        objc::sendTo(self().raw(), method);
    }
}

void SearchTargets::seekAt(const SearchUrl& url) {
    open(urlOf(searchAddress(url, selection_.pickedOrCopied().utf16())), url.opener);
    selection_.clear();
}

void SearchTargets::seekInPreview() {
    preview_.show(ns::Url::withString(selection_.pickedOrCopied()));
    selection_.clear();
}

void SearchTargets::seekProducts() {
    const ns::String text = ui::Pasteboard::generalPasteboard().string();
    open(urlOf(productListAddress(text.utf16())), Opener::application);
}

} // namespace wentra::toolbox
