// NSAttributedString and NSMutableAttributedString: text of which every unit has a dictionary.
#pragma once

#include "bindings/foundation/dictionary.hpp"

namespace ns {

struct MutableAttributedString;

struct AttributedString : objc::Kind<AttributedString, "NSAttributedString"> {
    using Kind::Kind;

    static AttributedString with(String text, Dictionary attributes = nullptr) {
        return make<"initWithString:attributes:">(text, attributes);
    }

    [[nodiscard]] String string() const { return send<"string", String>(); }
    [[nodiscard]] unsigned long length() const { return send<"length", unsigned long>(); }
    /// The attributes of a unit, and (when not null) the stretch that shares them. Raises for a
    /// unit beyond the text.
    Dictionary attributesAt(unsigned long unit, Range* effective = nullptr) const {
        return send<"attributesAtIndex:effectiveRange:", Dictionary>(unit, effective);
    }
    [[nodiscard]] inline MutableAttributedString mutableCopy() const;
};

struct MutableAttributedString
    : objc::Kind<MutableAttributedString, "NSMutableAttributedString", AttributedString> {
    using Kind::Kind;

    void replace(Range range, String text) const {
        send<"replaceCharactersInRange:withString:">(range, text);
    }
    void replace(Range range, AttributedString text) const {
        send<"replaceCharactersInRange:withAttributedString:">(range, text);
    }
    void append(AttributedString text) const { send<"appendAttributedString:">(text); }
    void setString(AttributedString text) const { send<"setAttributedString:">(text); }
    void setAttributes(Dictionary attributes, Range range) const {
        send<"setAttributes:range:">(attributes, range);
    }
    void addAttribute(String name, objc::Object value, Range range) const {
        send<"addAttribute:value:range:">(name, value, range);
    }
};

MutableAttributedString AttributedString::mutableCopy() const {
    return objc::Strong<MutableAttributedString>::adopt(
               send<"mutableCopy", MutableAttributedString>())
        .autoreleased();
}

} // namespace ns
