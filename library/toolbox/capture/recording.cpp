// Starting and stopping the recorder, and what its control shows.
#include "library/toolbox/capture/recording.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/foundation/log.hpp"
#include "bindings/uikit/window.hpp"
#include "library/common/animated.hpp"
#include "library/common/buttons.hpp"
#include "library/common/draggable_view.hpp"
#include "library/common/gestures.hpp"
#include "library/common/screens.hpp"
#include "library/toolbox/capture/usage_description.hpp"
#include "library/toolbox/main_thread.hpp"
#include "library/toolbox/panel/host_screens.hpp"
#include "library/toolbox/stored_size.hpp"

#include <array>
#include <string>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

/// The view gives way to a finger and comes back: its sizes on the way, and how long each takes.
constexpr std::array<double, 3> squeezedScales{0.3, 0.7, 1};
constexpr double secondsOfScale = 0.1 / squeezedScales.size();

void squeeze(const objc::Strong<ui::View>& view, std::size_t step = 0) {
    if (step == squeezedScales.size()) {
        return;
    }
    const double scale = squeezedScales[step];
    ui::View::animate(secondsOfScale, ui::View::Changes::from([view, scale] {
                          view.setTransform({scale, 0, 0, scale, 0, 0});
                      }),
                      ui::View::Completion::from([view, step](bool) { squeeze(view, step + 1); }));
}

ui::Image cameraSymbol() { return ui::Image::systemNamed(u"camera.circle.fill"_ns); }

} // namespace

ui::View Recording::makeContainer() const {
    constexpr CGRect frame{{220, 50}, {140, 60}};
    const auto container = ui::View::withFrame(frame);
    container.setBackgroundColor(ui::Color::clear());
    addPan(container, self(), objc::selector<"dragContainer:">());
    return container;
}

void Recording::dragContainer(ui::PanGestureRecognizer pan) {
    const ui::GestureState state = pan.state();
    if (state == ui::GestureState::changed || state == ui::GestureState::ended) {
        moveAlong(pan.view(), pan, pan.view().superview());
    }
}

ui::Button Recording::addButton(ns::String symbol, ns::String label, CGRect frame,
                                SEL action) const {
    const auto button = makeButton({.symbol = symbol, .frame = frame}, self(), action);
    button.setAccessibilityLabel(label);
    container_.addSubview(button);
    return button;
}

void Recording::fillContainer() {
    constexpr CGRect textFrame{{0, 22.5}, {140, 32}};
    constexpr double textShade = 0.85;
    constexpr double standardSize = 12;
    stopButton_ = addButton(u"stop.circle.fill"_ns, u"结束录屏"_ns, {{0, 0}, {36, 26}},
                            objc::selector<"stopRecording">());
    cameraButton_ = addButton(u"camera.circle.fill"_ns, u"截图"_ns, {{37, 0}, {36, 26}},
                              objc::selector<"takeScreenshot">());
    collectButton_ = addButton(u"plus.circle.fill"_ns, u"收集长图"_ns, {{74, 0}, {33, 26}},
                               objc::selector<"takeSnapshot">());
    addButton(u"arrow.up.and.down.circle.fill"_ns, u"拼接长图"_ns, {{107, 0}, {33, 26}},
              objc::selector<"stitchImages">());
    const auto preferences = preferences::Preferences::read();
    label_ = ui::Label::withFrame(textFrame);
    label_.setText(ns::String::from(preferences.text(preferences::keys.recordingNotice)));
    label_.setTextColor(ui::Color::red().withAlphaComponent(textShade));
    label_.setFont(ui::Font::system(
        storedSize(preferences, preferences::keys.recordingNoticeSize, standardSize)));
    label_.setNumberOfLines(0);
    container_.addSubview(label_);
}

void Recording::showContainer() const {
    const ui::Window window = activeWindow();
    window.addSubview(container_);
    window.makeKeyAndVisible();
}

void Recording::start() {
    recorder_.setMicrophoneEnabled(hasUsageDescription(u"NSMicrophoneUsageDescription"_ns));
    container_.removeFromSuperview(); // one that a recording left behind which ended by itself
    container_ = self().send<"createContainerView", ui::View>();
    fillContainer();
    showContainer();
    recorder_.startRecording(rp::ScreenRecorder::Started::from(
        [controller = objc::Strong(self())](ns::Error error) mutable {
            onMainThread(std::move(controller),
                         [failed = static_cast<bool>(error)](FloatingViewController starting) {
                             if (failed) {
                                 of(starting).removeContainerUnlessRecording();
                             }
                         });
        }));
}

/// There is nothing to stop then.
void Recording::removeContainerUnlessRecording() const {
    if (!recorder_.isRecording()) {
        container_.removeFromSuperview();
    }
}

void Recording::stop() {
    squeeze(self().send<"stopRecordButton", ui::View>());
    recorder_.stopRecording(rp::ScreenRecorder::Stopped::from(
        [controller = objc::Strong(self())](rp::PreviewViewController preview,
                                            ns::Error error) mutable {
            onMainThread(std::move(controller),
                         [preview = objc::Strong(preview),
                          error = objc::Strong(error)](FloatingViewController stopping) {
                             of(stopping).stopped(preview, error);
                         });
        }));
}

void Recording::stopped(rp::PreviewViewController preview, ns::Error error) const {
    if (error) {
        ns::log("停止录制错误 : " + error.localizedDescription().utf8());
    }
    if (error || !preview) {
        removeContainerUnlessRecording();
        return;
    }
    preview.setPreviewControllerDelegate(self());
    preview.setModalPresentationStyle(ui::ModalPresentation::overFullScreen);
    presentOverHost(self(), preview);
}

void Recording::previewFinished(objc::Object preview) {
    preview.as<ui::ViewController>().dismiss(animated);
    container_.removeFromSuperview();
}

void Recording::showCollected(std::size_t count) const {
    const auto number = count > 0 ? ns::String::fromUtf8(std::to_string(count)) : ns::String();
    const auto symbol = count > 0 ? ui::Image() : ui::Image::systemNamed(u"plus.circle.fill"_ns);
    collectButton_.setTitle(number, ui::ControlState::normal);
    collectButton_.setImage(symbol, ui::ControlState::normal);
}

void Recording::showSaved() const {
    constexpr double shown = 1; // seconds
    cameraButton_.setImage(ui::Image::systemNamed(u"checkmark.circle.fill"_ns),
                           ui::ControlState::normal);
    dispatch::after(shown, dispatch::mainQueue(), [button = objc::Strong(cameraButton_)] {
        button.setImage(cameraSymbol(), ui::ControlState::normal);
    });
}

} // namespace wentra::toolbox
