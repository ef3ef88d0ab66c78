// Looking at a text before it is decoded.
#include "desktop/foundation/base64.hpp"

#include "bindings/foundation/data.hpp"
#include "bindings/objc/hook.hpp"

#include <algorithm>

namespace desktop::foundation {
namespace {

bool isInAlphabet(char16_t unit) {
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z') ||
           (unit >= u'0' && unit <= u'9') || unit == u'+' || unit == u'/';
}

using DataMaker = objc::Next<ns::Data(ns::String, unsigned long)>;
ns::Data decodeBase64(DataMaker next, ns::Data data, ns::String text, unsigned long options) {
    if (options == 0 && !isBase64(text.utf16())) {
        data.send<"release">();
        return nullptr;
    }
    return next(text, options);
}

} // namespace

bool isBase64(std::u16string_view text) {
    constexpr std::size_t group = 4;
    constexpr std::size_t mostPadding = 2;
    if (text.size() % group != 0) {
        return false;
    }
    for (std::size_t padding = 0; padding < mostPadding && text.ends_with(u'='); ++padding) {
        text.remove_suffix(1);
    }
    return std::ranges::all_of(text, &isInAlphabet);
}

void installBase64() {
    objc::install(objc::hook<"initWithBase64EncodedString:options:", &decodeBase64>());
}

} // namespace desktop::foundation
