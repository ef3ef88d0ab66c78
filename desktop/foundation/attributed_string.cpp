// The two classes, and their being made wherever an attributed string is.
#include "desktop/foundation/attributed_string.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/objc/hook.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/attributed_text.hpp"

#include <optional>
#include <utility>

namespace desktop::foundation {

/// Where GNUstep has memory from.
struct Zone;

} // namespace desktop::foundation

template <>
struct objc::Encoding<desktop::foundation::Zone*> {
    static constexpr Literal value = "^{_NSZone=^?^?^?^?^?^?^?Q@^{_NSZone}}";
};

namespace desktop::foundation {
namespace {

using namespace ns::literals;

struct ConcreteString
    : objc::Kind<ConcreteString, "NSConcreteAttributedString", ns::AttributedString> {
    using Kind::Kind;
};
struct ConcreteMutableString
    : objc::Kind<ConcreteMutableString, "NSConcreteMutableAttributedString",
                 ns::MutableAttributedString> {
    using Kind::Kind;
};

void require(objc::Object argument) {
    if (!argument) {
        ns::Exception::with(u"NSInvalidArgumentException"_ns, u"nil argument"_ns).raise();
    }
}

/// The same as `AttributedText::of`, at once where the text is of our classes.
AttributedText textOf(ns::AttributedString text);

/// What both classes have.
template <class Self, class Kind>
class AttributedStringPeer : public PlatformClass<Self, Kind> {
public:
    static AttributedStringPeer& of(objc::Object object) {
        return PlatformClass<Self, Kind>::of(object);
    }
    [[nodiscard]] const AttributedText& text() const { return text_; }
    void setText(AttributedText text) { text_ = std::move(text); }

protected:
    static std::vector<objc::MethodRow> commonMethods() {
        using Base = AttributedStringPeer;
        return {
            objc::method<"init", &Base::init>(),
            objc::method<"initWithString:", &Base::initWithString>(),
            objc::method<"initWithString:attributes:", &Base::initWithAttributes>(),
            objc::method<"initWithAttributedString:", &Base::initWithText>(),
            objc::method<"string", &Base::string>(),
            objc::method<"length", &Base::length>(),
            objc::method<"attributesAtIndex:effectiveRange:", &Base::attributesAt>(),
            objc::method<"hash", &Base::hash>(),
        };
    }

    AttributedText text_;

private:
    Kind init() { return this->self(); }
    Kind initWithString(ns::String string) { return initWithAttributes(string, nullptr); }
    Kind initWithAttributes(ns::String string, ns::Dictionary attributes) {
        require(string);
        text_ = AttributedText(string, attributes);
        return this->self();
    }
    Kind initWithText(ns::AttributedString text) {
        require(text);
        text_ = textOf(text).copied();
        return this->self();
    }
    [[nodiscard]] ns::String string() const { return text_.string(); }
    [[nodiscard]] unsigned long length() const { return text_.length(); }
    [[nodiscard]] ns::Dictionary attributesAt(unsigned long unit, ns::Range* effective) const {
        return text_.attributesAt(unit, effective);
    }
    [[nodiscard]] unsigned long hash() const {
        return text_.string().template send<"hash", unsigned long>();
    }
};

class ConcreteAttributedString
    : public AttributedStringPeer<ConcreteAttributedString, ConcreteString> {
public:
    using Peer::of;
    static std::vector<objc::MethodRow> methods() {
        auto rows = commonMethods();
        rows.push_back(objc::method<"copyWithZone:", &ConcreteAttributedString::copy>());
        return rows;
    }

private:
    [[nodiscard]] ConcreteString copy(Zone*) const { return objc::Strong(self()).release(); }
};

class ConcreteMutableAttributedString
    : public AttributedStringPeer<ConcreteMutableAttributedString, ConcreteMutableString> {
public:
    using Peer::of;
    static std::vector<objc::MethodRow> methods() {
        using Self = ConcreteMutableAttributedString;
        auto rows = commonMethods();
        rows.insert(
            rows.end(),
            {objc::method<"replaceCharactersInRange:withString:", &Self::replace>(),
             objc::method<"replaceCharactersInRange:withAttributedString:", &Self::replaceText>(),
             objc::method<"setAttributes:range:", &Self::setAttributes>(),
             objc::method<"addAttribute:value:range:", &Self::addAttribute>(),
             objc::method<"addAttributes:range:", &Self::addAttributes>(),
             objc::method<"removeAttribute:range:", &Self::removeAttribute>()});
        return rows;
    }

private:
    void replace(ns::Range range, ns::String string) { text_.replace(range, string); }
    void replaceText(ns::Range range, ns::AttributedString text) {
        text_.replace(range, textOf(text));
    }
    void setAttributes(ns::Dictionary attributes, ns::Range range) {
        text_.setAttributes(attributes, range);
    }
    void addAttribute(ns::String name, objc::Object value, ns::Range range) {
        require(name);
        require(value);
        text_.addAttribute(name, value, range);
    }
    void addAttributes(ns::Dictionary attributes, ns::Range range) {
        require(attributes);
        text_.addAttributes(attributes, range);
    }
    void removeAttribute(ns::String name, ns::Range range) { text_.removeAttribute(name, range); }
};

/// Null for what is none of our classes.
const AttributedText* find(ns::AttributedString text) {
    if (text.as<ConcreteString>()) {
        return &ConcreteAttributedString::of(text).text();
    }
    return text.as<ConcreteMutableString>() ? &ConcreteMutableAttributedString::of(text).text()
                                            : nullptr;
}

AttributedText textOf(ns::AttributedString text) {
    const AttributedText* own = find(text);
    return own != nullptr ? *own : AttributedText::of(text, {0, text.length()});
}

using Allocator = objc::Next<objc::Object(Zone*)>;
template <class Abstract, class Concrete>
objc::Object allocate(Allocator next, objc::Object cls, Zone* zone) {
    return cls.raw() == objc::object(Abstract::classObject())
               ? Concrete::template sendClass<"allocWithZone:", objc::Object>(zone)
               : next(zone);
}

/// A copy belongs to whoever asked for it.
using Copier = objc::Next<objc::Object(Zone*)>;
template <class Concrete>
objc::Object copy(Copier, ns::AttributedString text, Zone* zone) {
    return Concrete::template sendClass<"allocWithZone:", objc::Object>(zone)
        .template send<"initWithAttributedString:", objc::Object>(text);
}

/// Ranges out of bounds are left to GNUstep, which raises.
using Cutter = objc::Next<ns::AttributedString(ns::Range)>;
ns::AttributedString cut(Cutter next, ns::AttributedString text, ns::Range range) {
    const std::size_t length = text.length();
    if (range.location > length || range.length > length - range.location) {
        return next(range);
    }
    const AttributedText* own = find(text);
    const auto part = ConcreteString::make();
    ConcreteAttributedString::of(part).setText(own != nullptr ? own->part(range)
                                                              : AttributedText::of(text, range));
    return part;
}

} // namespace

void installAttributedStrings() {
    using Text = ns::AttributedString;
    using MutableText = ns::MutableAttributedString;
    ConcreteAttributedString::registerClass();
    ConcreteMutableAttributedString::registerClass();
    objc::install(
        objc::classHook<"NSAttributedString", "allocWithZone:", &allocate<Text, ConcreteString>>());
    objc::install(objc::classHook<"NSMutableAttributedString", "allocWithZone:",
                                  &allocate<MutableText, ConcreteMutableString>>());
    objc::install(objc::hook<"copyWithZone:", &copy<ConcreteString>>());
    objc::install(objc::hook<"mutableCopyWithZone:", &copy<ConcreteMutableString>>());
    objc::install(objc::hook<"attributedSubstringFromRange:", &cut>());
}

} // namespace desktop::foundation
