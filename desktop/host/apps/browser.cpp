// The browser application: a few addresses, loaded through each of the platform's entry points, and
// what became of them there.
#include "desktop/host/app.hpp"
#include "desktop/host/apps/entry_points.hpp"
#include "desktop/host/apps/screen_parts.hpp"

#include "bindings/uikit/button.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "desktop/class.hpp"

#include <array>
#include <vector>

namespace desktop::host {
namespace {

using namespace ns::literals;

constexpr std::array addresses{"https://www.example.com/news",
                               "https://wxsnsdythumb.wxs.qq.com/thumbnail.jpg",
                               "https://cards.example/haoka?from=business-ad"};
constexpr std::array numbers{"①", "②", "③"};

constexpr double margin = 16;
constexpr double padding = 12;
constexpr double rowHeight = 42;
constexpr double resultWidth = 48;

struct BrowserControllerKind
    : objc::Kind<BrowserControllerKind, "BrowserViewController", ui::ViewController> {
    using Kind::Kind;
};

ui::Color colourOf(Passage passage) {
    return ui::Color::named(passage == Passage::passed ? "systemGreenColor" : "systemRedColor");
}

class BrowserController : public PlatformClass<BrowserController, BrowserControllerKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"viewDidLoad", &BrowserController::viewDidLoad>(),
            objc::method<"reload", &BrowserController::reload>(),
        };
    }

private:
    void viewDidLoad();
    double addAddresses(ui::View page, double top) const;
    double addReloadButton(ui::View page, double top) const;
    double addResults(ui::View page, double top);
    void addRow(ui::View card, double top, const EntryPoint& point);
    void reload();

    /// Of every entry point, one after the other.
    std::vector<objc::Strong<ui::Label>> results_;
};

void BrowserController::viewDidLoad() {
    super<"viewDidLoad">();
    const ui::View view = self().view();
    view.setFrame(ui::Screen::mainScreen().bounds());
    view.setBackgroundColor(pageColor());
    const double top = addNavigationBar(view, "浏览器");
    const CGSize size = view.bounds().size;
    const auto page = ui::ScrollView::withFrame({{0, top}, {size.width, size.height - top}});
    page.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                             ui::ViewAutoresizing::flexibleHeight);
    view.addSubview(page);
    double end = addAddresses(page, margin / 2);
    end = addResults(page, end + margin);
    end = addReloadButton(page, end + margin);
    page.setContentSize({size.width, end + margin});
    reload();
}

double BrowserController::addAddresses(ui::View page, double top) const {
    constexpr double lineHeight = 28;
    const double width = page.bounds().size.width - 2 * margin;
    const auto card =
        cardWithFrame({{margin, top}, {width, addresses.size() * lineHeight + padding}});
    for (std::size_t i = 0; i < addresses.size(); ++i) {
        card.addSubview(dressed(
            ui::Label::withFrame({{padding, padding / 2 + static_cast<double>(i) * lineHeight},
                                  {width - 2 * padding, lineHeight}}),
            std::string(numbers.at(i)) + " " + addresses.at(i), {.size = 13}));
    }
    page.addSubview(card);
    return top + card.bounds().size.height;
}

double BrowserController::addResults(ui::View page, double top) {
    const auto points = entryPoints();
    const double width = page.bounds().size.width - 2 * margin;
    constexpr double headHeight = 30;
    const auto card = cardWithFrame(
        {{margin, top}, {width, headHeight + static_cast<double>(points.size()) * rowHeight}});
    page.addSubview(card);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const double left =
            width - padding / 2 - static_cast<double>(numbers.size() - i) * resultWidth;
        const auto head =
            dressed(ui::Label::withFrame({{left, 0}, {resultWidth, headHeight}}), numbers.at(i),
                    {.size = 15, .color = ui::Color::secondaryLabel()});
        head.setTextAlignment(ui::TextAlignment::center);
        head.setAutoresizingMask(ui::ViewAutoresizing::flexibleLeftMargin);
        card.addSubview(head);
    }
    double rowTop = headHeight;
    for (const EntryPoint& point : points) {
        addRow(card, rowTop, point);
        rowTop += rowHeight;
    }
    return top + rowTop;
}

void BrowserController::addRow(ui::View card, double top, const EntryPoint& point) {
    constexpr double classHeight = 16;
    const double width = card.bounds().size.width;
    const double results = width - padding / 2 - numbers.size() * resultWidth;
    card.addSubview(separatorWithFrame({{padding, top}, {width - padding, 0.5}}));
    card.addSubview(
        dressed(ui::Label::withFrame({{padding, top + 4}, {results - padding, classHeight}}),
                point.className, {.size = 11, .color = ui::Color::secondaryLabel()}));
    const auto method =
        dressed(ui::Label::withFrame({{padding, top + 4 + classHeight}, {results - padding, 18}}),
                point.method, {.size = 13});
    method.setAdjustsFontSizeToFitWidth(true);
    card.addSubview(method);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto result = ui::Label::withFrame(
            {{results + static_cast<double>(i) * resultWidth, top}, {resultWidth, rowHeight}});
        result.setFont(ui::Font::system(13));
        result.setTextAlignment(ui::TextAlignment::center);
        result.setAutoresizingMask(ui::ViewAutoresizing::flexibleLeftMargin);
        card.addSubview(result);
        results_.emplace_back(result);
    }
}

double BrowserController::addReloadButton(ui::View page, double top) const {
    constexpr double height = 44;
    const double width = page.bounds().size.width - 2 * margin;
    const auto card = cardWithFrame({{margin, top}, {width, height}});
    const auto button = ui::Button::withType(ui::ButtonType::system);
    button.setTitle(u"重新加载"_ns, ui::ControlState::normal);
    button.setFrame(card.bounds());
    button.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    button.addTarget(self(), objc::selector<"reload">(), ui::ControlEvents::touchUpInside);
    card.addSubview(button);
    page.addSubview(card);
    return top + height;
}

void BrowserController::reload() {
    auto result = results_.begin();
    for (const EntryPoint& point : entryPoints()) {
        for (const char* const address : addresses) {
            const objc::Strong<ui::Label> label = *result++;
            label.setText(u"…"_ns);
            point.load(ns::String::fromUtf8(address), [label](Passage passage) {
                label.setText(passage == Passage::passed ? u"通过"_ns : u"屏蔽"_ns);
                label.setTextColor(colourOf(passage));
            });
        }
    }
}

} // namespace

const App browserApp{"browser", "com.example.browser",
                     [] {
                         installEntryPoints();
                         BrowserController::registerClass();
                     },
                     nullptr, [] { showInWindow(BrowserControllerKind::make()); }};

} // namespace desktop::host
