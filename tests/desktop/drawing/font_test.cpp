// Fonts are found by the phone's names and by their own, and are measured plausibly.
#include "desktop/drawing/font_catalogue.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace desktop;

namespace {

TEST(FontCatalogue, FindsFontsByAnyOfTheirNames) {
    const struct {
        const char* name;
        const char* family;
        int weight;
        bool italic;
        const char* postScriptName;
    } cases[] = {
        {"Helvetica", "Helvetica", 400, false, "Helvetica"},
        {"helvetica-bold", "Helvetica", 700, false, "Helvetica-Bold"},
        {"HelveticaNeue-Light", "Helvetica Neue", 300, false, "HelveticaNeue-Light"},
        {"Helvetica Neue", "Helvetica Neue", 400, false, "HelveticaNeue"},
        {"Helvetica Neue Bold Italic", "Helvetica Neue", 700, true, "HelveticaNeue-BoldItalic"},
        {"PingFangSC-Semibold", "PingFang SC", 600, false, "PingFangSC-Semibold"},
        {"CourierNewPSMT", "Courier New", 400, false, "CourierNewPSMT"},
        {"Courier-Oblique", "Courier", 400, true, "Courier-Oblique"},
        {"AppleColorEmoji", "Apple Color Emoji", 400, false, "AppleColorEmoji"},
        {"NotoSansCJKsc-Bold", "Noto Sans CJK SC", 700, false, "NotoSansCJKsc-Bold"},
        {"DejaVuSans-Bold", "DejaVu Sans", 700, false, "DejaVuSans-Bold"},
        {"DejaVu Sans", "DejaVu Sans", 400, false, "DejaVuSans"},
        {"DejaVuSansCondensed", "DejaVu Sans Condensed", 400, false, "DejaVuSansCondensed"},
        {"Inter Semi Bold", "Inter", 600, false, "Inter-SemiBold"},
    };
    for (const auto& expected : cases) {
        const auto font = fontNamed(expected.name, 12);
        ASSERT_TRUE(font) << expected.name;
        EXPECT_EQ(font->family, expected.family) << expected.name;
        EXPECT_EQ(font->weight, expected.weight) << expected.name;
        EXPECT_EQ(font->italic, expected.italic) << expected.name;
        EXPECT_EQ(font->size, 12) << expected.name;
        EXPECT_EQ(postScriptName(*font), expected.postScriptName);
    }
}

TEST(FontCatalogue, KnowsWhatItDoesNotHave) {
    for (const char* name :
         {"", " ", "AINile-Bold", "Helvetica-", "NoSuchFont", "\xFF\xFE", "Bold"}) {
        EXPECT_FALSE(fontNamed(name, 12)) << name;
    }
    EXPECT_TRUE(fontNames("NoSuchFamily").empty());
}

TEST(FontCatalogue, NamesTheSystemsFontsAsThePhoneDoes) {
    EXPECT_EQ(postScriptName({}), ".SFUI-Regular");
    EXPECT_EQ(postScriptName({.weight = 600, .italic = true}), ".SFUI-SemiboldItalic");
    EXPECT_EQ(postScriptName({.weight = std::numeric_limits<int>::max()}), ".SFUI-Black");
    EXPECT_EQ(postScriptName({.weight = std::numeric_limits<int>::min()}), ".SFUI-Ultralight");
    EXPECT_EQ(postScriptName({.family = Font::monospacedFamily}), ".SFUIMono-Regular");
}

TEST(FontCatalogue, ListsEveryFamilyOnce) {
    const auto families = familyNames();
    EXPECT_TRUE(std::ranges::is_sorted(families));
    EXPECT_EQ(std::ranges::adjacent_find(families), families.end());
    for (const std::string& family : families) {
        EXPECT_FALSE(fontNames(family).empty()) << family;
        EXPECT_TRUE(fontNamed(family, 10)) << family;
        for (const std::string& name : fontNames(family)) {
            EXPECT_TRUE(fontNamed(name, 10)) << name;
        }
    }
    const std::vector<std::string> menlo{"Menlo-Regular", "Menlo-Bold", "Menlo-Italic",
                                         "Menlo-BoldItalic"};
    EXPECT_EQ(fontNames("Menlo"), menlo);
}

TEST(FontMetrics, AreThoseOfAPhone) {
    const FontMetrics measured = metrics({.size = 17});
    EXPECT_NEAR(measured.lineHeight, 20.3, 0.5);
    EXPECT_NEAR(measured.ascender, 16.2, 0.5);
    EXPECT_NEAR(measured.descender, -4.1, 0.2);
    EXPECT_NEAR(measured.capHeight, 12, 0.5);
    EXPECT_NEAR(measured.xHeight, 9, 0.5);
    EXPECT_DOUBLE_EQ(measured.lineHeight, measured.ascender - measured.descender);
    EXPECT_NEAR(metrics({.size = 34, .weight = 700}).lineHeight, 2 * measured.lineHeight, 1);
}

TEST(FontMetrics, AreZeroForSizesThatDrawNothing) {
    for (const double size : {0.0, -1.0, std::nan(""), -HUGE_VAL}) {
        EXPECT_EQ(metrics({.size = size}).lineHeight, 0) << size;
    }
    EXPECT_TRUE(std::isfinite(metrics({.size = HUGE_VAL}).lineHeight));
}

} // namespace
