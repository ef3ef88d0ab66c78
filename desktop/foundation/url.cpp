// URLs as the phone makes them: a missing slash is added for reading only, an empty text is none,
// and no maker passes through another.
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
ns::Url read(Maker next, ns::Url url, ns::String text, ns::Url base) {
    if (text && text.length() == 0 && !base) {
        static_cast<void>(objc::Strong<ns::Url>::adopt(url)); // as an initialiser that fails does
        return nullptr;
    }
    const std::u16string given = text ? std::u16string(text.utf16()) : std::u16string();
    const std::size_t place = missingSlash(given);
    if (place == std::u16string::npos) {
        return next(text, base);
    }
    // Not by `insert`: with optimisation, g++ 12 sees overlapping copies in it that are not there.
    const std::u16string whole = given.substr(0, place) + u'/' + given.substr(place);
    const ns::Url made = next(ns::String::from(whole), base);
    if (made) {
        objc::associate<"givenText">(made, text, objc::Association::copyNonatomic);
    }
    return made;
}

using Writer = objc::Next<ns::String()>;
ns::String written(Writer next, ns::Url url) {
    const auto given = objc::associated<"givenText", ns::String>(url);
    return given ? given : next();
}

/// Foundation's own would call `initWithString:`, which others may have replaced.
ns::Url withString(objc::Next<ns::Url(ns::String)>, objc::Object cls, ns::String text) {
    const auto url = cls.send<"alloc", ns::Url>().send<"initWithString:relativeToURL:", ns::Url>(
        text, ns::Url());
    return objc::Strong<ns::Url>::adopt(url).autoreleased();
}

} // namespace

void installUrls() {
    static const bool once = [] {
        objc::install(objc::hook<"NSURL", "initWithString:relativeToURL:", &read>());
        objc::install(objc::classHook<"NSURL", "URLWithString:", &withString>());
        objc::install(objc::hook<"NSURL", "absoluteString", &written>());
        objc::install(objc::hook<"NSURL", "description", &written>());
        return true;
    }();
    static_cast<void>(once);
}

} // namespace desktop::foundation
