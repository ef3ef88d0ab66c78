// Edits the string and the runs alike.
#include "desktop/foundation/attributed_text.hpp"

#include "bindings/foundation/exception.hpp"

#include <algorithm>
#include <utility>

namespace desktop::foundation {

using namespace ns::literals;

namespace {

[[noreturn]] void raiseOutOfBounds() {
    ns::Exception::with(u"NSRangeException"_ns, u"Out of bounds"_ns).raise();
}

objc::Strong<ns::MutableDictionary> mutableCopy(ns::Dictionary attributes) {
    return objc::Strong<ns::MutableDictionary>::adopt(
        attributes.send<"mutableCopy", ns::MutableDictionary>());
}

objc::Copied<ns::String> cut(ns::String string, ns::Range range) {
    return range.length == string.length() ? string
                                           : string.send<"substringWithRange:", ns::String>(range);
}

} // namespace

AttributedText AttributedText::of(ns::AttributedString text, ns::Range range) {
    AttributedText part;
    if (range.length > 0) {
        part.string_ = cut(text.string(), range);
    }
    const std::size_t end = range.location + range.length;
    for (std::size_t unit = range.location; unit < end;) {
        ns::Range alike;
        const ns::Dictionary attributes = text.attributesAt(unit, &alike);
        const std::size_t next =
            std::clamp<std::size_t>(alike.location + alike.length, unit + 1, end);
        part.runs_.append(attributes, next - unit);
        unit = next;
    }
    return part;
}

ns::String AttributedText::string() const {
    return string_ ? static_cast<ns::String>(string_) : u""_ns;
}

void AttributedText::check(ns::Range range) const {
    if (range.location > length() || range.length > length() - range.location) {
        raiseOutOfBounds();
    }
}

ns::Dictionary AttributedText::attributesAt(unsigned long unit, ns::Range* effective) const {
    if (unit >= length()) {
        raiseOutOfBounds();
    }
    const auto [attributes, range] = runs_.at(unit);
    if (effective != nullptr) {
        *effective = range;
    }
    return attributes;
}

AttributedText AttributedText::part(ns::Range range) const {
    check(range);
    AttributedText part;
    part.string_ = cut(string_, range);
    part.runs_ = runs_.part(range);
    return part;
}

AttributedText AttributedText::copied() const {
    AttributedText copy = *this;
    copy.string_ = objc::Copied<ns::String>(string_);
    return copy;
}

void AttributedText::write(ns::Range range, ns::String text) {
    const ns::String former = string_.autoreleased(); // for whoever has just asked for it
    if (range.length == length()) {
        string_ = objc::Copied<ns::String>(text);
        return;
    }
    if (!former.as<ns::MutableString>()) {
        const auto editable = ns::MutableString::make();
        editable.append(string());
        string_ = editable;
    }
    const bool isItself = text.raw() == string_.raw();
    const auto written = isItself ? objc::Copied<ns::String>(text) : objc::Strong<ns::String>(text);
    string_.send<"replaceCharactersInRange:withString:">(range, written);
}

void AttributedText::replace(ns::Range range, ns::String text) {
    check(range);
    AttributeRuns runs(runs_.inheritedBy(range), text.length());
    runs_.adopt(runs, range);
    write(range, text ? text : u""_ns);
    runs_.replace(range, std::move(runs));
}

void AttributedText::replace(ns::Range range, AttributedText text) {
    check(range);
    runs_.adopt(text.runs_, range);
    write(range, text.string());
    runs_.replace(range, std::move(text.runs_));
}

void AttributedText::setAttributes(ns::Dictionary attributes, ns::Range range) {
    check(range);
    runs_.set(attributes, range);
}

void AttributedText::addAttribute(ns::String name, objc::Object value, ns::Range range) {
    check(range);
    runs_.change(range, [name, value](ns::Dictionary former) {
        const auto more = mutableCopy(former);
        more.set(value, name);
        return objc::Strong<ns::Dictionary>(more);
    });
}

void AttributedText::addAttributes(ns::Dictionary attributes, ns::Range range) {
    check(range);
    runs_.change(range, [attributes](ns::Dictionary former) {
        const auto more = mutableCopy(former);
        more.addEntries(attributes);
        return objc::Strong<ns::Dictionary>(more);
    });
}

void AttributedText::removeAttribute(ns::String name, ns::Range range) {
    check(range);
    runs_.change(range, [name](ns::Dictionary former) {
        const auto fewer = mutableCopy(former);
        fewer.remove(name);
        return objc::Strong<ns::Dictionary>(fewer);
    });
}

} // namespace desktop::foundation
