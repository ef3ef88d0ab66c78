// UIButton: a control with a title.
#pragma once

#include "bindings/uikit/button.hpp"

#include "desktop/class.hpp"

#include <map>

namespace desktop {

class Button : public PlatformClass<Button, ui::Button> {
public:
    static std::vector<objc::MethodRow> methods();

private:
    static ui::Button ofType(Class cls, ui::ButtonType type);
    ui::Button initWithFrame(CGRect frame);
    void setTitle(ns::String title, unsigned long state);
    [[nodiscard]] ns::String titleFor(unsigned long state) const;
    [[nodiscard]] ns::String currentTitle() const { return titleFor(self().state()); }
    void setTitleColor(ui::Color color, unsigned long state);
    [[nodiscard]] ui::Color titleColorFor(unsigned long state) const;
    void layoutSubviews();
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const;
    [[nodiscard]] CGSize intrinsicContentSize() const { return sizeThatFits({}); }
    void insetsChanged() { self().setNeedsLayout(); }
    void showState();

    ui::ButtonType type_ = ui::ButtonType::custom;
    objc::Strong<ui::Label> label_;
    objc::Strong<ns::String> shown_;
    std::map<unsigned long, objc::Copied<ns::String>> titles_;
    std::map<unsigned long, objc::Strong<ui::Color>> colours_;
    UIEdgeInsets insets_;
};

} // namespace desktop
