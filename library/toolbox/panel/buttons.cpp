// The table of buttons, their look and their places.
#include "library/toolbox/panel/buttons.hpp"

#include "library/common/buttons.hpp"
#include "library/common/gestures.hpp"
#include "library/common/outline.hpp"

#include <string_view>

namespace wentra::toolbox {
namespace {

/// A selector, by the function that gives it: the table is a constant.
using Action = SEL (*)();

/// What a long press does, and after how many seconds; the platform's own duration when 0.
struct Press {
    Action action = nullptr;
    double seconds = 0;
};

constexpr double usualPress = 0.2; // seconds
constexpr double shortPress = 0.1;

} // namespace

struct Buttons::Row {
    objc::Strong<ui::Button> Buttons::*button;
    std::u16string_view title;
    std::u16string_view symbol;
    double imageRight; ///< the right edge inset of the symbol
    ButtonPlace place;
    Action action; ///< none: only the long press does something
    Press press;
    ButtonTone tone = ButtonTone::usual;
};

/// In the order in which they are put into the view.
constexpr std::array<Buttons::Row, 10> Buttons::rows{{
    {&Buttons::paste_,
     u"写入粘板",
     u"square.grid.3x3",
     -1,
     {1, 2},
     &objc::selector<"pasteButtonClicked:">,
     {&objc::selector<"handlePasteButtonLongPress:">, usualPress}},
    {&Buttons::share_,
     u"分享文字",
     u"arrowshape.turn.up.forward",
     -3,
     {1, 0},
     &objc::selector<"shareButtonClicked:">,
     {&objc::selector<"buttonLongPressed:">, usualPress}},
    {&Buttons::logs_,
     u"日志检索",
     u"book",
     -3,
     {0, 1},
     nullptr,
     {&objc::selector<"handlerzLongPress:">, usualPress}},
    {&Buttons::unicode_,
     u"U码转换",
     u"square.fill.text.grid.1x2",
     0,
     {1, 1},
     &objc::selector<"umzhButtonClicked:">,
     {&objc::selector<"longPress:">, usualPress}},
    {&Buttons::links_,
     u"链接跳转",
     u"network",
     -1,
     {0, 2},
     &objc::selector<"ljtzButtonClicked:">,
     {&objc::selector<"ljsslongPress:">, usualPress}},
    {&Buttons::translate_,
     u"文字翻译",
     u"dongsign.square",
     -1,
     {0, 0},
     &objc::selector<"wzjhButtonClicked:">,
     {},
     ButtonTone::pale},
    {&Buttons::selectAll_,
     u"全选文字",
     u"arrow.up.left.and.down.right.and.arrow.up.right.and.down.left",
     -3,
     {0, 3},
     &objc::selector<"selectAllButtonClicked:">,
     {&objc::selector<"showClipboard:">, shortPress},
     ButtonTone::pale},
    {&Buttons::viewSize_,
     u"视图变更",
     u"arrow.down.forward.and.arrow.up.backward.circle",
     -1,
     {1, 3},
     &objc::selector<"explodeButtonClicked:">,
     {&objc::selector<"qxhandleLongPress:">, usualPress}},
    {&Buttons::startRecording_,
     u"应用录屏",
     u"dot.viewfinder",
     -1,
     {2, 1},
     &objc::selector<"startRecording">,
     {}},
    {&Buttons::stopRecording_,
     u"结束录屏",
     u"app.badge.checkmark",
     0,
     {2, 2},
     &objc::selector<"stopRecording">,
     {&objc::selector<"longPressedStopRecordButton:">}},
}};

ui::Button Buttons::made(const Row& row, double shade) const {
    const SEL action = row.action != nullptr ? row.action() : nullptr;
    const auto button =
        makeButton({.title = ns::String::from(row.title), .symbol = ns::String::from(row.symbol)},
                   self(), action);
    button.setImageEdgeInsets({0, 0, 0, row.imageRight});
    styleButton(button, row.tone, shade);
    if (row.press.action != nullptr) {
        addPress(button, self(), row.press.action(), row.press.seconds);
    }
    return button;
}

void Buttons::place(ui::Button button, CGRect frame) {
    constexpr double smallestScale = 0.5;
    button.setFrame(frame);
    button.titleLabel().setAdjustsFontSizeToFitWidth(true);
    button.titleLabel().setMinimumScaleFactor(smallestScale);
}

void Buttons::add(double shade) {
    for (const Row& row : rows) {
        this->*row.button = made(row, shade);
        self().view().addSubview(this->*row.button);
    }
}

void Buttons::layOut(const BodyLayout& layout) {
    const double width = self().view().bounds().size.width;
    for (const Row& row : rows) {
        place(this->*row.button, layout.button(width, row.place));
    }
}

void styleButton(ui::Button button, ButtonTone tone, double shade) {
    constexpr double cornerRadius = 6;
    constexpr double borderAlpha = 0.5;
    const auto colour = [shade](double red, double green, double blue) {
        return ui::Color::withRed(red / 255, green / 255, blue / 255, shade);
    };
    drawOutline(button, {cornerRadius, 1, ui::Color::darkGray().withAlphaComponent(borderAlpha)});
    button.setTitleColor(ui::Color::black(), ui::ControlState::normal);
    button.setBackgroundColor(tone == ButtonTone::pale ? colour(255, 250, 250)
                                                       : colour(230, 230, 250));
}

} // namespace wentra::toolbox
