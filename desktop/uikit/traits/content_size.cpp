// The tables of categories and of text styles, as the platform's guidelines have them.
#include "desktop/uikit/traits/content_size.hpp"

#include <algorithm>

namespace desktop {
namespace {

struct Category {
    std::string_view name;
    std::u16string_view constant;
};

constexpr std::array<Category, 13> categories{{
    {"unspecified", u"_UICTContentSizeCategoryUnspecified"},
    {"extraSmall", u"UICTContentSizeCategoryXS"},
    {"small", u"UICTContentSizeCategoryS"},
    {"medium", u"UICTContentSizeCategoryM"},
    {"large", u"UICTContentSizeCategoryL"},
    {"extraLarge", u"UICTContentSizeCategoryXL"},
    {"extraExtraLarge", u"UICTContentSizeCategoryXXL"},
    {"extraExtraExtraLarge", u"UICTContentSizeCategoryXXXL"},
    {"accessibilityMedium", u"UICTContentSizeCategoryAccessibilityM"},
    {"accessibilityLarge", u"UICTContentSizeCategoryAccessibilityL"},
    {"accessibilityExtraLarge", u"UICTContentSizeCategoryAccessibilityXL"},
    {"accessibilityExtraExtraLarge", u"UICTContentSizeCategoryAccessibilityXXL"},
    {"accessibilityExtraExtraExtraLarge", u"UICTContentSizeCategoryAccessibilityXXXL"},
}};

constexpr int regular = 400;
constexpr int semibold = 600;

constexpr std::array<TextStyle, 11> styles{{
    {u"UICTFontTextStyleTitle0", regular, {31, 32, 33, 34, 36, 38, 40, 44, 48, 52, 56, 60}},
    {u"UICTFontTextStyleTitle1", regular, {25, 26, 27, 28, 30, 32, 34, 38, 43, 48, 53, 58}},
    {u"UICTFontTextStyleTitle2", regular, {19, 20, 21, 22, 24, 26, 28, 34, 39, 44, 50, 56}},
    {u"UICTFontTextStyleTitle3", regular, {17, 18, 19, 20, 22, 24, 26, 31, 37, 43, 49, 55}},
    {text_styles::headline, semibold, {14, 15, 16, 17, 19, 21, 23, 28, 33, 40, 47, 53}},
    {text_styles::body, regular, {14, 15, 16, 17, 19, 21, 23, 28, 33, 40, 47, 53}},
    {u"UICTFontTextStyleCallout", regular, {13, 14, 15, 16, 18, 20, 22, 26, 32, 38, 44, 51}},
    {text_styles::subheadline, regular, {12, 13, 14, 15, 17, 19, 21, 25, 30, 36, 42, 49}},
    {u"UICTFontTextStyleFootnote", regular, {12, 12, 12, 13, 15, 17, 19, 23, 27, 33, 38, 44}},
    {u"UICTFontTextStyleCaption1", regular, {11, 11, 11, 12, 14, 16, 18, 22, 26, 32, 37, 43}},
    {u"UICTFontTextStyleCaption2", regular, {11, 11, 11, 11, 13, 15, 17, 20, 24, 29, 34, 40}},
}};

const Category& rowOf(ContentSize size) { return categories.at(static_cast<std::size_t>(size)); }

template <class Text>
ContentSize found(Text text, Text Category::*member) {
    const auto* const row = std::ranges::find(categories, text, member);
    return row == categories.end() ? ContentSize::unspecified
                                   : static_cast<ContentSize>(row - categories.begin());
}

} // namespace

std::string_view nameOf(ContentSize size) { return rowOf(size).name; }

std::optional<ContentSize> contentSizeNamed(std::string_view name) {
    const ContentSize size = found(name, &Category::name);
    return size == ContentSize::unspecified ? std::nullopt : std::optional(size);
}

std::u16string_view categoryOf(ContentSize size) { return rowOf(size).constant; }

ContentSize contentSizeOf(std::u16string_view category) {
    return found(category, &Category::constant);
}

double TextStyle::sizeIn(ContentSize size) const {
    const ContentSize chosen = size == ContentSize::unspecified ? ContentSize::large : size;
    return sizes.at(static_cast<std::size_t>(chosen) - 1);
}

const TextStyle& textStyleNamed(std::u16string_view name) {
    const auto* const style = std::ranges::find(styles, name, &TextStyle::name);
    return style == styles.end() ? textStyleNamed(text_styles::body) : *style;
}

} // namespace desktop
