// A string and the attributes of its units: what attributed strings are about.
#pragma once

#include "bindings/foundation/attributed_string.hpp"
#include "desktop/foundation/attribute_runs.hpp"

namespace desktop::foundation {

/// Ranges that reach beyond the text raise an NSRangeException, and so does its end where a unit is
/// asked for.
class AttributedText {
public:
    AttributedText() = default;
    AttributedText(ns::String text, ns::Dictionary attributes)
        : string_(objc::Copied<ns::String>(text)), runs_(attributes, text.length()) {}
    /// By what any attributed string tells of the range, which must lie within it.
    static AttributedText of(ns::AttributedString text, ns::Range range);

    /// As it is now; it may change or not when the text changes.
    [[nodiscard]] ns::String string() const;
    [[nodiscard]] std::size_t length() const { return runs_.length(); }
    ns::Dictionary attributesAt(unsigned long unit, ns::Range* effective) const;
    [[nodiscard]] AttributedText part(ns::Range range) const;
    /// One that does not change with this.
    [[nodiscard]] AttributedText copied() const;

    /// The attributes stay as they are; new units get those that `inheritedBy` tells.
    void replace(ns::Range range, ns::String text);
    void replace(ns::Range range, AttributedText text);
    void setAttributes(ns::Dictionary attributes, ns::Range range);
    void addAttribute(ns::String name, objc::Object value, ns::Range range);
    void addAttributes(ns::Dictionary attributes, ns::Range range);
    void removeAttribute(ns::String name, ns::Range range);

private:
    void check(ns::Range range) const;
    void write(ns::Range range, ns::String text);

    objc::Strong<ns::String> string_; ///< nil: empty
    AttributeRuns runs_;
};

} // namespace desktop::foundation
