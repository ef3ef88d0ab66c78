// UIImage: a picture of the drawing core as an object.
#pragma once

#include "bindings/uikit/color.hpp"
#include "bindings/uikit/image.hpp"

#include "desktop/class.hpp"
#include "desktop/drawing/canvas.hpp"
#include "desktop/drawing/image.hpp"
#include "desktop/uikit/values/immutable.hpp"

#include <optional>
#include <string>

namespace desktop {

class UIImage : public PlatformClass<UIImage, ui::Image> {
public:
    static std::vector<objc::MethodRow> methods() {
        return {
            objc::classMethod<"imageWithContentsOfFile:", &UIImage::withContentsOfFile>(),
            objc::classMethod<"imageWithCGImage:scale:orientation:", &UIImage::withCgImage>(),
            objc::method<"drawInRect:", &UIImage::drawInRect>(),
            objc::method<"CGImage", &UIImage::cgImage>(),
            objc::classMethod<"systemImageNamed:", &UIImage::systemNamed>(),
            objc::classMethod<"systemImageNamed:withConfiguration:",
                              &UIImage::systemNamedInStyle>(),
            objc::method<"imageWithTintColor:", &UIImage::withTint>(),
            objc::method<"imageWithTintColor:renderingMode:", &UIImage::withTintAndMode>(),
            objc::method<"imageWithRenderingMode:", &UIImage::withRenderingMode>(),
            objc::method<"imageWithConfiguration:", &UIImage::inStyle>(),
            objc::method<"imageByApplyingSymbolConfiguration:", &UIImage::inStyle>(),
            objc::method<"renderingMode", &UIImage::renderingMode_>(),
            objc::method<"isSymbolImage", &UIImage::isSymbol>(),
            objc::method<"description", &UIImage::description>(),
            objc::method<"size", &UIImage::size>(),
            objc::method<"scale", &UIImage::scale>(),
            copyIsSelf(),
        };
    }

    /// The picture; null for nil and for an image without one.
    static const Image* valueOf(ui::Image image);
    static ui::Image from(Image picture);
    /// What a CGImageRef is here; null for null.
    static ui::Image imageOf(CGImageRef image) {
        return objc::wrap<ui::Image>(reinterpret_cast<id>(image));
    }
    /// The symbol's name; empty for nil and for pictures.
    static std::string symbolNameOf(ui::Image image) {
        return image ? of(image).symbolName_ : std::string();
    }
    /// Draws the image over the rectangle: a shape in its own tint, or else in the one given.
    static void draw(ui::Image image, Canvas& canvas, const Rectangle& area, ui::Color tint);

private:
    static ui::Image withContentsOfFile(Class, ns::String path);
    static ui::Image withCgImage(Class, CGImageRef image, double scale, long orientation);
    void drawInRect(CGRect rect) const;
    /// Here, the image itself.
    [[nodiscard]] CGImageRef cgImage() const { return reinterpret_cast<CGImageRef>(self().raw()); }
    static ui::Image systemNamed(Class cls, ns::String name) {
        return systemNamedInStyle(cls, name, nullptr);
    }
    static ui::Image systemNamedInStyle(Class, ns::String name, ui::ImageSymbolConfiguration style);
    [[nodiscard]] ui::Image withTint(ui::Color color) const {
        return withTintAndMode(color, renderingMode_);
    }
    [[nodiscard]] ui::Image withTintAndMode(ui::Color color, ui::RenderingMode mode) const;
    [[nodiscard]] ui::Image withRenderingMode(ui::RenderingMode mode) const;
    [[nodiscard]] ui::Image inStyle(ui::ImageSymbolConfiguration style) const;
    [[nodiscard]] ui::Image copied() const;
    [[nodiscard]] bool isSymbol() const { return !symbolName_.empty(); }
    /// Tells a symbol by its name.
    [[nodiscard]] ns::String description() const;
    [[nodiscard]] CGSize size() const;
    [[nodiscard]] double scale() const { return value_ ? value_->scale() : 1; }

    std::optional<Image> value_;
    /// Empty for a picture.
    std::string symbolName_;
    objc::Strong<ui::Color> tint_;
    ui::RenderingMode renderingMode_ = ui::RenderingMode::automatic;
};

} // namespace desktop
