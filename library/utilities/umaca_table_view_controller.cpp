// The list's rows, and the tool behind each.
#include "library/utilities/umaca_table_view_controller.hpp"

#include "bindings/objc/peer.hpp"
#include "bindings/safariservices/safari_view_controller.hpp"
#include "library/common/animated.hpp"
#include "library/common/screens.hpp"
#include "library/common/string_array.hpp"
#include "library/utilities/common_paths.hpp"
#include "library/utilities/databases/text_databases.hpp"
#include "library/utilities/dumps/runtime_dump.hpp"
#include "library/utilities/panels/base64_panel.hpp"
#include "library/utilities/panels/symbol_counter.hpp"
#include "library/utilities/phone_numbers/phone_numbers.hpp"
#include "library/utilities/tool_pages.hpp"
#include "library/utilities/tool_screens.hpp"

#include <algorithm>
#include <span>

namespace wentra::utilities {
namespace {

using namespace ns::literals;

ns::String reuseIdentifier() { return u"MenuItemCell"_ns; }

ns::Url urlOf(std::u16string_view address) {
    return ns::Url::withString(ns::String::from(address));
}

class UmacaTableViewControllerPeer
    : public objc::Peer<UmacaTableViewControllerPeer, UmacaTableViewController> {
public:
    static constexpr auto methods() {
        using Peer = UmacaTableViewControllerPeer;
        return objc::join(
            std::array{
                objc::property<"menuData", &Peer::titles_>(),
                objc::method<"viewDidLoad", &Peer::viewDidLoad>(),
                objc::method<"tableView:numberOfRowsInSection:", &Peer::count>(),
                objc::method<"tableView:cellForRowAtIndexPath:", &Peer::cell>(),
                objc::method<"tableView:didSelectRowAtIndexPath:", &Peer::choose>(),
                objc::method<"adaptivePresentationStyleForPresentationController:",
                             &Peer::adapted>(),
                objc::method<"getWindow", &ScreenLookups::window>(),
                objc::method<"getCurrentViewController", &ScreenLookups::controller>(),
            },
            ToolScreens::methods(), TextDatabases::methods(), RuntimeDump::methods(),
            Base64Panel::methods(), SymbolCounter::methods(), PhoneNumbers::methods());
    }

    ToolScreens screens{self()};
    TextDatabases databases{self(), screens};
    RuntimeDump dump{self()};
    Base64Panel base64{self(), screens};
    SymbolCounter counter{self(), screens};
    PhoneNumbers numbers{self(), screens};

private:
    struct Row;
    static const std::array<Row, 14> rows;
    static constexpr std::size_t shownRows = 12; ///< the others wait for a place in the list

    void viewDidLoad();
    [[nodiscard]] long count(ui::TableView, long) const {
        return static_cast<long>(titles_.count());
    }
    [[nodiscard]] ui::TableViewCell cell(ui::TableView table, ns::IndexPath path) const;
    void choose(ui::TableView table, ns::IndexPath path);
    [[nodiscard]] ns::String titleAt(ns::IndexPath path) const;
    void run(ns::String title);
    /// The list stays a popover on a phone.
    [[nodiscard]] ui::ModalPresentation adapted(objc::Object) const {
        return ui::ModalPresentation::none;
    }

    template <const std::u16string_view& Address>
    void showPage() {
        self().send<"presentWebViewControllerWithURL:">(urlOf(Address));
    }
    void showSite() { screens.show(sf::SafariViewController::with(urlOf(pages::mobileTools))); }
    void showPaths() { showCommonPaths(screens); }
    void exportBookmarks() { databases.exportBookmarks(); }
    void dumpRuntime() { dump.write(); }
    void showBase64() { base64.show(); }
    void extractNumbers() { numbers.extract(); }
    void showCounter() { counter.show(); }
    void importReplacements() { databases.importReplacements(); }
    void exportReplacements() { databases.exportReplacements(); }

    objc::Strong<ns::Array> titles_;
};

struct UmacaTableViewControllerPeer::Row {
    std::u16string_view title;
    void (UmacaTableViewControllerPeer::*run)();
};

using List = UmacaTableViewControllerPeer;

constexpr std::array<List::Row, 14> List::rows{{
    {u"json排版", &List::showPage<pages::jsonLayout>},
    {u"多进制转换", &List::showPage<pages::numberBases>},
    {u"RGB颜色库", &List::showPage<pages::colours>},
    {u"Filza常用路径", &List::showPaths},
    {u"safari书签导出", &List::exportBookmarks},
    {u"运行环境dump", &List::dumpRuntime},
    {u"BASE64加解密", &List::showBase64},
    {u"本机所有手机号", &List::extractNumbers},
    {u"多功能代码站点", &List::showSite},
    {u"代码符号计数器", &List::showCounter},
    {u"自带输入法批量导入词库", &List::importReplacements},
    {u"自带输入法批量导出词库", &List::exportReplacements},
    {u"时间戳转换", &List::showPage<pages::timeStamps>},
    {u"Unicode转换", &List::showPage<pages::unicode>},
}};

void UmacaTableViewControllerPeer::viewDidLoad() {
    constexpr double width = 140;
    constexpr double rowHeight = 44;
    super<"viewDidLoad">();
    self().setTitle(u"功能列表-QF"_ns);
    titles_ = stringArray(std::span(rows).first<shownRows>(), &Row::title);
    self().tableView().registerClass(ui::TableViewCell::classObject(), reuseIdentifier());
    self().setPreferredContentSize({width, rowHeight * shownRows});
}

ns::String UmacaTableViewControllerPeer::titleAt(ns::IndexPath path) const {
    return titles_.at(static_cast<unsigned long>(path.item())).as<ns::String>();
}

ui::TableViewCell UmacaTableViewControllerPeer::cell(ui::TableView table,
                                                     ns::IndexPath path) const {
    const auto cell = table.dequeueReusableCell(reuseIdentifier(), path);
    // The list is narrow, and two long titles differ at their ends only.
    constexpr double smallestScale = 0.5;
    cell.textLabel().setText(titleAt(path));
    cell.textLabel().setAdjustsFontSizeToFitWidth(true);
    cell.textLabel().setMinimumScaleFactor(smallestScale);
    return cell;
}

void UmacaTableViewControllerPeer::choose(ui::TableView table, ns::IndexPath path) {
    table.deselectRow(path, animated);
    screens.runAndLeave([this, title = objc::Strong(titleAt(path))] { run(title); });
}

void UmacaTableViewControllerPeer::run(ns::String title) {
    const auto* const row = std::ranges::find(rows, title.utf16(), &Row::title);
    if (row != rows.end()) {
        (this->*row->run)();
    }
}

} // namespace

ToolScreens& ToolScreens::of(objc::Object controller) { return List::of(controller).screens; }
TextDatabases& TextDatabases::of(objc::Object controller) { return List::of(controller).databases; }
RuntimeDump& RuntimeDump::of(objc::Object controller) { return List::of(controller).dump; }
Base64Panel& Base64Panel::of(objc::Object controller) { return List::of(controller).base64; }
SymbolCounter& SymbolCounter::of(objc::Object controller) { return List::of(controller).counter; }
PhoneNumbers& PhoneNumbers::of(objc::Object controller) { return List::of(controller).numbers; }

void registerUmacaTableViewController() { List::registerClass(); }

} // namespace wentra::utilities
