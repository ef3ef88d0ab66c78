// NSTextContainer and NSLayoutManager of a text view. Glyphs are counted as UTF-16 units.
#pragma once

#include "bindings/uikit/text_storage.hpp"
#include "bindings/uikit/text_view.hpp"

#include "desktop/class.hpp"

namespace desktop {

/// The room that the text fills, without the text view's insets.
class TextContainer : public PlatformClass<TextContainer, ui::TextContainer> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::property<"lineFragmentPadding", &TextContainer::padding_,
                           &TextContainer::changed>(),
            objc::method<"size", &TextContainer::size>(),
        };
    }

    /// The view that owns it; nil when that goes away.
    void setView(ui::TextView view) { view_ = view; }

private:
    void changed();
    [[nodiscard]] CGSize size() const;

    double padding_ = 5; // the platform's, on each side of a line
    ui::TextView view_;
};

/// Tells where text lies.
class LayoutManager : public PlatformClass<LayoutManager, ui::LayoutManager> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"boundingRectForGlyphRange:inTextContainer:",
                         &LayoutManager::boundingRect>(),
            objc::method<"glyphRangeForCharacterRange:actualCharacterRange:",
                         &LayoutManager::glyphRange>(),
            objc::method<"usedRectForTextContainer:", &LayoutManager::usedRect>(),
            objc::method<"ensureLayoutForTextContainer:", &LayoutManager::ensureLayout>(),
        };
    }

    void setView(ui::TextView view) { view_ = view; }

private:
    [[nodiscard]] CGRect boundingRect(ns::Range glyphs, ui::TextContainer container) const;
    [[nodiscard]] ns::Range glyphRange(ns::Range characters, ns::Range* actual) const;
    [[nodiscard]] CGRect usedRect(ui::TextContainer container) const;
    /// Text is set when it is asked about.
    void ensureLayout(ui::TextContainer) {}

    ui::TextView view_;
};

} // namespace desktop
