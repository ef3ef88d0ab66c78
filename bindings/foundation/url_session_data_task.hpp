// NSURLSessionDataTask: loads into memory.
#pragma once

#include "bindings/foundation/url_session_task.hpp"

namespace ns {

struct UrlSessionDataTask : objc::Kind<UrlSessionDataTask, "NSURLSessionDataTask", UrlSessionTask> {
    using Kind::Kind;
};

} // namespace ns
