// The service that tells what lies behind a link to a short video: what it answers.
#pragma once

#include "desktop/services/answer.hpp"

#include <string_view>

namespace desktop::services::links {

/// The host name under which the service is reached.
inline constexpr std::string_view hostName = "api.douyin.wtf";

/// The answer to a GET of `target`, "/api/video/douyin/?url=" and a link: the addresses of the
/// video, its music and their covers. Of one link it knows all four, of one two; one is gone, an
/// error with status 404; of others there is no data. What its addresses lead to, below "/media/",
/// holds its own path.
Answer answerTo(std::string_view target);

} // namespace desktop::services::links
