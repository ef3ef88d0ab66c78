// RPScreenRecorder: films the screen into a file of the device.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/replaykit/screen_recorder.hpp"
#include "desktop/class.hpp"
#include "desktop/replaykit/screen_film.hpp"

namespace desktop {

/// The one of the process. Main thread. Films have no sound: there is no microphone.
class ScreenRecorder : public PlatformClass<ScreenRecorder, rp::ScreenRecorder> {
public:
    static constexpr auto methods() {
        using Self = ScreenRecorder;
        return std::array{
            objc::classMethod<"sharedRecorder", &Self::sharedRecorder>(),
            objc::property<"delegate", &Self::delegate_>(),
            objc::method<"isMicrophoneEnabled", &Self::isMicrophoneEnabled>(),
            objc::method<"setMicrophoneEnabled:", &Self::setMicrophoneEnabled>(),
            objc::method<"isAvailable", &Self::isAvailable>(),
            objc::method<"isRecording", &Self::isRecording>(),
            objc::method<"startRecordingWithHandler:", &Self::start>(),
            objc::method<"stopRecordingWithHandler:", &Self::stop>(),
        };
    }

    static ScreenRecorder& shared();

    /// From now on, starting is refused and stopping fails; what was recorded stays on the device.
    void setFails(bool fails) { fails_ = fails; }
    [[nodiscard]] bool fails() const { return fails_; }
    /// Whether it films.
    [[nodiscard]] bool isRecording() const { return film_ != nullptr; }
    /// The film ends as if the system had ended it; the delegate is told.
    void interrupt();
    /// The film ends without anybody being told.
    void close();

private:
    static rp::ScreenRecorder sharedRecorder(Class);
    [[nodiscard]] bool isMicrophoneEnabled() const { return microphone_; }
    void setMicrophoneEnabled(bool enabled) { microphone_ = enabled; }
    [[nodiscard]] bool isAvailable() const { return !fails_; }
    void start(rp::ScreenRecorder::Started handler);
    void stop(rp::ScreenRecorder::Stopped handler);
    /// Nil when it films.
    ns::Error begin();
    /// The preview of what was filmed, or nil when the file is not whole.
    rp::PreviewViewController end();

    objc::Weak<objc::Object> delegate_;
    bool microphone_ = false;
    bool fails_ = false;
    std::string file_; ///< of the latest film, on the device
    std::unique_ptr<ScreenFilm> film_;
};

/// Makes ReplayKit's classes known, after UIKit's. Once.
void registerReplayKitClasses();

} // namespace desktop
