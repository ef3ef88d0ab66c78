// URLs without a path: read with a slash added, and written as they were given.
#include "desktop/foundation/url.hpp"

#include "bindings/foundation/url.hpp"
#include "bindings/objc/associated.hpp"
#include "bindings/objc/hook.hpp"

#include <string>

namespace desktop::foundation {
namespace {

/// Where the slash is missing: at the query right after the host; npos when it is not.
std::size_t missingSlash(std::u16string_view text) {
    constexpr std::u16string_view mark = u"://";
    const std::size_t host = text.find(mark);
    if (host == std::u16string_view::npos) {
        return host;
    }
    const std::size_t end = text.find_first_of(u"/?#", host + mark.size());
    const bool hasHost = end > host + mark.size();
    return hasHost && end != std::u16string_view::npos && text[end] == u'?'
               ? end
               : std::u16string_view::npos;
}

using Maker = objc::Next<ns::Url(ns::String, ns::Url)>;
ns::Url read(Maker next, ns::Url, ns::String text, ns::Url base) {
    const std::u16string given = text ? std::u16string(text.utf16()) : std::u16string();
    const std::size_t place = missingSlash(given);
    if (place == std::u16string::npos) {
        return next(text, base);
    }
    // Not by `insert`: with optimisation, g++ 12 sees overlapping copies in it that are not there.
    const std::u16string whole = given.substr(0, place) + u'/' + given.substr(place);
    const ns::Url url = next(ns::String::from(whole), base);
    if (url) {
        objc::associate<"givenText">(url, text, objc::Association::copyNonatomic);
    }
    return url;
}

using Writer = objc::Next<ns::String()>;
ns::String written(Writer next, ns::Url url) {
    const auto given = objc::associated<"givenText", ns::String>(url);
    return given ? given : next();
}

} // namespace

void installUrls() {
    static const bool once = [] {
        objc::install(objc::hook<"NSURL", "initWithString:relativeToURL:", &read>());
        objc::install(objc::hook<"NSURL", "absoluteString", &written>());
        objc::install(objc::hook<"NSURL", "description", &written>());
        return true;
    }();
    static_cast<void>(once);
}

} // namespace desktop::foundation
