// The settings application: grouped rows with icons, titles and values, and below them what leads
// to the preference panes that packages have brought.
#include "desktop/host/app.hpp"
#include "desktop/host/apps/panes/preference_pane.hpp"
#include "desktop/host/apps/screen_parts.hpp"

#include "bindings/preferences/split_view_controller.hpp"
#include "bindings/uikit/control.hpp"
#include "bindings/uikit/image_view.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "bindings/uikit/table_view_label.hpp"
#include "desktop/class.hpp"
#include "desktop/uikit/traits/content_size.hpp"

#include <array>
#include <span>

namespace desktop::host {
namespace {

using namespace ns::literals;

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

ui::View tileOf(const std::array<double, 3>& color) {
    const auto tile = ui::View::withFrame({});
    tile.setBackgroundColor(ui::Color::withRed(color[0], color[1], color[2], 1));
    tile.layer().setCornerRadius(7);
    return tile;
}

void addRow(ui::View card, double top, const Row& row, ui::View icon) {
    constexpr double iconSize = 29;
    constexpr double textLeft = 60;
    const double width = card.bounds().size.width;
    icon.setFrame({{margin, top + (rowHeight - iconSize) / 2}, {iconSize, iconSize}});
    card.addSubview(icon);

    card.addSubview(
        following(dressed(ui::TableViewLabel::withFrame({{textLeft, top}, {width / 2, rowHeight}}),
                          row.title),
                  text_styles::body));
    constexpr double arrowWidth = 8;
    const auto arrow = dressed(ui::TableViewLabel::withFrame(
                                   {{width - margin - arrowWidth, top}, {arrowWidth, rowHeight}}),
                               "›", {.size = 20, .color = ui::Color::named("systemGray3Color")});
    arrow.setAutoresizingMask(ui::ViewAutoresizing::flexibleLeftMargin);
    card.addSubview(arrow);
    const double valueLeft = textLeft + width / 2;
    const auto value =
        dressed(ui::TableViewLabel::withFrame(
                    {{valueLeft, top}, {width - valueLeft - margin - arrowWidth - 8, rowHeight}}),
                row.value, {.color = ui::Color::secondaryLabel()});
    following(value, text_styles::body);
    value.setTextAlignment(ui::TextAlignment::right);
    value.setAutoresizingMask(ui::ViewAutoresizing::flexibleLeftMargin);
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
        addRow(card, rowTop, row, tileOf(row.color));
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
            objc::method<"openPane:", &PSSplitViewController::openPane>(),
        };
    }

private:
    void viewDidLoad() {
        super<"viewDidLoad">();
        const ui::View view = self().view();
        view.setFrame(ui::Screen::mainScreen().bounds());
        view.setBackgroundColor(pageColor());
        const double barEnd = addNavigationBar(view, "设置");
        const CGSize size = view.bounds().size;
        const auto page =
            ui::ScrollView::withFrame({{0, barEnd}, {size.width, size.height - barEnd}});
        page.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                                 ui::ViewAutoresizing::flexibleHeight);
        view.addSubview(page);
        double top = margin / 2;
        for (const std::span<const Row> group :
             {std::span<const Row>(network), std::span<const Row>(attention),
              std::span<const Row>(device)}) {
            top = addGroup(page, top, group);
        }
        page.setContentSize({size.width, addPanes(page, top)});
    }

    /// What packages have brought, in a group of its own; the result is where it ends.
    double addPanes(ui::View page, double top) {
        panes_ = paneEntries();
        const double width = page.bounds().size.width - 2 * margin;
        const auto count = static_cast<double>(panes_.size());
        const auto card = cardWithFrame({{margin, top}, {width, count * rowHeight}});
        page.addSubview(card);
        for (std::size_t index = 0; index < panes_.size(); ++index) {
            const auto& [row, file] = panes_[index];
            const double rowTop = static_cast<double>(index) * rowHeight;
            const std::string title = row.text(u"label"_ns).utf8();
            addRow(card, rowTop, {title.c_str(), "", {}},
                   ui::ImageView::withImage(rowPicture(row, file.parent_path())));
            const auto touch =
                ui::Control::make<"initWithFrame:">(CGRect{{0, rowTop}, {width, rowHeight}});
            touch.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
            touch.setTag(static_cast<long>(index));
            touch.addTarget(self(), objc::selector<"openPane:">(),
                            ui::ControlEvents::touchUpInside);
            card.addSubview(touch);
        }
        return top + card.bounds().size.height + margin;
    }

    void openPane(ui::Control touched) {
        presentPane(panes_.at(static_cast<std::size_t>(touched.tag())).file, self());
    }

    std::vector<PaneEntry> panes_;
};

} // namespace

const App settingsApp{"settings", "com.apple.Preferences",
                      [] {
                          UITableViewLabel::registerClass();
                          PSSplitViewController::registerClass();
                          registerPreferencePane();
                      },
                      nullptr, [] { showInWindow(ps::SplitViewController::make()); }};

} // namespace desktop::host
