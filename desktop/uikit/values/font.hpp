// UIFont: a font of the drawing core as an object.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/uikit/font.hpp"

#include "desktop/class.hpp"
#include "desktop/drawing/font.hpp"
#include "desktop/uikit/traits/content_size.hpp"

#include <vector>

namespace desktop {

class UIFont : public PlatformClass<UIFont, ui::Font> {
public:
    static std::vector<objc::MethodRow> methods();

    /// The font that nil stands for where a font is wanted: the system's, 17 points.
    static constexpr double defaultSize = 17;
    static Font valueOf(ui::Font font);
    static ui::Font with(Font value);
    /// The font of that style of text, by the platform's name.
    static ui::Font preferred(std::u16string_view style, ContentSize size);
    /// The same font, or, when it is that of a style of text, the style's in that size.
    static ui::Font resized(ui::Font font, ContentSize size);

private:
    [[nodiscard]] ui::Font withSize(double size) const;
    [[nodiscard]] double pointSize() const { return value_.size; }
    [[nodiscard]] double ascender() const { return metrics(value_).ascender; }
    [[nodiscard]] double descender() const { return metrics(value_).descender; }
    [[nodiscard]] double lineHeight() const { return metrics(value_).lineHeight; }
    [[nodiscard]] double capHeight() const { return metrics(value_).capHeight; }
    [[nodiscard]] double xHeight() const { return metrics(value_).xHeight; }
    [[nodiscard]] ns::String fontName() const;
    [[nodiscard]] ns::String familyName() const;
    [[nodiscard]] bool isEqual(objc::Object other) const;
    [[nodiscard]] unsigned long hash() const;

    Font value_;
    const TextStyle* style_ = nullptr; ///< the style of text that it was made for
};

} // namespace desktop
