// UIButton: a control with a title and an image.
#pragma once

#include "bindings/uikit/button.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/controls/button_layout.hpp"

#include <map>
#include <vector>

namespace desktop {

class Button : public PlatformClass<Button, ui::Button> {
public:
    static std::vector<objc::MethodRow> methods();

private:
    /// What is set for each state.
    template <class Value>
    using ByState = std::map<ui::ControlState, Value>;

    static ui::Button ofType(Class cls, ui::ButtonType type);
    ui::Button initWithFrame(CGRect frame);
    void setTitle(ns::String title, ui::ControlState state);
    [[nodiscard]] ns::String titleFor(ui::ControlState state) const;
    [[nodiscard]] ns::String currentTitle() const { return titleFor(self().state()); }
    void setTitleColor(ui::Color color, ui::ControlState state);
    [[nodiscard]] ui::Color titleColorFor(ui::ControlState state) const;
    [[nodiscard]] ui::Color currentTitleColor() const { return titleColorFor(self().state()); }
    void setImage(ui::Image image, ui::ControlState state);
    [[nodiscard]] ui::Image imageFor(ui::ControlState state) const;
    [[nodiscard]] ui::Image currentImage() const { return imageFor(self().state()); }
    void setBackgroundImage(ui::Image image, ui::ControlState state);
    [[nodiscard]] ui::Image backgroundImageFor(ui::ControlState state) const;
    [[nodiscard]] ui::ImageView imageView();
    void setTintColor(ui::Color color);
    void layoutSubviews();
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const;
    [[nodiscard]] CGSize intrinsicContentSize() const { return sizeThatFits({}); }
    void insetsChanged() { self().setNeedsLayout(); }
    void contentChanged();
    void showState();
    void showImages(ui::ControlState state);
    [[nodiscard]] ButtonContent content() const;
    [[nodiscard]] bool isSystem() const { return type_ != ui::ButtonType::custom; }

    ui::ButtonType type_ = ui::ButtonType::custom;
    objc::Strong<ui::Label> label_;
    objc::Strong<ui::ImageView> imageView_;
    objc::Strong<ui::ImageView> backgroundView_;
    objc::Strong<ns::String> shown_;
    ByState<objc::Copied<ns::String>> titles_;
    ByState<objc::Strong<ui::Color>> colours_;
    ByState<objc::Strong<ui::Image>> images_;
    ByState<objc::Strong<ui::Image>> backgrounds_;
    UIEdgeInsets insets_;
    UIEdgeInsets titleInsets_;
    UIEdgeInsets imageInsets_;
    bool adjustsImageWhenHighlighted_ = true;
    bool adjustsImageWhenDisabled_ = true;
};

} // namespace desktop
