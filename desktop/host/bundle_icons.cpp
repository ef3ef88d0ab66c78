// The tiles, and drawing them.
#include "desktop/host/bundle_icons.hpp"

#include "desktop/drawing/canvas.hpp"
#include "desktop/drawing/symbol.hpp"

#include <algorithm>
#include <array>

namespace desktop::host {
namespace {

constexpr double side = 35;
constexpr double scale = 3;
constexpr double corner = 8;
constexpr double symbolSide = 21;
constexpr double symbolSize = 28;

constexpr std::array icons{
    BundleIcon{"folder_icon", "folder.fill", 0x2F8FE8},
    BundleIcon{"weizhi_icon", "questionmark", 0x8E8E93},
    BundleIcon{"image_icon", "photo", 0x34A853},
    BundleIcon{"text_icon", "doc.text", 0x6D6D78},
    BundleIcon{"plist_icon", "list.bullet", 0x5856D6},
    BundleIcon{"video_icon", "film", 0xD6336C},
    BundleIcon{"txt_icon", "doc.plaintext", 0x0C8599},
    BundleIcon{"zip_icon", "archivebox", 0xC77700},
    BundleIcon{"deb_icon", "shippingbox", 0xB5482A},
    BundleIcon{"ipa_icon", "app.badge", 0x1C7ED6},
    BundleIcon{"music_icon", "music.note", 0xE0335A},
    BundleIcon{"pdf_icon", "book", 0xC92A2A},
    BundleIcon{"关闭", "xmark", 0x6D6D78},
    BundleIcon{"日期", "calendar", 0xD6336C},
    BundleIcon{"大小", "chart.bar", 0x0C8599},
    BundleIcon{"新建", "plus", 0x2F9E44},
    BundleIcon{"收藏", "star.fill", 0xC77700},
    BundleIcon{"切换", "arrow.right.arrow.left", 0x5856D6},
};

Colour colourOf(unsigned rgb) {
    const auto part = [rgb](unsigned shift) { return ((rgb >> shift) & 0xFFU) / 255.0; };
    return {part(16), part(8), part(0), 1};
}

/// The symbol's own proportions in the middle of the tile.
Rectangle middle(const Image& shape) {
    const Size own = shape.size();
    const double factor = symbolSide / std::max({own.width, own.height, 1.0});
    const double width = own.width * factor;
    const double height = own.height * factor;
    return {(side - width) / 2, (side - height) / 2, width, height};
}

Image picture(const BundleIcon& icon) {
    constexpr Colour white{1, 1, 1, 1};
    Canvas canvas({side, side}, scale);
    canvas.fill({0, 0, side, side}, colourOf(icon.colour), corner);
    SymbolStyle style;
    style.pointSize = symbolSize;
    if (const auto shape = symbol(icon.symbol, style, scale); shape) {
        canvas.fillShape(*shape, middle(*shape), white);
    }
    return canvas.snapshot();
}

} // namespace

std::span<const BundleIcon> bundleIcons() { return icons; }

void drawBundleIcons(const std::filesystem::path& folder) {
    for (const BundleIcon& icon : icons) {
        picture(icon).savePng(folder / (std::string(icon.name) + ".png"));
    }
}

} // namespace desktop::host
