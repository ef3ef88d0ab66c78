// Starting and stopping films, and what is told of it.
#include "desktop/replaykit/screen_recorder.hpp"

#include "desktop/replaykit/film_view.hpp"
#include "desktop/replaykit/preview_view_controller.hpp"
#include "desktop/runtime/event_log.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/uikit/delegate_messages.hpp"

namespace desktop {
namespace {

using namespace ns::literals;

/// The platform's numbers.
enum class RecordingError : long {
    userDeclined = -5801,
    failedToStart = -5803,
    failed = -5804,
    interrupted = -5806,
    notRecording = -5829,
    alreadyRecording = -5830
};

ns::Error errorOf(RecordingError code, ns::String text) {
    return ns::Error::withDescription(u"com.apple.ReplayKit.RPRecordingErrorDomain"_ns,
                                      static_cast<long>(code), text);
}

/// `file` and `error` may be empty.
void recordState(ns::String state, const std::string& file, ns::Error error) {
    const auto fields = ns::MutableDictionary::make();
    fields.set(state, u"state"_ns);
    if (!file.empty()) {
        fields.set(ns::String::fromUtf8(file), u"file"_ns);
    }
    if (error) {
        fields.set(error.localizedDescription(), u"error"_ns);
    }
    EventLog::shared().record("recording", fields);
}

} // namespace

rp::ScreenRecorder ScreenRecorder::sharedRecorder(Class) {
    static const objc::Strong<rp::ScreenRecorder> recorder = rp::ScreenRecorder::make();
    return recorder;
}

ScreenRecorder& ScreenRecorder::shared() { return of(sharedRecorder(nullptr)); }

ns::Error ScreenRecorder::begin() {
    if (film_) {
        return errorOf(RecordingError::alreadyRecording, u"已经在录制屏幕。"_ns);
    }
    if (fails_) {
        return errorOf(RecordingError::userDeclined, u"用户拒绝了录屏。"_ns);
    }
    file_ = freeFilmFile("recording-");
    film_ = filmScreen(file_);
    if (!film_) {
        file_.clear();
        return errorOf(RecordingError::failedToStart, u"无法开始录屏。"_ns);
    }
    return nullptr;
}

void ScreenRecorder::start(rp::ScreenRecorder::Started handler) {
    const objc::Strong<ns::Error> error = begin();
    recordState(error ? u"refused"_ns : u"started"_ns, {}, error);
    if (handler) {
        MainQueue::shared().add([handler = objc::Copied(handler), error] { handler(error); });
    }
}

rp::PreviewViewController ScreenRecorder::end() {
    const auto film = std::exchange(film_, nullptr);
    const bool isWhole = film->finish();
    recordState(u"stopped"_ns, file_, nullptr);
    return isWhole ? PreviewViewController::withFilm(file_, film->poster()) : nullptr;
}

void ScreenRecorder::stop(rp::ScreenRecorder::Stopped handler) {
    objc::Strong<rp::PreviewViewController> preview;
    objc::Strong<ns::Error> error =
        errorOf(RecordingError::notRecording, u"没有正在进行的录屏。"_ns);
    if (isRecording()) {
        const auto film = end();
        preview = fails_ ? rp::PreviewViewController() : film;
        error = preview ? ns::Error() : errorOf(RecordingError::failed, u"录屏失败。"_ns);
    }
    if (handler) {
        MainQueue::shared().add(
            [handler = objc::Copied(handler), preview, error] { handler(preview, error); });
    }
}

void ScreenRecorder::interrupt() {
    if (!isRecording()) {
        return;
    }
    const objc::Strong<rp::PreviewViewController> preview = end();
    const objc::Strong<ns::Error> error = errorOf(RecordingError::interrupted, u"录屏已中断。"_ns);
    MainQueue::shared().add([kept = objc::Strong(self()), preview, error] {
        tell<"screenRecorder:didStopRecordingWithPreviewViewController:error:">(
            of(kept).delegate_.strong(), kept, preview, error);
    });
}

void ScreenRecorder::close() {
    if (isRecording()) {
        static_cast<void>(end());
    }
}

void registerReplayKitClasses() {
    FilmView::registerClass();
    PreviewViewController::registerClass();
    ScreenRecorder::registerClass();
}

} // namespace desktop
