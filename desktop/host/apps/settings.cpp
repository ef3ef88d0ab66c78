// The settings application: grouped rows with icons, titles and values.
#include "desktop/host/app.hpp"
#include "desktop/host/apps/screen_parts.hpp"

#include "bindings/preferences/split_view_controller.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/table_view_label.hpp"
#include "desktop/class.hpp"

#include <array>
#include <span>

namespace desktop::host {
namespace {

/// The label of a table's row.
class UITableViewLabel : public PlatformClass<UITableViewLabel, ui::TableViewLabel> {
public:
    static constexpr std::array<objc::MethodRow, 0> methods() { return {}; }
};

struct Row {
    const char* title;
    const char* value;
    std::array<double, 3> color;
};

constexpr std::array<double, 3> blue{0, 0.478, 1};
constexpr std::array<double, 3> green{0.204, 0.78, 0.349};
constexpr std::array<double, 3> orange{1, 0.584, 0};
constexpr std::array<double, 3> red{1, 0.231, 0.188};
constexpr std::array<double, 3> indigo{0.345, 0.337, 0.839};
constexpr std::array<double, 3> grey{0.557, 0.557, 0.576};

constexpr std::array network{Row{"飞行模式", "关闭", orange}, Row{"无线局域网", "Home-5G", blue},
                             Row{"蓝牙", "打开", blue}, Row{"蜂窝网络", "", green}};
constexpr std::array attention{Row{"通知", "", red}, Row{"声音与触感", "", red},
                               Row{"专注模式", "", indigo}, Row{"Screen Time", "2h 14m", indigo}};
constexpr std::array device{Row{"通用", "", grey}, Row{"显示与亮度", "自动", blue},
                            Row{"Wallpaper", "", blue}, Row{"电池", "87%", green}};

constexpr double margin = 16;
constexpr double rowHeight = 44;

void addRow(ui::View card, double top, const Row& row) {
    constexpr double iconSize = 29;
    constexpr double textLeft = 60;
    const double width = card.bounds().size.width;
    const auto icon =
        ui::View::withFrame({{margin, top + (rowHeight - iconSize) / 2}, {iconSize, iconSize}});
    icon.setBackgroundColor(ui::Color::withRed(row.color[0], row.color[1], row.color[2], 1));
    icon.layer().setCornerRadius(7);
    card.addSubview(icon);

    card.addSubview(dressed(
        ui::TableViewLabel::withFrame({{textLeft, top}, {width / 2, rowHeight}}), row.title));
    constexpr double arrowWidth = 8;
    const auto arrow = dressed(ui::TableViewLabel::withFrame(
                                   {{width - margin - arrowWidth, top}, {arrowWidth, rowHeight}}),
                               "›", {.size = 20, .color = ui::Color::named("systemGray3Color")});
    card.addSubview(arrow);
    const double valueLeft = textLeft + width / 2;
    const auto value =
        dressed(ui::TableViewLabel::withFrame(
                    {{valueLeft, top}, {width - valueLeft - margin - arrowWidth - 8, rowHeight}}),
                row.value, {.color = ui::Color::secondaryLabel()});
    value.setTextAlignment(ui::TextAlignment::right);
    card.addSubview(value);
    if (top > 0) {
        card.addSubview(separatorWithFrame({{textLeft, top}, {width - textLeft, 0.5}}));
    }
}

/// Adds a card with the rows; the result is where the next one may begin.
double addGroup(ui::View page, double top, std::span<const Row> rows) {
    const double height = rowHeight * static_cast<double>(rows.size());
    const double width = page.bounds().size.width - 2 * margin;
    const auto card = cardWithFrame({{margin, top}, {width, height}});
    page.addSubview(card);
    double rowTop = 0;
    for (const Row& row : rows) {
        addRow(card, rowTop, row);
        rowTop += rowHeight;
    }
    constexpr double gap = 35;
    return top + height + gap;
}

/// The controller of the whole application.
class PSSplitViewController : public PlatformClass<PSSplitViewController, ps::SplitViewController> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"viewDidLoad", &PSSplitViewController::viewDidLoad>(),
        };
    }

private:
    void viewDidLoad() {
        super<"viewDidLoad">();
        const ui::View page = self().view();
        page.setFrame(ui::Screen::mainScreen().bounds());
        page.setBackgroundColor(pageColor());
        double top = addNavigationBar(page, "设置") + margin / 2;
        for (const std::span<const Row> group :
             {std::span<const Row>(network), std::span<const Row>(attention),
              std::span<const Row>(device)}) {
            top = addGroup(page, top, group);
        }
    }
};

} // namespace

const App settingsApp{"settings", "com.apple.Preferences",
                      [] {
                          UITableViewLabel::registerClass();
                          PSSplitViewController::registerClass();
                      },
                      nullptr, [] { showInWindow(ps::SplitViewController::make()); }};

} // namespace desktop::host
