// Making the screens and presenting them.
#include "library/toolbox/panel/quick_screens.hpp"

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/popover_presentation_controller.hpp"
#include "library/clipboard/clipboard_table_view_controller.hpp"
#include "library/clipboard/popover_content_view_controller.hpp"
#include "library/common/animated.hpp"
#include "library/common/string_array.hpp"
#include "library/crashlogs/report_list_controller.hpp"
#include "library/toolbox/panel/host_screens.hpp"
#include "library/utilities/umaca_table_view_controller.hpp"

#include <array>
#include <string_view>

namespace wentra::toolbox {
namespace {

using clipboard::ClipboardTableViewController;
using clipboard::PopoverContentViewController;

struct QuickSwitch {
    std::u16string_view title;
    std::u16string_view key;
};

constexpr std::array<QuickSwitch, 15> quickSwitches{{
    {u"查看本地文件", u"查看本地文件"},
    {u"复制立马弹窗", u"开启复制弹出"},
    {u"网页Google", u"网页Google"},
    {u"字符数量统计", u"开启数量统计"},
    {u"TikTok翻译", u"TikTok翻译"},
    {u"Discord翻译", u"Discord翻译"},
    {u"复制弹球5秒", u"kqjfzt"},
    {u"设置标题翻译", u"系统设置翻译"},
    {u"悬浮窗可移动", u"kqxfyd"},
    {u"崩溃日志过滤", u"崩溃日志过滤"},
    {u"开文件夹浏览", u"开文件夹浏览"},
    {u"中英对比样式", u"中英对比样式"},
    {u"显示触摸坐标", u"显示触摸坐标"},
    {u"开启广告屏蔽", u"开启广告屏蔽"},
    {u"下载进阶解析", u"解析"},
}};

ns::Array texts(std::u16string_view QuickSwitch::*part) { return stringArray(quickSwitches, part); }

/// Points at the view.
ui::PopoverPresentationController makePopover(ui::ViewController screen, ui::View view,
                                              objc::Object delegate) {
    screen.setModalPresentationStyle(ui::ModalPresentation::popover);
    const auto popover = screen.popoverPresentationController();
    popover.setSourceView(view);
    popover.setSourceRect(view.bounds());
    popover.setDelegate(delegate);
    return popover;
}

} // namespace

void QuickScreens::showClipboard(ui::LongPressGestureRecognizer press) const {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    const auto list = ClipboardTableViewController::make();
    list.setModalPresentationStyle(ui::ModalPresentation::overFullScreen);
    list.setDismissBlock(ClipboardTableViewController::Dismissal::from(
        [shown = objc::Weak<ClipboardTableViewController>(list)] {
            shown.strong().dismiss(animated);
        }));
    presentOverHost(self(), list);
}

void QuickScreens::showSwitches(ui::LongPressGestureRecognizer press) const {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    const auto switches = PopoverContentViewController::make();
    switches.setTitles(texts(&QuickSwitch::title));
    switches.setKeys(texts(&QuickSwitch::key));
    switches.setPreferredContentSize({280, 400});
    makePopover(switches, press.view(), switches)
        .setPermittedArrowDirections(ui::PopoverArrowDirection::any);
    presentOverHost(self(), switches);
}

void QuickScreens::showUtilities(ui::LongPressGestureRecognizer press) const {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    const auto list = utilities::UmacaTableViewController::plain();
    const auto navigation = ui::NavigationController::withRoot(list);
    makePopover(navigation, self().view(), list);
    presentOverHost(self(), navigation);
}

void QuickScreens::showCrashReports(ui::LongPressGestureRecognizer press) const {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    const auto navigation =
        ui::NavigationController::withRoot(crashlogs::ReportListController::ofListedFiles());
    navigation.setModalPresentationStyle(ui::ModalPresentation::pageSheet);
    presentOverHost(self(), navigation);
}

} // namespace wentra::toolbox
