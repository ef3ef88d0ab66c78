// NSTextStorage: an attributed string that tells when it is edited.
#pragma once

#include "bindings/uikit/text_storage.hpp"

#include "desktop/class.hpp"

#include <functional>

namespace desktop {

class TextStorage : public PlatformClass<TextStorage, ui::TextStorage> {
public:
    static std::vector<objc::MethodRow> methods();

    /// Called after each edit: the range that was edited, and how long its text is now.
    using Edited = std::function<void(ns::Range former, unsigned long length)>;
    void observe(Edited edited) { edited_ = std::move(edited); }

private:
    ui::TextStorage initWithText(ns::String text, ns::Dictionary attributes);
    ui::TextStorage initWithString(ns::String text) { return initWithText(text, nullptr); }
    ui::TextStorage initWithAttributed(ns::AttributedString text);
    ui::TextStorage init() { return self(); }
    [[nodiscard]] ns::String string() const { return text_.string(); }
    [[nodiscard]] unsigned long length() const { return text_.length(); }
    ns::Dictionary attributesAt(unsigned long unit, ns::Range* effective) const {
        return text_.attributesAt(unit, effective);
    }
    void replace(ns::Range range, ns::String text);
    void replaceAttributed(ns::Range range, ns::AttributedString text);
    void setAttributes(ns::Dictionary attributes, ns::Range range);
    /// Every edit is told at once, so there is nothing to gather.
    void gatherEdits() {}
    void tell(ns::Range former, unsigned long length);

    objc::Strong<ns::MutableAttributedString> text_ = ns::MutableAttributedString::make();
    Edited edited_;
};

} // namespace desktop
