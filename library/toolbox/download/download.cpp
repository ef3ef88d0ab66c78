// Starting downloads, and what becomes of them.
#include "library/toolbox/download/download.hpp"

#include "bindings/foundation/file_manager.hpp"
#include "bindings/foundation/log.hpp"
#include "library/common/buttons.hpp"
#include "library/common/light_background.hpp"
#include "library/common/notice.hpp"
#include "library/common/outline.hpp"
#include "library/common/screens.hpp"
#include "library/common/sharing.hpp"
#include "library/paths/documents_folder.hpp"
#include "library/preferences/preferences.hpp"
#include "library/toolbox/download/download_rules.hpp"
#include "library/toolbox/download/kept_file.hpp"
#include "library/toolbox/download/link_choice.hpp"
#include "library/toolbox/main_thread.hpp"

#include <utility>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

std::u16string fileNameOf(ns::UrlResponse response) {
    return std::u16string(fileNameIn(response.suggestedFilename().utf16()));
}

ns::String temporaryPath(std::u16string_view name) {
    std::u16string path = ns::FileManager::defaultManager().temporaryDirectory().path().utf16();
    return ns::String::from(path.append(u"/").append(name));
}

/// From the host's screen when the panel has been put away meanwhile.
void offerFile(ns::String path, FloatingViewController controller) {
    const bool isShown = static_cast<bool>(controller.view().window());
    shareFile(path, isShown ? ui::ViewController(controller) : topViewController());
}

} // namespace

void Download::start() {
    const ns::String address = selection_.pickedOrCopied();
    const ns::Url url = isWebAddress(address.utf16()) ? ns::Url::withString(address) : ns::Url();
    if (url && preferences::Preferences::read().on(preferences::keys.parseLinks)) {
        offerLinks(self(), url);
    } else {
        load(url, nullptr);
    }
}

void Download::load(ns::Url url, ns::OperationQueue queue) {
    if (!url) {
        ns::log("无效链接");
        return;
    }
    showProgress();
    const auto session = ns::UrlSession::with(
        ns::UrlSessionConfiguration::defaultSessionConfiguration(), self(), queue);
    task_ = session.downloadTask(url);
    task_.resume();
    session.finishTasksAndInvalidate(); // it keeps the controller until then
}

void Download::showProgress() {
    hideProgress();
    cancelButton_.removeFromSuperview();
    addCancelButton();
    const double width = self().view().bounds().size.width;
    progressView_ = ui::ProgressView::withStyle(ui::ProgressViewStyle::default_);
    progressView_.setFrame({{20, 0}, {width - 40, 10}});
    progressView_.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    progressView_.setProgress(0);
    self().view().addSubview(progressView_);
}

void Download::addCancelButton() {
    const double width = self().view().bounds().size.width;
    cancelButton_ = makeButton({.title = u"取消下载"_ns, .frame = {{80, 6}, {width - 160, 30}}},
                               self(), objc::selector<"cancelDownload">());
    cancelButton_.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    // It lies over the words of the grid.
    setLightBackground(cancelButton_, ui::Color::white());
    drawOutline(cancelButton_, {.cornerRadius = 6, .width = 1, .color = ui::Color::lightGray()});
    cancelButton_.setHidden(true);
    self().view().addSubview(cancelButton_);
}

void Download::hideProgress() {
    cancelButton_.setHidden(true);
    progressView_.removeFromSuperview();
    progressView_ = nullptr;
}

void Download::finish(ns::UrlSessionTask task) {
    if (task == task_) {
        hideProgress();
    }
}

void Download::cancel() {
    task_.cancel();
    hideProgress();
}

void Download::setProgress(ns::UrlSessionTask task, double progress) const {
    if (task == task_ && progressView_) {
        progressView_.setProgress(static_cast<float>(progress));
        cancelButton_.setHidden(false);
    }
}

void Download::progressed(objc::Object, ns::UrlSessionTask task, long long, long long total,
                          long long expected) const {
    // The length is -1 when the server has not told it.
    const double progress =
        expected > 0 ? static_cast<double>(total) / static_cast<double>(expected) : 0;
    onMainThread(self(), [task = objc::Strong(task), progress](FloatingViewController controller) {
        of(controller).setProgress(task, progress);
    });
}

void Download::arrived(objc::Object, ns::UrlSessionTask task, ns::Url file) const {
    const ns::String path = paths::documentPath(fileNameOf(task.response()));
    const ns::Error failure = keepFile(file, path);
    if (failure) {
        ns::log("保存文件出错: " + failure.localizedDescription().utf8());
    }
    onMainThread(self(), [task = objc::Strong(task), path = objc::Strong(path),
                          failed = static_cast<bool>(failure)](FloatingViewController controller) {
        of(controller).finish(task);
        if (failed) {
            of(controller).tellOfFailure();
        } else {
            offerFile(path, controller);
        }
    });
}

void Download::ended(objc::Object, ns::UrlSessionTask task, ns::Error error) const {
    if (!error) {
        return;
    }
    const bool isCancelled = error.code() == ns::urlErrorCancelled;
    onMainThread(self(),
                 [task = objc::Strong(task), isCancelled](FloatingViewController controller) {
                     of(controller).finish(task);
                     if (!isCancelled) {
                         of(controller).tellOfFailure();
                     }
                 });
}

void Download::tellOfFailure() const {
    constexpr double shown = 1.3; // seconds
    const ui::View panel = self().view();
    showNotice(panel.window() ? panel : ui::View(activeWindow()), u"下载失败❗️"_ns,
               {.height = 0.25}, shown);
}

void Download::loadAndShare(objc::Object address, objc::Object session) const {
    const auto text = address.as<ns::String>();
    const ns::Url url = text ? ns::Url::withString(text) : ns::Url();
    if (!url) {
        return;
    }
    const auto completion = ns::UrlSession::DownloadHandler::from(
        [controller = objc::Strong(self())](ns::Url file, ns::UrlResponse response,
                                            ns::Error error) mutable {
            const auto path = error ? nullptr : temporaryPath(fileNameOf(response));
            if (path) {
                static_cast<void>(keepFile(file, path));
            }
            onMainThread(std::move(controller),
                         [path = objc::Strong(path)](FloatingViewController presenter) {
                             if (path) {
                                 offerFile(path, presenter);
                             }
                         });
        });
    session.as<ns::UrlSession>().downloadTask(url, completion).resume();
}

} // namespace wentra::toolbox
