// The links that the service knows.
#include "desktop/services/links/links.hpp"

#include "desktop/services/query.hpp"

#include <nlohmann/json.hpp>

namespace desktop::services::links {
namespace {

using Json = nlohmann::ordered_json;

constexpr int notFound = 404;

Answer answer(const Json& body, int status = Answer().status) {
    Answer made;
    made.status = status;
    made.body = body.dump();
    return made;
}

Answer answerFor(std::string_view link) {
    if (link == "https://v.douyin.com/whole/") {
        return answer({{"data",
                        {{"url", "https://api.douyin.wtf/media/whole.mp4"},
                         {"music_url", "https://api.douyin.wtf/media/whole.mp3"},
                         {"cover", "https://api.douyin.wtf/media/whole.jpg"},
                         {"music_cover", "https://api.douyin.wtf/media/whole-music.jpg"}}}});
    }
    if (link == "https://v.douyin.com/part/") {
        return answer({{"data",
                        {{"url", "https://api.douyin.wtf/media/part.mp4"},
                         {"cover", "https://api.douyin.wtf/media/part.jpg"}}}});
    }
    if (link == "https://v.douyin.com/gone/") {
        return answer({{"error", "the video is gone"}}, notFound);
    }
    return answer({{"data", nullptr}});
}

/// What the addresses lead to.
Answer mediaAt(std::string_view path) {
    Answer media;
    media.contentType = "application/octet-stream";
    media.body = path;
    return media;
}

} // namespace

Answer answerTo(std::string_view target) {
    if (pathOf(target).starts_with("/media/")) {
        return mediaAt(pathOf(target));
    }
    return pathOf(target) == "/api/video/douyin/"
               ? answerFor(restBehind(target, "url"))
               : answer({{"error", "there is no such path"}}, notFound);
}

} // namespace desktop::services::links
