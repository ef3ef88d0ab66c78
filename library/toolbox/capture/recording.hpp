// Recording the application's screen, and the small control that stands on it meanwhile.
#pragma once

#include "bindings/foundation/error.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/replaykit/screen_recorder.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// The recorder and its control, which is dragged about over the host's screen: it stops the
/// recording, takes a picture, collects one for a long picture, and joins what is collected.
class Recording : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static Recording& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"screenRecorder", &Recording::recorder_>(),
            objc::property<"stopButton", &Recording::stopButton_>(),
            objc::property<"recordingLabel", &Recording::label_>(),
            objc::property<"container", &Recording::container_>(),
            objc::method<"createContainerView", &Recording::makeContainer>(),
            objc::method<"dragContainer:", &Recording::dragContainer>(),
            objc::method<"startRecording", &Recording::start>(),
            objc::method<"stopRecording", &Recording::stop>(),
            objc::method<"previewControllerDidFinish:", &Recording::previewFinished>(),
        };
    }

    /// The recorder is the application's.
    void begin() { recorder_ = rp::ScreenRecorder::sharedRecorder(); }

    /// The control; nil before the first recording.
    [[nodiscard]] ui::View container() const { return container_; }
    /// How many pictures are collected.
    void showCollected(std::size_t count) const;
    /// For a moment: a picture is in the photo library.
    void showSaved() const;

private:
    [[nodiscard]] ui::View makeContainer() const;
    void dragContainer(ui::PanGestureRecognizer pan);
    void start();
    void stop();
    void previewFinished(objc::Object preview);

    void fillContainer();
    ui::Button addButton(ns::String symbol, ns::String label, CGRect frame, SEL action) const;
    void showContainer() const;
    void removeContainerUnlessRecording() const;
    void stopped(rp::PreviewViewController preview, ns::Error error) const;

    objc::Strong<rp::ScreenRecorder> recorder_;
    objc::Strong<ui::Button> stopButton_;
    objc::Strong<ui::Button> cameraButton_;
    objc::Strong<ui::Button> collectButton_;
    objc::Strong<ui::Label> label_;
    objc::Strong<ui::View> container_;
};

} // namespace wentra::toolbox
