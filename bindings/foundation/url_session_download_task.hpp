// NSURLSessionDownloadTask: loads into a file.
#pragma once

#include "bindings/foundation/url_session_task.hpp"

namespace ns {

struct UrlSessionDownloadTask
    : objc::Kind<UrlSessionDownloadTask, "NSURLSessionDownloadTask", UrlSessionTask> {
    using Kind::Kind;
};

} // namespace ns
