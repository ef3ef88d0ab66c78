// Passes edits on to a plain attributed string, and tells of them.
#include "desktop/uikit/text/text_storage.hpp"

namespace desktop {

using namespace ns::literals;

std::vector<objc::MethodRow> TextStorage::methods() {
    return {
        objc::method<"init", &TextStorage::init>(),
        objc::method<"initWithString:", &TextStorage::initWithString>(),
        objc::method<"initWithString:attributes:", &TextStorage::initWithText>(),
        objc::method<"initWithAttributedString:", &TextStorage::initWithAttributed>(),
        objc::method<"string", &TextStorage::string>(),
        objc::method<"length", &TextStorage::length>(),
        objc::method<"attributesAtIndex:effectiveRange:", &TextStorage::attributesAt>(),
        objc::method<"replaceCharactersInRange:withString:", &TextStorage::replace>(),
        objc::method<"replaceCharactersInRange:withAttributedString:",
                     &TextStorage::replaceAttributed>(),
        objc::method<"setAttributes:range:", &TextStorage::setAttributes>(),
        objc::method<"beginEditing", &TextStorage::gatherEdits>(),
        objc::method<"endEditing", &TextStorage::gatherEdits>(),
    };
}

ui::TextStorage TextStorage::initWithText(ns::String text, ns::Dictionary attributes) {
    text_.replace(ns::Range(), ns::AttributedString::with(text ? text : u""_ns, attributes));
    return self();
}

ui::TextStorage TextStorage::initWithAttributed(ns::AttributedString text) {
    if (text) {
        text_.setString(text);
    }
    return self();
}

void TextStorage::replace(ns::Range range, ns::String text) {
    text_.replace(range, text ? text : u""_ns);
    tell(range, text.length());
}

void TextStorage::replaceAttributed(ns::Range range, ns::AttributedString text) {
    text_.replace(range, text);
    tell(range, text.length());
}

void TextStorage::setAttributes(ns::Dictionary attributes, ns::Range range) {
    text_.setAttributes(attributes, range);
    tell(range, range.length);
}

void TextStorage::tell(ns::Range former, unsigned long length) {
    if (edited_) {
        edited_(former, length);
    }
}

} // namespace desktop
