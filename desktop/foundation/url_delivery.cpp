// Bytes into data or into a file.
#include "desktop/foundation/url_delivery.hpp"

#include "desktop/foundation/url_session.hpp"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <unistd.h>

namespace desktop::foundation {
namespace {

/// What is kept in memory of one answer at most: more than any answer that makes sense, less than
/// what would hurt the process.
constexpr unsigned long mostBytes = 256UL << 20U;

class DataDelivery : public UrlDelivery {
public:
    explicit DataDelivery(ns::UrlSession::Handler handler)
        : handler_(objc::Copied<ns::UrlSession::Handler>(handler)) {}

    bool receive(std::string_view piece, long long, long long) override {
        if (!handler_) {
            return tellDelegate(piece);
        }
        body_.append(piece);
        return body_.size() <= mostBytes;
    }

    void finish(ns::UrlResponse response, ns::Error error) override {
        if (!handler_) {
            tellDelegateOfEnd(error);
            return;
        }
        const ns::Data data = error ? nullptr : ns::Data::from(body_);
        body_ = {};
        handler_(data, error ? nullptr : response, error);
    }

private:
    bool tellDelegate(std::string_view piece) const {
        if (delegateFor(objc::selector<"URLSession:dataTask:didReceiveData:">())) {
            UrlSession::of(session_).perform([delivery = this, session = objc::Strong(session_),
                                              task = objc::Strong(task_),
                                              data = objc::Strong(ns::Data::from(piece))] {
                delivery->delegateFor(objc::selector<"URLSession:dataTask:didReceiveData:">())
                    .send<"URLSession:dataTask:didReceiveData:">(session, task, data);
            });
        }
        return true;
    }

    objc::Strong<ns::UrlSession::Handler> handler_;
    std::string body_;
};

std::filesystem::path freshFile() {
    static std::atomic<unsigned> count{0};
    return std::filesystem::temp_directory_path() /
           ("download-" + std::to_string(getpid()) + "-" + std::to_string(++count) + ".tmp");
}

class FileDelivery : public UrlDelivery {
public:
    explicit FileDelivery(ns::UrlSession::DownloadHandler handler)
        : handler_(objc::Copied<ns::UrlSession::DownloadHandler>(handler)), path_(freshFile()),
          file_(path_, std::ios::binary) {}

    ~FileDelivery() override { removeFile(); }

    bool receive(std::string_view piece, long long received, long long expected) override {
        file_.write(piece.data(), static_cast<std::streamsize>(piece.size()));
        if (!handler_ && delegateFor(progress)) {
            UrlSession::of(session_).perform([delivery = this, session = objc::Strong(session_),
                                              task = objc::Strong(task_),
                                              written = static_cast<long long>(piece.size()),
                                              received, expected] {
                delivery->delegateFor(progress)
                    .send<"URLSession:downloadTask:didWriteData:totalBytesWritten:"
                          "totalBytesExpectedToWrite:">(session, task, written, received, expected);
            });
        }
        return file_.good();
    }

    void finish(ns::UrlResponse response, ns::Error error) override {
        file_.close();
        const auto location = error ? nullptr
                                    : ns::Url::sendClass<"fileURLWithPath:", ns::Url>(
                                          ns::String::fromUtf8(path_.native()));
        if (handler_) {
            handler_(location, error ? nullptr : response, error);
            removeFile();
            return;
        }
        if (location) {
            delegateFor(arrival).send<"URLSession:downloadTask:didFinishDownloadingToURL:">(
                session_, task_, location);
        }
        removeFile();
        tellDelegateOfEnd(error);
    }

private:
    void removeFile() const {
        std::error_code ignored; // it may have been moved away
        std::filesystem::remove(path_, ignored);
    }

    static inline const SEL progress =
        objc::selector<"URLSession:downloadTask:didWriteData:totalBytesWritten:"
                       "totalBytesExpectedToWrite:">();
    static inline const SEL arrival =
        objc::selector<"URLSession:downloadTask:didFinishDownloadingToURL:">();

    objc::Strong<ns::UrlSession::DownloadHandler> handler_;
    std::filesystem::path path_;
    std::ofstream file_;
};

} // namespace

void UrlDelivery::setTask(ns::UrlSession session, ns::UrlSessionTask task) {
    session_ = session;
    task_ = task;
}

objc::Object UrlDelivery::delegateFor(SEL message) const {
    const auto delegate = session_.send<"delegate", objc::Object>();
    return delegate.respondsToSelector(message) ? delegate : nullptr;
}

void UrlDelivery::tellDelegateOfEnd(ns::Error error) const {
    delegateFor(objc::selector<"URLSession:task:didCompleteWithError:">())
        .send<"URLSession:task:didCompleteWithError:">(session_, task_, error);
}

std::unique_ptr<UrlDelivery> deliverData(ns::UrlSession::Handler handler) {
    return std::make_unique<DataDelivery>(handler);
}

std::unique_ptr<UrlDelivery> deliverFile(ns::UrlSession::DownloadHandler handler) {
    return std::make_unique<FileDelivery>(handler);
}

} // namespace desktop::foundation
