// Construction of the toolbox's views.
#include "library/toolbox/panel_views.hpp"

#include "bindings/uikit/image_view.hpp"
#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"
#include "library/startup/resources.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

template <objc::Literal Action>
void addTap(ui::View view, ViewModel owner) {
    view.addGestureRecognizer(
        ui::GestureRecognizer::with<ui::TapGestureRecognizer>(owner, objc::selector<Action>()));
}

template <objc::Literal Action>
void addPan(ui::View view, ViewModel owner) {
    view.addGestureRecognizer(
        ui::GestureRecognizer::with<ui::PanGestureRecognizer>(owner, objc::selector<Action>()));
}

ui::Image ballImage() {
    const auto path = startup::ballImagePath();
    return path ? ui::Image::withContentsOfFile(ns::String::fromUtf8(*path)) : nullptr;
}

ui::Image panelImage() {
    for (const std::string& path : startup::panelImageCandidates()) {
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
    addTap<"showTextPanel">(ball, owner);
    addPan<"moveFloatingView:">(ball, owner);
    return ball;
}

ui::View makePanel(double height, CGSize screen, ui::Color background, ViewModel owner) {
    constexpr double cornerRadius = 7;
    const auto panel = ui::View::withFrame({{}, {screen.width, height}});
    panel.setCenter({screen.width * 0.5, screen.height * 0.5});
    panel.setBackgroundColor(background);
    panel.layer().setCornerRadius(cornerRadius);
    panel.setAlpha(0);

    const auto picture = ui::ImageView::withImage(panelImage());
    picture.setFrame(panel.bounds());
    picture.setContentMode(ui::ContentMode::scaleAspectFill);
    picture.setAutoresizingMask(ui::autoresizing::flexibleWidth | ui::autoresizing::flexibleHeight);
    picture.setClipsToBounds(true);
    picture.layer().setCornerRadius(cornerRadius);
    panel.addSubview(picture);

    addPan<"moveContentView:">(panel, owner);
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
    return editor;
}

ui::Button makeMarker() {
    constexpr double textSize = 11;
    const auto marker = ui::Button::ofType(ui::ButtonType::system);
    marker.setTitle(u"修改"_ns, ui::control_state::normal);
    marker.titleLabel().setFont(ui::Font::system(textSize));
    marker.sizeToFit();
    marker.setEnabled(false);
    marker.setAutoresizingMask(ui::autoresizing::flexibleLeftMargin |
                               ui::autoresizing::flexibleBottomMargin);
    return marker;
}

ui::View makeDimming(CGSize screen, ViewModel owner) {
    constexpr double darkness = 0.08;
    const auto dimming = ui::View::withFrame({{}, {screen.width * 3, screen.height * 3}});
    dimming.setBackgroundColor(ui::Color::black().withAlpha(darkness));
    dimming.setAlpha(0);
    addTap<"hideTextPanel">(dimming, owner);
    return dimming;
}

} // namespace wentra::toolbox
