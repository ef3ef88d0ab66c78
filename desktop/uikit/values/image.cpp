// UIImage's makers, measures and drawing.
#include "desktop/uikit/values/image.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/values/symbol_configuration.hpp"

#include <cmath>
#include <filesystem>

namespace desktop {
namespace {

/// Pixels a point, as the platform reads them off a file's name: "star@3x.png" has 3.
double scaleOf(const std::filesystem::path& file) {
    const std::string name = file.stem();
    return name.ends_with("@3x") ? 3 : name.ends_with("@2x") ? 2 : 1;
}

/// What the platform loads for the picture: the form for the screen's scale, which lies beside the
/// plain one, where there is such.
std::filesystem::path formForScreen(const std::filesystem::path& file) {
    const long scale = std::lround(ScreenGeometry::current().scale);
    const std::string mark = "@" + std::to_string(scale) + "x";
    const auto form =
        file.parent_path() / (file.stem().string() + mark + file.extension().string());
    std::error_code unreadable;
    return exists(form, unreadable) ? form : file;
}

} // namespace

ui::Image UIImage::withContentsOfFile(Class, ns::String path) {
    const std::filesystem::path file = formForScreen(path.utf8());
    auto picture = Image::load(file, scaleOf(file));
    return picture ? from(std::move(*picture)) : nullptr;
}

ui::Image UIImage::from(Image picture) {
    const auto image = ui::Image::make();
    of(image).value_ = std::move(picture);
    return image;
}

ui::Image UIImage::withCgImage(Class, CGImageRef image, double scale, long) {
    const Image* picture = valueOf(imageOf(image));
    return picture != nullptr ? from(picture->atScale(scale)) : nullptr;
}

void UIImage::drawInRect(CGRect rect) const {
    if (Canvas* canvas = currentCanvas(); canvas != nullptr) {
        draw(self(), *canvas, rectangle(rect), ui::Color::black());
    }
}

ui::Image UIImage::systemNamedInStyle(Class, ns::String name, ui::ImageSymbolConfiguration style) {
    const std::string symbolName = name.utf8();
    auto picture =
        symbol(symbolName, SymbolConfiguration::styleOf(style), ScreenGeometry::current().scale);
    if (!picture) {
        return nullptr;
    }
    const auto image = ui::Image::make();
    of(image).value_ = std::move(picture);
    of(image).symbolName_ = symbolName;
    return image;
}

ui::Image UIImage::copied() const {
    const auto image = ui::Image::make();
    of(image).value_ = value_;
    of(image).symbolName_ = symbolName_;
    of(image).tint_ = tint_;
    of(image).renderingMode_ = renderingMode_;
    return image;
}

ui::Image UIImage::withTintAndMode(ui::Color color, ui::RenderingMode mode) const {
    const ui::Image image = copied();
    of(image).tint_ = color;
    of(image).renderingMode_ = mode;
    return image;
}

ui::Image UIImage::withRenderingMode(ui::RenderingMode mode) const {
    const ui::Image image = copied();
    of(image).renderingMode_ = mode;
    return image;
}

ui::Image UIImage::inStyle(ui::ImageSymbolConfiguration style) const {
    if (!isSymbol()) {
        return self();
    }
    const ui::Image image = systemNamedInStyle(nullptr, ns::String::fromUtf8(symbolName_), style);
    of(image).tint_ = tint_;
    of(image).renderingMode_ = renderingMode_;
    return image;
}

const Image* UIImage::valueOf(ui::Image image) {
    return image && of(image).value_ ? &*of(image).value_ : nullptr;
}

void UIImage::draw(ui::Image image, Canvas& canvas, const Rectangle& area, ui::Color tint) {
    const Image* picture = valueOf(image);
    if (picture == nullptr) {
        return;
    }
    using Mode = ui::RenderingMode;
    const UIImage& peer = of(image);
    const bool isShape = peer.renderingMode_ == Mode::alwaysTemplate ||
                         (peer.renderingMode_ == Mode::automatic && peer.isSymbol());
    if (peer.tint_ && peer.renderingMode_ != Mode::alwaysTemplate) {
        canvas.fillShape(*picture, area, Color::valueOf(peer.tint_));
    } else if (isShape) {
        canvas.fillShape(*picture, area, Color::valueOf(tint));
    } else {
        canvas.draw(*picture, area);
    }
}

ns::String UIImage::description() const {
    return isSymbol() ? ns::String::fromUtf8("<UIImage symbol(system: " + symbolName_ + ")>")
                      : super<"description", ns::String>();
}

CGSize UIImage::size() const {
    return value_ ? CGSize{value_->size().width, value_->size().height} : CGSize();
}

} // namespace desktop
