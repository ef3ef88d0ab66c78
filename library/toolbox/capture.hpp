// The capture tools: recording and picturing the screen, and taking down speech.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// The recorder and its container, a small clear view that is dragged about over the host's screen;
/// the pictures that were taken; and the recognizer of speech.
class Capture : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static Capture& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"screenRecorder", &Capture::screenRecorder_>(),
            objc::property<"stopButton", &Capture::stopButton_>(),
            objc::property<"recordingLabel", &Capture::recordingLabel_>(),
            objc::property<"container", &Capture::container_>(),
            objc::property<"screenshotsArray", &Capture::screenshots_>(),
            objc::property<"speechRecognizer", &Capture::speechRecognizer_>(),
            objc::property<"recognitionRequest", &Capture::recognitionRequest_>(),
            objc::property<"recognitionTask", &Capture::recognitionTask_>(),
            objc::property<"audioEngine", &Capture::audioEngine_>(),
            objc::property<"speechString", &Capture::speechString_>(),
            objc::method<"createContainerView", &Capture::makeContainer>(),
            objc::method<"dragContainer:", &Capture::dragContainer>(),
        };
    }

    /// There are no pictures yet, and the recorder is the application's.
    void begin();

private:
    [[nodiscard]] ui::View makeContainer() const;
    void dragContainer(ui::PanGestureRecognizer pan);

    objc::Strong<objc::Object> screenRecorder_;
    objc::Strong<ui::Button> stopButton_;
    objc::Strong<ui::Label> recordingLabel_;
    objc::Strong<ui::View> container_;
    objc::Strong<ns::MutableArray> screenshots_;
    objc::Strong<objc::Object> speechRecognizer_;
    objc::Strong<objc::Object> recognitionRequest_;
    objc::Strong<objc::Object> recognitionTask_;
    objc::Strong<objc::Object> audioEngine_;
    objc::Strong<ns::String> speechString_;
};

} // namespace wentra::toolbox
