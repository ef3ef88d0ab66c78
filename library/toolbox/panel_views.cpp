// Construction of the toolbox's views.
#include "library/toolbox/panel_views.hpp"

#include "bindings/uikit/image_view.hpp"
#include "library/common/gestures.hpp"
#include "library/common/light_background.hpp"
#include "library/paths/resources.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

ui::Image ballImage() {
    const auto path = paths::ballImagePath();
    return path ? ui::Image::withContentsOfFile(ns::String::fromUtf8(*path)) : nullptr;
}

ui::Image panelImage() {
    for (const std::string& path : paths::panelImageCandidates()) {
        if (const auto image = ui::Image::withContentsOfFile(ns::String::fromUtf8(path)); image) {
            return image;
        }
    }
    return nullptr;
}

} // namespace

ui::View makeBall(double side, ViewModel owner) {
    const auto ball = ui::View::withFrame({{}, {side, side}});
    ball.setBackgroundColor(ui::Color::clear());
    const ca::Layer layer = ball.layer();
    layer.setContents(ballImage().cgImage());
    layer.setCornerRadius(side * 0.5);
    layer.setMasksToBounds(true);
    ball.setAlpha(0);
    // Where it is on the screen, it is when the phone is turned.
    using enum ui::ViewAutoresizing;
    ball.setAutoresizingMask(flexibleLeftMargin | flexibleRightMargin | flexibleTopMargin |
                             flexibleBottomMargin);
    addTap(ball, owner, objc::selector<"showTextPanel">());
    addPan(ball, owner, objc::selector<"moveFloatingView:">());
    return ball;
}

ui::View makePanel(double height, CGSize screen, ui::Color background, ViewModel owner) {
    constexpr double cornerRadius = 7;
    const auto panel = ui::View::withFrame({{}, {screen.width, height}});
    panel.setCenter({screen.width * 0.5, screen.height * 0.5});
    setLightBackground(panel, background);
    panel.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    panel.layer().setCornerRadius(cornerRadius);
    panel.setAlpha(0);

    const auto picture = ui::ImageView::withImage(panelImage());
    picture.setFrame(panel.bounds());
    picture.setContentMode(ui::ContentMode::scaleAspectFill);
    picture.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                                ui::ViewAutoresizing::flexibleHeight);
    picture.setClipsToBounds(true);
    picture.layer().setCornerRadius(cornerRadius);
    panel.addSubview(picture);

    addPan(panel, owner, objc::selector<"moveContentView:">());
    return panel;
}

ui::TextView makeEditor(CGRect frame, ViewModel owner) {
    constexpr double textSize = 14;
    const auto editor = ui::TextView::withFrame(frame);
    editor.setTextColor(ui::Color::black());
    editor.setTextAlignment(ui::TextAlignment::left);
    editor.setFont(ui::Font::system(textSize));
    editor.setEditable(true);
    editor.setScrollEnabled(true);
    editor.setBackgroundColor(ui::Color::clear());
    editor.setDelegate(owner);
    editor.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    return editor;
}

ui::Button makeMarker() {
    constexpr double textSize = 11;
    const auto marker = ui::Button::withType(ui::ButtonType::system);
    marker.setTitle(u"修改"_ns, ui::ControlState::normal);
    marker.titleLabel().setFont(ui::Font::system(textSize));
    marker.sizeToFit();
    marker.setEnabled(false);
    marker.setAutoresizingMask(ui::ViewAutoresizing::flexibleLeftMargin |
                               ui::ViewAutoresizing::flexibleBottomMargin);
    return marker;
}

ui::View makeDimming(CGSize screen, ViewModel owner) {
    constexpr double darkness = 0.08;
    const auto dimming = ui::View::withFrame({{}, {screen.width * 3, screen.height * 3}});
    dimming.setBackgroundColor(ui::Color::black().withAlphaComponent(darkness));
    dimming.setAlpha(0);
    dimming.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                                ui::ViewAutoresizing::flexibleHeight);
    addTap(dimming, owner, objc::selector<"hideTextPanel">());
    return dimming;
}

} // namespace wentra::toolbox
