// Finding the page that is asked for.
#include "desktop/viewer/web_pages.hpp"

#include "desktop/viewer/page_address.hpp"
#include "desktop/viewer/stand_in.hpp"
#include "desktop/webkit/web_content.hpp"

#include <algorithm>

namespace desktop::viewer {
namespace {

using uikit::Appearance;

constexpr const char* html = "text/html; charset=utf-8";

Answer standIn(const std::string& address, Appearance appearance) {
    Answer style = pageFile("stand_in.css").value_or(noSuchFile());
    if (style.status != Answer().status) {
        return style;
    }
    return {.type = html,
            .content = standInPage(address, style.content, appearance),
            .policy = standInPolicy()};
}

Answer frameWith(const std::string& address) {
    const std::string site = readPageAddress(address).site;
    return site.empty()
               ? noSuchFile()
               : Answer{.type = html, .content = framePage(address), .policy = framePolicy(site)};
}

} // namespace

Answer webPageAt(const std::string& path) {
    const std::string number = path.substr(0, path.find('/'));
    const std::string how = path.substr(std::min(path.size(), number.size() + 1));
    const auto pages = liveWebPages();
    const auto found = std::ranges::find(
        pages, number, [](const LiveWebPage& page) { return std::to_string(page.load); });
    if (found == pages.end()) {
        return noSuchFile();
    }
    if (how == "outside") {
        return frameWith(found->address);
    }
    return how == "dark"    ? standIn(found->address, Appearance::dark)
           : how == "light" ? standIn(found->address, Appearance::light)
                            : noSuchFile();
}

} // namespace desktop::viewer
