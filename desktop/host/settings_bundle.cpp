// Draws the floating button's picture, and puts the icons beside it.
#include "desktop/host/settings_bundle.hpp"

#include "desktop/host/bundle_icons.hpp"

#include "desktop/drawing/canvas.hpp"
#include "desktop/drawing/text_layout.hpp"

namespace desktop::host {
namespace {

constexpr double side = 34;
constexpr double scale = 3;
constexpr Colour blue{0.04, 0.48, 1, 1};
constexpr Colour white{1, 1, 1, 1};

Image ballPicture() {
    Canvas canvas({side, side}, scale);
    canvas.fill({0, 0, side, side}, blue, side / 2);
    canvas.stroke({1, 1, side - 2, side - 2}, white, 1.5, side / 2 - 1);
    TextRun look;
    look.font.size = 17;
    look.font.weight = 600;
    look.colour = white;
    TextFrame frame;
    frame.width = side;
    frame.alignment = TextAlignment::center;
    const TextLayout glyph(u"文", look, frame);
    glyph.draw(canvas.context(), {0, (side - glyph.size().height) / 2});
    return canvas.snapshot();
}

} // namespace

void addSettingsBundle(const std::filesystem::path& root) {
    const auto bundle = root / "Library/PreferenceBundles/hovtanprefs.bundle";
    if (std::filesystem::create_directories(bundle)) {
        ballPicture().savePng(bundle / "xfq.png");
        std::filesystem::create_directory(bundle / "tubiao");
        drawBundleIcons(bundle / "tubiao");
    }
}

} // namespace desktop::host
