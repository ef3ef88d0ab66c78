// UIMenuElement, UIAction and UIMenu: what stands in a menu.
#pragma once

#include "bindings/uikit/action.hpp"
#include "bindings/uikit/menu.hpp"

#include "desktop/class.hpp"

#include <array>

namespace desktop {

class MenuElement : public PlatformClass<MenuElement, ui::MenuElement> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"title", &MenuElement::title>(),
            objc::method<"image", &MenuElement::image>(),
        };
    }
    void set(ns::String title, ui::Image image);

private:
    [[nodiscard]] ns::String title() const { return title_; }
    [[nodiscard]] ui::Image image() const { return image_; }

    objc::Copied<ns::String> title_;
    objc::Strong<ui::Image> image_;
};

class Action : public PlatformClass<Action, ui::Action> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"actionWithTitle:image:identifier:handler:", &Action::with>(),
            objc::method<"identifier", &Action::identifier>(),
        };
    }
    /// Calls the handler.
    void perform();

private:
    static ui::Action with(Class cls, ns::String title, ui::Image image, ns::String identifier,
                           ui::Action::Handler handler);
    [[nodiscard]] ns::String identifier() const { return identifier_; }

    objc::Copied<ns::String> identifier_;
    objc::Copied<ui::Action::Handler> handler_;
};

class Menu : public PlatformClass<Menu, ui::Menu> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"menuWithTitle:children:", &Menu::with>(),
            objc::method<"children", &Menu::children>(),
        };
    }

private:
    static ui::Menu with(Class cls, ns::String title, ns::Array children);
    [[nodiscard]] ns::Array children() const { return children_; }

    objc::Copied<ns::Array> children_;
};

} // namespace desktop
