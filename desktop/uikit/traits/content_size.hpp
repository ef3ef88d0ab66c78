// How large a person wants texts to be, and how large the styles of text are then.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace desktop {

/// The platform's categories, from small to large.
enum class ContentSize {
    unspecified,
    extraSmall,
    small,
    medium,
    large, ///< unless a person has chosen another one
    extraLarge,
    extraExtraLarge,
    extraExtraExtraLarge,
    accessibilityMedium,
    accessibilityLarge,
    accessibilityExtraLarge,
    accessibilityExtraExtraLarge,
    accessibilityExtraExtraExtraLarge,
};

/// As above.
[[nodiscard]] std::string_view nameOf(ContentSize size);
/// None when there is no category of that name that a person can choose.
[[nodiscard]] std::optional<ContentSize> contentSizeNamed(std::string_view name);
/// The platform's constant for it.
[[nodiscard]] std::u16string_view categoryOf(ContentSize size);
/// Unspecified for what is no such constant.
[[nodiscard]] ContentSize contentSizeOf(std::u16string_view category);

/// A style of text.
struct TextStyle {
    std::u16string_view name;       ///< the platform's constant
    int weight;                     ///< as font files count it
    std::array<double, 12> sizes{}; ///< in points, for each category from the smallest on

    /// In points; for an unspecified category, as for `large`.
    [[nodiscard]] double sizeIn(ContentSize size) const;
};

namespace text_styles {
inline constexpr std::u16string_view headline = u"UICTFontTextStyleHeadline";
inline constexpr std::u16string_view body = u"UICTFontTextStyleBody";
inline constexpr std::u16string_view subheadline = u"UICTFontTextStyleSubhead";
} // namespace text_styles

/// The style of that name; that of body text where there is none.
[[nodiscard]] const TextStyle& textStyleNamed(std::u16string_view name);

} // namespace desktop
