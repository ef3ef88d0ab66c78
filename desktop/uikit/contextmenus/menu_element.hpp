// UIMenuElement: what stands in a menu.
#pragma once

#include "bindings/uikit/menu_element.hpp"

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
    void set(ns::String title, ui::Image image) {
        title_ = title;
        image_ = image;
    }

private:
    [[nodiscard]] ns::String title() const { return title_; }
    [[nodiscard]] ui::Image image() const { return image_; }

    objc::Copied<ns::String> title_;
    objc::Strong<ui::Image> image_;
};

} // namespace desktop
