// Drawing the keys, and typing what is tapped.
#include "desktop/uikit/keyboard/keyboard_view.hpp"

#include "bindings/uikit/touch.hpp"
#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/drawing/text_layout.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/keyboard/keyboard_input.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"

#include <array>
#include <utility>

namespace desktop {
namespace {

using namespace ns::literals;

struct Palette {
    Colour background;
    Colour key;
    Colour sideKey;
    Colour edge;
    Colour ink;
};

constexpr Palette lightPalette{
    {0.816, 0.827, 0.851}, {1, 1, 1}, {0.671, 0.690, 0.729}, {0.537, 0.541, 0.553}, {0, 0, 0}};
constexpr Palette darkPalette{{0.168, 0.168, 0.172},
                              {0.42, 0.42, 0.424},
                              {0.275, 0.275, 0.282},
                              {0.08, 0.08, 0.08},
                              {1, 1, 1}};

const Palette& palette() {
    return CurrentTraits::get().style == ui::InterfaceStyle::dark ? darkPalette : lightPalette;
}

constexpr double corner = 5;

/// In the order of UIReturnKeyType.
constexpr std::array<const char16_t*, 12> enterLabels{u"换行",   u"前往", u"Google",   u"加入",
                                                      u"下一项", u"路线", u"搜索",     u"发送",
                                                      u"雅虎",   u"完成", u"紧急呼叫", u"继续"};

std::u16string enterLabel(long type) {
    const auto index = static_cast<std::size_t>(type);
    return enterLabels[index < enterLabels.size() ? index : 0];
}

bool isLight(const Key& key) {
    return key.role == KeyRole::character || key.role == KeyRole::space;
}

double labelSize(const Key& key) {
    constexpr double words = 16;
    constexpr double characters = 24;
    return key.label.size() > 1 ? words : characters;
}

void drawLabel(Canvas& canvas, const Key& key) {
    TextRun look;
    look.font.size = labelSize(key);
    look.colour = palette().ink;
    TextFrame frame;
    frame.width = key.box.width;
    frame.alignment = TextAlignment::center;
    frame.maximumLines = 1;
    const TextLayout label(key.label, look, frame);
    label.draw(canvas.context(),
               {key.box.x, key.box.y + (key.box.height - label.size().height) / 2});
}

} // namespace

std::vector<objc::MethodRow> KeyboardView::methods() {
    return {
        objc::method<"touchesBegan:withEvent:", &KeyboardView::touchesBegan>(),
        objc::method<"touchesMoved:withEvent:", &KeyboardView::touchesMoved>(),
        objc::method<"touchesEnded:withEvent:", &KeyboardView::touchesEnded>(),
        objc::method<"touchesCancelled:withEvent:", &KeyboardView::touchesCancelled>(),
        objc::method<"layoutSubviews", &KeyboardView::arrange>(),
        objc::method<"drawRect:", &KeyboardView::drawRect>(),
    };
}

void KeyboardView::reset(long returnKeyType) {
    returnKeyType_ = returnKeyType;
    capitals_ = false;
    show(KeyPage::letters);
}

void KeyboardView::show(KeyPage page) {
    page_ = page;
    arrange();
    self().setNeedsDisplay();
}

KeyboardShape KeyboardView::shape() const {
    const ScreenGeometry& screen = ScreenGeometry::current();
    return {self().bounds().size.width, screen.isLandscape(), screen.safeArea.left};
}

void KeyboardView::arrange() {
    pressed_ = nullptr;
    keys_ = keyboardKeys(shape(), page_, capitals_, enterLabel(returnKeyType_));
}

void KeyboardView::touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event) {
    const auto touch = touches.allObjects().first();
    const CGPoint point = touch.locationIn(self());
    const Key* key = keyAt(keys_, {point.x, point.y});
    if (std::exchange(pressed_, key) != key) {
        self().setNeedsDisplay();
    }
}

void KeyboardView::touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event) {
    touchesBegan(touches, event);
    if (pressed_ != nullptr) {
        const Key key = *std::exchange(pressed_, nullptr);
        self().setNeedsDisplay();
        press(key);
    }
}

void KeyboardView::touchesCancelled(ns::SetOf<ui::Touch>, ui::Event) {
    pressed_ = nullptr;
    self().setNeedsDisplay();
}

void KeyboardView::press(const Key& key) {
    switch (key.role) {
    case KeyRole::character:
        if (std::exchange(capitals_, false)) {
            show(page_);
        }
        keyboard_input::insertText(ns::String::from(key.label));
        break;
    case KeyRole::space:
        keyboard_input::insertText(u" "_ns);
        break;
    case KeyRole::enter:
        keyboard_input::pressReturn();
        break;
    case KeyRole::erase:
        keyboard_input::erase();
        break;
    case KeyRole::shift:
        capitals_ = !capitals_;
        show(page_);
        break;
    case KeyRole::letters:
        show(KeyPage::letters);
        break;
    case KeyRole::digits:
        show(KeyPage::digits);
        break;
    case KeyRole::symbols:
        show(KeyPage::symbols);
        break;
    }
}

void KeyboardView::drawRect(CGRect) {
    Canvas* canvas = currentCanvas();
    if (canvas == nullptr) {
        return;
    }
    const Palette& colours = palette();
    canvas->fill(rectangle(self().bounds()), colours.background);
    for (const Key& key : keys_) {
        const bool isLit =
            isLight(key) != (&key == pressed_) || (key.role == KeyRole::shift && capitals_);
        Rectangle below = key.box;
        below.y += 1;
        canvas->fill(below, colours.edge, corner);
        canvas->fill(key.box, isLit ? colours.key : colours.sideKey, corner);
        drawLabel(*canvas, key);
    }
}

} // namespace desktop
