// UIPasteboard: the general pasteboard, which tells when it changes.
#pragma once

#include "bindings/uikit/pasteboard.hpp"

#include "desktop/class.hpp"

namespace desktop {

class Pasteboard : public PlatformClass<Pasteboard, ui::Pasteboard> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"generalPasteboard", &Pasteboard::generalPasteboard>(),
            objc::property<"string", &Pasteboard::string, &Pasteboard::setString>(),
            objc::property<"image", &Pasteboard::image, &Pasteboard::setImage>(),
            objc::method<"hasStrings", &Pasteboard::hasStrings>(),
            objc::method<"hasImages", &Pasteboard::hasImages>(),
            objc::method<"changeCount", &Pasteboard::changeCount_>(),
        };
    }

private:
    static ui::Pasteboard generalPasteboard(Class);
    [[nodiscard]] ns::String string() const { return string_; }
    void setString(ns::String string);
    [[nodiscard]] ui::Image image() const { return image_; }
    void setImage(ui::Image image);
    [[nodiscard]] bool hasStrings() const { return static_cast<bool>(string_); }
    [[nodiscard]] bool hasImages() const { return static_cast<bool>(image_); }
    void announce();

    // One item: text or an image.
    objc::Copied<ns::String> string_;
    objc::Strong<ui::Image> image_;
    long changeCount_ = 0;
};

} // namespace desktop
