// Where the text may be taken to: the menu of targets, and what each does.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/objc/weak.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "bindings/uikit/table_view.hpp"
#include "bindings/uikit/table_view_cell.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/grid/selection.hpp"
#include "library/toolbox/search/search_url.hpp"
#include "library/toolbox/search/web_preview.hpp"

namespace wentra::toolbox {

/// The titles of the targets that the preferences switch on, in the menu's order. A switch is on
/// when its value is the number 1.
[[nodiscard]] ns::Array shownTargets(ns::Dictionary preferences);

/// The name of each target's method, by the target's title.
[[nodiscard]] ns::Dictionary targetMethods();

class SearchTargets : public objc::Part<FloatingViewController> {
public:
    SearchTargets(FloatingViewController whole, Selection& selection, WebPreview& preview)
        : Part(whole), selection_(selection), preview_(preview) {}
    static SearchTargets& of(objc::Object controller);
    static constexpr auto methods() {
        using Targets = SearchTargets;
        return std::array{
            objc::property<"appList", &Targets::shown_>(),
            objc::property<"appMethods", &Targets::methods_>(),
            objc::method<"ljsslongPress:", &Targets::showMenu>(),
            objc::method<"tableView:numberOfRowsInSection:", &Targets::count>(),
            objc::method<"tableView:cellForRowAtIndexPath:", &Targets::cell>(),
            objc::method<"tableView:didSelectRowAtIndexPath:", &Targets::chose>(),

            objc::method<"goToAppStore", &Targets::seek<search::appStore>>(),
            objc::method<"goyulan", &Targets::seekInPreview>(),
            objc::method<"goTobaidusou", &Targets::seek<search::baidu>>(),
            objc::method<"gobiying", &Targets::seek<search::bing>>(),
            objc::method<"goGoogle", &Targets::seek<search::google>>(),
            objc::method<"goToTwitter", &Targets::seek<search::twitter>>(),
            objc::method<"goToweibo", &Targets::seek<search::weibo>>(),
            objc::method<"goTozhihu", &Targets::seek<search::zhihu>>(),
            objc::method<"gotaobao", &Targets::seek<search::taobao>>(),
            objc::method<"goTojingdong", &Targets::seekProducts>(),
            objc::method<"gotoxhs", &Targets::seek<search::xiaohongshu>>(),
            objc::method<"gotopdd", &Targets::seek<search::pinduoduo>>(),
            objc::method<"goTopansousou", &Targets::seek<search::cloudDrives>>(),
            objc::method<"goyoutube", &Targets::seek<search::youTube>>(),
            objc::method<"gotosaily", &Targets::seek<search::packageSource>>(),
            objc::method<"goTobilibili", &Targets::seek<search::bilibili>>(),
            objc::method<"goToiOSmap", &Targets::seek<search::appleMaps>>(),
            objc::method<"goTobaiduditu", &Targets::seek<search::baiduMap>>(),
            objc::method<"goTogaode", &Targets::seek<search::gaodeMap>>(),
            objc::method<"goTotubiao", &Targets::seek<search::icons>>(),
            objc::method<"goTotianyanchawy", &Targets::seek<search::companies>>(),
            objc::method<"goTohuaban", &Targets::seek<search::imageBoards>>(),
            objc::method<"goToyandex", &Targets::seek<search::yandexImages>>(),
            objc::method<"goTodywy", &Targets::seek<search::shortVideos>>(),
        };
    }

    /// Makes the lists.
    void begin(ns::Dictionary preferences) {
        shown_ = shownTargets(preferences);
        methods_ = targetMethods();
    }

private:
    void showMenu(ui::LongPressGestureRecognizer press);
    [[nodiscard]] long count(ui::TableView, long) const {
        return static_cast<long>(shown_.count());
    }
    [[nodiscard]] ui::TableViewCell cell(ui::TableView table, ns::IndexPath path) const;
    void chose(ui::TableView table, ns::IndexPath path);
    [[nodiscard]] ns::String titleAt(ns::IndexPath path) const;
    void call(ns::String title) const;

    template <const SearchUrl& Url>
    void seek() {
        seekAt(Url);
    }
    void seekAt(const SearchUrl& url);
    void seekInPreview();
    /// Always what the pasteboard holds; what is picked stays so.
    void seekProducts();

    Selection& selection_;
    WebPreview& preview_;
    objc::Strong<ns::Array> shown_;
    objc::Strong<ns::Dictionary> methods_;
    objc::Weak<ui::ViewController> menu_; ///< while it is shown
};

} // namespace wentra::toolbox
