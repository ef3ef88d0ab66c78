// RPScreenRecorder: records the application's screen.
#pragma once

#include "bindings/foundation/error.hpp"
#include "bindings/objc/block.hpp"
#include "bindings/replaykit/preview_view_controller.hpp"

namespace rp {

struct ScreenRecorder : objc::Kind<ScreenRecorder, "RPScreenRecorder"> {
    using Kind::Kind;
    using Started = objc::Block<void(ns::Error error)>;
    /// The preview is nil when there is an error.
    using Stopped = objc::Block<void(PreviewViewController preview, ns::Error error)>;

    /// Nil where the framework is not loaded.
    static ScreenRecorder sharedRecorder() { return sendClass<"sharedRecorder", ScreenRecorder>(); }

    [[nodiscard]] bool isRecording() const { return send<"isRecording", bool>(); }
    void setMicrophoneEnabled(bool enabled) const { send<"setMicrophoneEnabled:">(enabled); }
    /// `started`, which may be nil, is called on any thread once recording has begun or failed.
    void startRecording(Started started) const { send<"startRecordingWithHandler:">(started); }
    /// `stopped` is called on any thread when the film is there.
    void stopRecording(Stopped stopped) const { send<"stopRecordingWithHandler:">(stopped); }
};

} // namespace rp
