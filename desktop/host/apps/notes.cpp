// The notes application: cards of stacked labels, a list of the application's own labels, and
// labels placed by their frames.
#include "desktop/host/app.hpp"
#include "desktop/host/apps/notes_content.hpp"
#include "desktop/host/apps/screen_parts.hpp"
#include "desktop/host/apps/yy_label.hpp"
#include "desktop/uikit/traits/content_size.hpp"

#include "bindings/applications/yy_label.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/weak.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "bindings/uikit/stack_view.hpp"

#include <algorithm>

namespace desktop::host {
namespace {

constexpr double margin = 16;
constexpr double padding = 14;

NotesContent& content() {
    static NotesContent texts = NotesContent::standard();
    return texts;
}

/// Fills a scroll view from top to bottom.
class Page {
public:
    explicit Page(ui::ScrollView scroll)
        : scroll_(scroll), width_(scroll.bounds().size.width - 2 * margin) {}

    void addCard(const NotesContent::Card& card);
    void addList(const std::vector<std::string>& rows);
    void addBoard(const std::vector<NotesContent::PlacedLabel>& labels);

    void finish() const { scroll_.setContentSize({scroll_.bounds().size.width, height_}); }

private:
    ui::View nextCard(double height) {
        const auto card = cardWithFrame({{margin, height_}, {width_, height}});
        scroll_.addSubview(card);
        height_ += height + margin;
        return card;
    }

    ui::ScrollView scroll_;
    double width_;
    double height_ = margin / 2;
};

/// The text comes last, for the library may change how its label looks.
ui::Label lineOfCard(std::string_view text, std::u16string_view style, const TextLook& look) {
    const auto label = following(dressed(ui::Label::withFrame({}), "", look), style);
    label.setText(ns::String::fromUtf8(text));
    return label;
}

void Page::addCard(const NotesContent::Card& card) {
    const auto stack = ui::StackView::withFrame({});
    stack.setAxis(ui::Axis::vertical);
    stack.setSpacing(6);
    stack.addArrangedSubview(lineOfCard(card.title, text_styles::headline, {}));
    for (const std::string& line : card.lines) {
        stack.addArrangedSubview(lineOfCard(line, text_styles::subheadline,
                                            {.color = ui::Color::secondaryLabel(), .lines = 0}));
    }
    const double width = width_ - 2 * padding;
    const double height = stack.sizeThatFits({width, 0}).height;
    stack.setFrame({{padding, padding}, {width, height}});
    stack.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    nextCard(height + 2 * padding).addSubview(stack);
}

void Page::addList(const std::vector<std::string>& rows) {
    constexpr double rowHeight = 44;
    const auto card = nextCard(rowHeight * static_cast<double>(rows.size()));
    double top = 0;
    for (const std::string& row : rows) {
        if (top > 0) {
            card.addSubview(separatorWithFrame({{padding, top}, {width_ - padding, 0.5}}));
        }
        card.addSubview(dressed(
            apps::YYLabel::withFrame({{padding, top}, {width_ - 2 * padding, rowHeight}}), row));
        top += rowHeight;
    }
}

void Page::addBoard(const std::vector<NotesContent::PlacedLabel>& labels) {
    double bottom = 0;
    for (const auto& label : labels) {
        bottom = std::max(bottom, label.frame[1] + label.frame[3]);
    }
    const auto board = nextCard(bottom + padding);
    for (const auto& [text, frame, size] : labels) {
        board.addSubview(dressed(ui::Label::withFrame({{frame[0], frame[1]}, {frame[2], frame[3]}}),
                                 text, {.size = size}));
    }
}

void fill(ui::ScrollView scroll) {
    for (const ui::View former : scroll.subviews()) {
        former.removeFromSuperview();
    }
    Page page(scroll);
    std::ranges::for_each(content().cards, [&page](const auto& card) { page.addCard(card); });
    page.addBoard(content().labels);
    page.addList(content().list);
    page.finish();
}

/// Cards are as high as their texts.
void fillWhenTextsGrow(ui::ScrollView scroll) {
    using namespace ns::literals;
    using Listener = objc::Block<void(ns::Notification)>;
    ns::NotificationCenter::defaultCenter().addObserverForName(
        u"UIContentSizeCategoryDidChangeNotification"_ns, nullptr, nullptr,
        Listener::from([cards = objc::Weak<ui::ScrollView>(scroll)](ns::Notification) {
            if (const ui::ScrollView shown = cards) {
                fill(shown);
            }
        }));
}

void launch() {
    const CGSize screen = ui::Screen::mainScreen().bounds().size;
    const auto controller = ui::ViewController::make();
    const ui::View view = controller.view();
    view.setFrame({{}, screen});
    view.setBackgroundColor(pageColor());
    const double top = addNavigationBar(view, content().title);
    const auto scroll = ui::ScrollView::withFrame({{0, top}, {screen.width, screen.height - top}});
    scroll.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                               ui::ViewAutoresizing::flexibleHeight);
    view.addSubview(scroll);
    fill(scroll);
    fillWhenTextsGrow(scroll);
    showInWindow(controller);
}

} // namespace

const App notesApp{
    "notes", "com.example.notes", [] { YYLabel::registerClass(); },
    [](const std::filesystem::path& file) { content() = NotesContent::fromFile(file); }, &launch};

} // namespace desktop::host
