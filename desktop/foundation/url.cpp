// URLs as the phone makes them: they are written as they were given, an empty text is none, no
// maker passes through another, and no file is looked at to name it.
#include "desktop/foundation/url.hpp"

#include "bindings/objc/associated.hpp"
#include "bindings/objc/hook.hpp"
#include "desktop/foundation/percent_encoding.hpp"

#include <string>
#include <string_view>

namespace desktop::foundation {
namespace {

/// The host in the text, and the port and user beside it; empty when there is none.
std::u16string_view hostIn(std::u16string_view text) {
    constexpr std::u16string_view mark = u"://";
    const std::size_t before = text.find(mark);
    const std::u16string_view rest =
        text.substr(before == text.npos ? text.size() : before + mark.size());
    return rest.substr(0, rest.find_first_of(u"/?#"));
}

/// The host as GNUstep, which refuses an ampersand there, reads it.
std::u16string readableHost(std::u16string_view host) {
    std::u16string readable;
    for (const char16_t unit : host) {
        readable += unit == u'&' ? std::u16string_view(u"%26") : std::u16string_view(&unit, 1);
    }
    return readable;
}

/// The text as GNUstep reads it: a slash stands before a query right after the host. Most texts are
/// read as they are.
ns::String readable(ns::String text, std::u16string_view given, std::u16string_view host) {
    const auto start = static_cast<std::size_t>(host.data() - given.data());
    const std::u16string_view rest = given.substr(start + host.size());
    const bool hasQueryAfterHost = rest.starts_with(u'?');
    if (host.empty() || (!hasQueryAfterHost && host.find(u'&') == host.npos)) {
        return text;
    }
    return ns::String::from(std::u16string(given.substr(0, start)) + readableHost(host) +
                            (hasQueryAfterHost ? u"/" : u"") + std::u16string(rest));
}

using UrlMaker = objc::Next<ns::Url(ns::String, ns::Url)>;
ns::Url readUrl(UrlMaker next, ns::Url url, ns::String text, ns::Url base) {
    if (text && text.length() == 0 && !base) {
        static_cast<void>(objc::Strong<ns::Url>::adopt(url)); // as an initialiser that fails does
        return nullptr;
    }
    const std::u16string given = text.utf16();
    if (given.starts_with(u"file:///") && given.find_first_of(u"?#") == given.npos) {
        return next(text, base); // which is written as it was given
    }
    const std::u16string_view host = hostIn(given);
    const ns::Url made = next(readable(text, given, host), base);
    if (const bool isWhole = !base || !host.empty(); made && isWhole) {
        objc::associate<"givenText">(made, text, objc::Association::copyNonatomic);
    }
    return made;
}

using UrlWriter = objc::Next<ns::String()>;
ns::String written(UrlWriter next, ns::Url url) {
    const auto given = objc::associated<"givenText", ns::String>(url);
    return given ? given : next();
}

/// Foundation's own makers would call `initWithString:`, which others may have replaced.
ns::Url made(ns::Url fresh, ns::String text) {
    const auto url = fresh.send<"initWithString:relativeToURL:", ns::Url>(text, ns::Url());
    return objc::Strong<ns::Url>::adopt(url).autoreleased();
}

ns::Url withString(objc::Next<ns::Url(ns::String)>, objc::Object cls, ns::String text) {
    return made(cls.send<"alloc", ns::Url>(), text);
}

using FileMaker = objc::Next<ns::Url(ns::String, bool)>;
ns::Url withPath(FileMaker next, objc::Object cls, ns::String path, bool isDirectory) {
    const std::string file = path.utf8();
    if (!file.starts_with('/')) {
        return next(path, isDirectory);
    }
    const std::string end = isDirectory && !file.ends_with('/') ? "/" : "";
    return made(cls.send<"alloc", ns::Url>(), ns::String::fromUtf8(fileUrlText(file) + end));
}

} // namespace

void installUrls() {
    static const bool once = [] {
        objc::install(objc::hook<"NSURL", "initWithString:relativeToURL:", &readUrl>());
        objc::install(objc::classHook<"NSURL", "URLWithString:", &withString>());
        objc::install(objc::classHook<"NSURL", "fileURLWithPath:isDirectory:", &withPath>());
        objc::install(objc::hook<"NSURL", "absoluteString", &written>());
        objc::install(objc::hook<"NSURL", "description", &written>());
        return true;
    }();
    static_cast<void>(once);
}

std::string fileUrlText(std::string_view path) { return "file://" + percentEncodedPath(path); }

std::string filePath(ns::Url url) {
    return url.send<"isFileURL", bool>() ? url.path().utf8() : std::string();
}

ns::Url urlWithText(std::string_view text) {
    return made(ns::Url::sendClass<"alloc", ns::Url>(), ns::String::fromUtf8(text));
}

} // namespace desktop::foundation
