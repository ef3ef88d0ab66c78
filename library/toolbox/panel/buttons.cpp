// The table of buttons, their look and their places.
#include "library/toolbox/panel/buttons.hpp"

#include "bindings/uikit/long_press_gesture_recognizer.hpp"

#include <array>
#include <vector>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

/// What a long press does, and after how many seconds; the platform's own duration when 0.
struct Press {
    SEL action = nullptr;
    double seconds = 0;
};

struct ToolButton {
    ui::Button (FloatingViewController::*get)() const;
    void (FloatingViewController::*set)(ui::Button) const;
    ns::String title;
    ns::String symbol;
    double imageRight; ///< the right edge inset of the symbol
    SEL action;        ///< none: only the long press does something
    Press press;
    ButtonPlace place;
    ButtonTone tone = ButtonTone::usual;
};

/// In the order in which they are put into the view.
const std::vector<ToolButton>& toolButtons() {
    using Controller = FloatingViewController;
    static const auto* table = new std::vector<ToolButton>{
        {&Controller::pasteButton,
         &Controller::setPasteButton,
         u"写入粘板"_ns,
         u"square.grid.3x3"_ns,
         -1,
         objc::selector<"pasteButtonClicked:">(),
         {objc::selector<"handlePasteButtonLongPress:">(), 0.2},
         {1, 2}},
        {&Controller::shareButton,
         &Controller::setShareButton,
         u"分享文字"_ns,
         u"arrowshape.turn.up.forward"_ns,
         -3,
         objc::selector<"shareButtonClicked:">(),
         {objc::selector<"buttonLongPressed:">(), 0.2},
         {1, 0}},
        {&Controller::zzjsButton,
         &Controller::setZzjsButton,
         u"日志检索"_ns,
         u"book"_ns,
         -3,
         nullptr,
         {objc::selector<"handlerzLongPress:">(), 0.2},
         {0, 1}},
        {&Controller::umzhButton,
         &Controller::setUmzhButton,
         u"U码转换"_ns,
         u"square.fill.text.grid.1x2"_ns,
         0,
         objc::selector<"umzhButtonClicked:">(),
         {objc::selector<"longPress:">(), 0.2},
         {1, 1}},
        {&Controller::ljtzButton,
         &Controller::setLjtzButton,
         u"链接跳转"_ns,
         u"network"_ns,
         -1,
         objc::selector<"ljtzButtonClicked:">(),
         {objc::selector<"ljsslongPress:">(), 0.2},
         {0, 2}},
        {&Controller::wzjhButton,
         &Controller::setWzjhButton,
         u"文字翻译"_ns,
         u"dongsign.square"_ns,
         -1,
         objc::selector<"wzjhButtonClicked:">(),
         {},
         {0, 0},
         ButtonTone::pale},
        {&Controller::selectAllButton,
         &Controller::setSelectAllButton,
         u"全选文字"_ns,
         u"arrow.up.left.and.down.right.and.arrow.up.right.and.down.left"_ns,
         -3,
         objc::selector<"selectAllButtonClicked:">(),
         {objc::selector<"showClipboard:">(), 0.1},
         {0, 3},
         ButtonTone::pale},
        {&Controller::explodeButton,
         &Controller::setExplodeButton,
         u"视图变更"_ns,
         u"arrow.down.forward.and.arrow.up.backward.circle"_ns,
         -1,
         objc::selector<"explodeButtonClicked:">(),
         {objc::selector<"qxhandleLongPress:">(), 0.2},
         {1, 3}},
        {&Controller::startRecordButton,
         &Controller::setStartRecordButton,
         u"应用录屏"_ns,
         u"dot.viewfinder"_ns,
         -1,
         objc::selector<"startRecording">(),
         {},
         {2, 1}},
        {&Controller::stopRecordButton,
         &Controller::setStopRecordButton,
         u"结束录屏"_ns,
         u"app.badge.checkmark"_ns,
         0,
         objc::selector<"stopRecording">(),
         {objc::selector<"longPressedStopRecordButton:">()},
         {2, 2}},
    };
    return *table;
}

ui::Button made(const ToolButton& row, FloatingViewController controller, double shade) {
    const auto button = ui::Button::ofType(ui::ButtonType::system);
    button.setTitle(row.title, ui::control_state::normal);
    button.setImage(ui::Image::systemNamed(row.symbol), ui::control_state::normal);
    button.setImageEdgeInsets({0, 0, 0, row.imageRight});
    styleButton(button, row.tone, shade);
    if (row.action != nullptr) {
        button.addTarget(controller, row.action, ui::control_events::touchUpInside);
    }
    if (row.press.action != nullptr) {
        const auto press = ui::GestureRecognizer::with<ui::LongPressGestureRecognizer>(
            controller, row.press.action);
        if (row.press.seconds > 0) {
            press.setMinimumPressDuration(row.press.seconds);
        }
        button.addGestureRecognizer(press);
    }
    return button;
}

void place(FloatingViewController, ui::Button button, CGRect frame) {
    constexpr double smallestScale = 0.5;
    button.setFrame(frame);
    button.titleLabel().setAdjustsFontSizeToFitWidth(true);
    button.titleLabel().setMinimumScaleFactor(smallestScale);
}

} // namespace

void styleButton(ui::Button button, ButtonTone tone, double shade) {
    constexpr double cornerRadius = 6;
    constexpr double borderAlpha = 0.5;
    const auto colour = [shade](double red, double green, double blue) {
        return ui::Color::rgba(red / 255, green / 255, blue / 255, shade);
    };
    const ca::Layer layer = button.layer();
    layer.setCornerRadius(cornerRadius);
    layer.setBorderWidth(1);
    layer.setBorderColor(ui::Color::darkGray().withAlpha(borderAlpha).cgColor());
    button.setTitleColor(ui::Color::black(), ui::control_state::normal);
    button.setBackgroundColor(tone == ButtonTone::pale ? colour(255, 250, 250)
                                                       : colour(230, 230, 250));
}

void addButtons(FloatingViewController controller, double shade) {
    for (const ToolButton& row : toolButtons()) {
        const ui::Button button = made(row, controller, shade);
        (controller.*row.set)(button);
        controller.view().addSubview(button);
    }
}

void placeButtons(FloatingViewController controller, const BodyLayout& layout) {
    const double width = controller.view().bounds().size.width;
    for (const ToolButton& row : toolButtons()) {
        place(controller, (controller.*row.get)(), layout.button(width, row.place));
    }
}

std::span<const objc::Change> buttonCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "setButton:withFrame:", &place>(),
    };
    return changes;
}

} // namespace wentra::toolbox
