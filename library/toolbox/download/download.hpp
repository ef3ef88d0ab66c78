// The downloader: the address in the text, its progress, and the file that is shared.
#pragma once

#include "bindings/foundation/url_session.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/progress_view.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/grid/selection.hpp"

namespace wentra::toolbox {

/// The download that was started last, its bar and the button that ends it. An earlier one that is
/// still under way goes on without them. Main thread, but for what a session tells.
class Download : public objc::Part<FloatingViewController> {
public:
    Download(FloatingViewController whole, const Selection& selection)
        : Part(whole), selection_(selection) {}
    static Download& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"progressView", &Download::progressView_>(),
            objc::property<"downloadTask", &Download::task_>(),
            objc::property<"canceldownloadButton", &Download::cancelButton_>(),
            objc::method<"goxiazai", &Download::start>(),
            objc::method<"cancelDownload", &Download::cancel>(),
            objc::method<"downloadWithUrl:session:", &Download::loadAndShare>(),
            objc::method<"URLSession:downloadTask:didWriteData:totalBytesWritten:"
                         "totalBytesExpectedToWrite:",
                         &Download::progressed>(),
            objc::method<"URLSession:downloadTask:didFinishDownloadingToURL:",
                         &Download::arrived>(),
            objc::method<"URLSession:task:didCompleteWithError:", &Download::ended>(),
        };
    }

    /// Loads the file into the application's documents, with bar and button; a nil queue stands for
    /// one in the background. A nil URL is only logged.
    void load(ns::Url url, ns::OperationQueue queue);
    /// Says that nothing came of a download.
    void tellOfFailure() const;

private:
    void start();
    void cancel();
    /// Without bar and button, into the folder for temporary files.
    void loadAndShare(objc::Object address, objc::Object session) const;

    // From the session, on its queue.
    void progressed(objc::Object session, ns::UrlSessionTask task, long long written,
                    long long total, long long expected) const;
    void arrived(objc::Object session, ns::UrlSessionTask task, ns::Url file) const;
    void ended(objc::Object session, ns::UrlSessionTask task, ns::Error error) const;

    void showProgress();
    void addCancelButton();
    void setProgress(ns::UrlSessionTask task, double progress) const;
    /// Takes bar and button away when they are that task's.
    void finish(ns::UrlSessionTask task);
    void hideProgress();

    const Selection& selection_;
    objc::Strong<ui::ProgressView> progressView_;
    objc::Strong<ns::UrlSessionTask> task_;
    objc::Strong<ui::Button> cancelButton_;
};

} // namespace wentra::toolbox
