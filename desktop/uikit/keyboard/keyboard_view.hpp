// The keyboard that is drawn: its keys can be tapped.
#pragma once

#include "bindings/uikit/event.hpp"
#include "bindings/uikit/view.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/keyboard/keyboard_layout.hpp"

namespace desktop {

struct KeyboardViewKind : objc::Kind<KeyboardViewKind, "UIKeyboardView", ui::View> {
    using Kind::Kind;
};

class KeyboardView : public PlatformClass<KeyboardView, KeyboardViewKind> {
public:
    static std::vector<objc::MethodRow> methods();

    /// Begins with letters; the return key is labelled for that UIReturnKeyType.
    void reset(long returnKeyType);

private:
    void touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesMoved(ns::SetOf<ui::Touch> touches, ui::Event event) {
        touchesBegan(touches, event);
    }
    void touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesCancelled(ns::SetOf<ui::Touch> touches, ui::Event event);
    void press(const Key& key);
    void show(KeyPage page);
    void arrange();
    [[nodiscard]] KeyboardShape shape() const;
    void drawRect(CGRect dirty);

    std::vector<Key> keys_;
    KeyPage page_ = KeyPage::letters;
    bool capitals_ = false;
    long returnKeyType_ = 0;
    const Key* pressed_ = nullptr;
};

} // namespace desktop
