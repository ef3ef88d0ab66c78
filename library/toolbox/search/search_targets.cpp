// The table of targets, their menu, and how they are reached.
#include "library/toolbox/search/search_targets.hpp"

#include "bindings/foundation/number.hpp"
#include "bindings/safariservices/safari_view_controller.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/popover_presentation_controller.hpp"
#include "bindings/uikit/table_view_controller.hpp"
#include "library/common/light_background.hpp"
#include "library/common/screens.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"
#include "library/toolbox/panel/host_screens.hpp"

#include <array>
#include <span>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

struct Row {
    std::u16string_view title;
    std::u16string_view method;
};

/// Titles, which are also the names of the switches, and the methods that the rows call.
constexpr std::array<Row, 25> targets{{
    {u"AppStore", u"goToAppStore"},  {u"下载", u"goxiazai"},
    {u"预览", u"goyulan"},           {u"百度", u"goTobaidusou"},
    {u"必应", u"gobiying"},          {u"谷歌", u"goGoogle"},
    {u"推特", u"goToTwitter"},       {u"微博", u"goToweibo"},
    {u"知乎", u"goTozhihu"},         {u"淘宝", u"gotaobao"},
    {u"京东", u"goTojingdong"},      {u"小红书", u"gotoxhs"},
    {u"拼多多", u"gotopdd"},         {u"盘搜搜", u"goTopansousou"},
    {u"YouTube", u"goyoutube"},      {u"saily+源", u"gotosaily"},
    {u"哔哩哔哩", u"goTobilibili"},  {u"iOS地图", u"goToiOSmap"},
    {u"百度地图", u"goTobaiduditu"}, {u"高德地图", u"goTogaode"},
    {u"图标搜图", u"goTotubiao"},    {u"天眼查网页", u"goTotianyanchawy"},
    {u"花瓣网搜图", u"goTohuaban"},  {u"yandex搜图", u"goToyandex"},
    {u"抖音网页搜索", u"goTodywy"},
}};

/// By the system, or in the application when the user wants that of web pages.
void open(ns::Url url, Opener opener) {
    constexpr bool animated = true;
    if (!url) {
        return;
    }
    if (opener == Opener::browser &&
        preferences::Preferences::read().on(preferences::keys.searchInApp)) {
        topViewController().present(sf::SafariViewController::with(url), animated);
    } else {
        ui::Application::sharedApplication().openUrl(url);
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
    for (const Row& target : targets) {
        const auto title = ns::String::from(target.title);
        if (preferences.get(title).isEqual(on)) {
            titles.add(title);
        }
    }
    return titles;
}

ns::Dictionary targetMethods() {
    const auto methods = ns::MutableDictionary::make();
    for (const Row& target : targets) {
        methods.set(ns::String::from(target.method), ns::String::from(target.title));
    }
    return methods;
}

void SearchTargets::showMenu(ui::LongPressGestureRecognizer press) {
    if (press.state() != ui::GestureState::began) {
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
    constexpr bool animated = true;
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
        self().send<"performSelector:", objc::Object>(method);
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
