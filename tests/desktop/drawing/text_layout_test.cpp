// Text is measured, broken into lines, truncated and related to places.
#include "desktop/drawing/text_layout.hpp"

#include "desktop/drawing/canvas.hpp"
#include "desktop/drawing/font_catalogue.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <string>
#include <thread>
#include <vector>

using namespace desktop;

namespace {

constexpr double infinite = TextFrame::unlimited;

TextLayout lay(std::u16string_view text, const TextFrame& frame = {}, const Font& font = {}) {
    return TextLayout(text, TextRun{.font = font}, frame);
}

// How many pixels a text blackens in an area, as a share of all.
double ink(const TextLayout& layout, Size area = {200, 60}) {
    Canvas canvas(area, 2);
    layout.draw(canvas.context(), {});
    const Image image = canvas.snapshot();
    double sum = 0;
    for (int y = 0; y < image.pixelHeight(); ++y) {
        for (int x = 0; x < image.pixelWidth(); ++x) {
            sum += image.pixel(x, y).alpha;
        }
    }
    return sum / (image.pixelWidth() * image.pixelHeight());
}

TEST(TextLayout, MeasuresOneLine) {
    const TextLayout label = lay(u"Label");
    EXPECT_EQ(label.lineCount(), 1u);
    EXPECT_NEAR(label.size().width, 42, 2.5);
    EXPECT_NEAR(label.size().height, 20.5, 0.5);
    EXPECT_NEAR(label.size().height * 3, std::round(label.size().height * 3), 1e-9);
    EXPECT_NEAR(label.firstBaseline(), metrics({}).ascender, 1e-9);
    EXPECT_FALSE(label.isTruncated());
    EXPECT_GT(lay(u"Labels").size().width, label.size().width);
    EXPECT_EQ(lay(u"设置设置").size().width, 4 * 17);
}

TEST(TextLayout, KeepsLinesEquallyHighInAllScripts) {
    const double height = lay(u"A").size().height;
    for (const char16_t* text : {u"设置", u"😀", u"A设😀", u"あ한", u"مرحبا"}) {
        EXPECT_EQ(lay(text).size().height, height);
    }
}

TEST(TextLayout, HasAGlyphForEverything) {
    for (const char16_t* text :
         {u"悬浮文本替换器,长按可输入或拖动窗口,双指捏合,双击缩放。在文本替换中↲代表换行。",
          u"Hello 你好 123 😀 ❤️ 👨‍👩‍👧 🇨🇳 é ①",
          u"《书名》“引号”……——、，。！？", u"a\x01\x7F\x9F\u200B", u"繁體中文 日本語 한국어"}) {
        EXPECT_EQ(lay(text).unknownGlyphCount(), 0u);
    }
}

TEST(TextLayout, DrawsWeightsAndFamiliesDifferently) {
    double lighter = 0;
    for (const int weight : {300, 400, 500, 600, 700}) {
        const double drawn = ink(lay(u"Settings", {}, {.weight = weight}));
        EXPECT_GT(drawn, lighter * 1.04) << weight;
        lighter = drawn;
    }
    EXPECT_GT(ink(lay(u"设置", {}, {.weight = 600})), ink(lay(u"设置")) * 1.2);
    const auto width = [](const char* name) {
        return lay(u"Hamburgefons", {}, *fontNamed(name, 17)).size().width;
    };
    EXPECT_NE(width("Helvetica"), width("Menlo-Regular"));
    EXPECT_NE(width("Georgia"), width("TimesNewRomanPSMT"));
    EXPECT_NE(width("Helvetica"), width("ArialMT"));
}

TEST(TextLayout, SetsDigitsInOneWidthOnDemand) {
    const Font font{.monospacedDigits = true};
    EXPECT_EQ(lay(u"1111", {}, font).size().width, lay(u"8888", {}, font).size().width);
    EXPECT_LT(lay(u"1111").size().width, lay(u"8888").size().width);
}

TEST(TextLayout, CountsLines) {
    const struct {
        const char16_t* text;
        TextFrame frame;
        std::size_t lines;
    } cases[] = {
        {u"", {}, 0},
        {u"a", {}, 1},
        {u"a\nb", {}, 2},
        {u"a\r\nb\rc\u2028d\u2029e\u0085f", {}, 6},
        {u"a\n", {}, 2},
        {u"\n\n", {}, 3},
        {u"a\nb\nc", {.maximumLines = 2}, 2},
        {u"a\nb\nc", {.height = 45}, 2},
        {u"a\nb\nc", {.height = 1}, 1},
        {u"a\nb\nc", {.height = std::nan("")}, 1},
        {u"悬浮文本替换器", {.width = 17 * 3.5}, 3},
        {u"悬浮文本替换器", {.width = 17 * 7}, 1},
        {u"the quick brown fox", {.width = 60}, 4},
        {u"abcdefghijklmnopqrst", {.width = 60}, 4},
        {u"one two", {.width = 50, .lineBreakMode = LineBreakMode::characterWrapping}, 2},
        {u"abc", {.width = 1}, 3},
        {u"abc", {.width = 0}, 0},
        {u"abc", {.width = -5}, 0},
        {u"abc", {.width = std::nan("")}, 0},
    };
    for (const auto& [text, frame, lines] : cases) {
        EXPECT_EQ(lay(text, frame).lineCount(), lines) << frame.width << " " << lines;
    }
}

TEST(TextLayout, StacksLines) {
    const TextLayout lines = lay(u"a\nb\nc", {.lineSpacing = 4});
    const double height = metrics({}).lineHeight;
    EXPECT_NEAR(lines.lineRectangle(2).y, 2 * (height + 4), 1e-9);
    EXPECT_NEAR(lines.lastBaseline() - lines.firstBaseline(), 2 * (height + 4), 1e-9);
    EXPECT_NEAR(lines.size().height, 3 * height + 8, 0.34);
    EXPECT_EQ(lines.lineRectangle(3), Rectangle{});
    for (const double spacing : {-4.0, std::nan(""), infinite}) {
        EXPECT_NEAR(lay(u"a\nb", {.lineSpacing = spacing}).size().height, 2 * height, 0.34);
    }
}

TEST(TextLayout, Aligns) {
    const auto left = [](TextAlignment alignment, const char16_t* text) {
        return lay(text, {.width = 200, .alignment = alignment}).lineRectangle(0);
    };
    EXPECT_EQ(left(TextAlignment::natural, u"abc").x, 0);
    const Rectangle centered = left(TextAlignment::center, u"abc");
    EXPECT_NEAR(centered.x, (200 - centered.width) / 2, 1e-9);
    const Rectangle right = left(TextAlignment::right, u"abc");
    EXPECT_NEAR(right.x + right.width, 200, 1e-9);
    EXPECT_GT(left(TextAlignment::natural, u"مرحبا").x, 100);
    EXPECT_EQ(left(TextAlignment::left, u"مرحبا").x, 0);
    const TextLayout justified =
        lay(u"some words in lines", {.width = 90, .alignment = TextAlignment::justified});
    EXPECT_NEAR(justified.lineRectangle(0).width, 90, 0.1);
}

TEST(TextLayout, AddsNoHyphensToBrokenWords) {
    const TextLayout broken = lay(u"nnnnnnnnnnnnnnnnnnnn", {.width = 100});
    ASSERT_GT(broken.lineCount(), 1u);
    const std::size_t first = broken.lineUnits(0).end;
    const std::u16string line(first, u'n');
    EXPECT_NEAR(broken.lineRectangle(0).width, lay(line).lineRectangle(0).width, 0.1);
}

TEST(TextLayout, TruncatesTheLastLine) {
    const std::u16string text = u"悬浮文本替换器 the quick brown fox jumps over 😀😀😀 的懒狗";
    const struct {
        LineBreakMode mode;
        // The ellipsis stands for all of the text between these carets.
        std::size_t lastBefore;
        std::size_t firstAfter;
    } cases[] = {
        {LineBreakMode::truncatingTail, 8, text.size()},
        {LineBreakMode::truncatingHead, 0, text.size() - 4},
        {LineBreakMode::truncatingMiddle, 4, text.size() - 2},
    };
    for (const auto& [mode, before, after] : cases) {
        const TextLayout line = lay(text, {.width = 150, .lineBreakMode = mode, .maximumLines = 1});
        EXPECT_EQ(line.lineCount(), 1u);
        EXPECT_TRUE(line.isTruncated());
        EXPECT_LE(line.size().width, 150 + 0.34);
        EXPECT_GT(line.size().width, 120);
        EXPECT_GT(line.caretRectangle(before + 1).x, line.caretRectangle(0).x - 1);
        EXPECT_LT(line.caretRectangle(before).x, line.caretRectangle(after).x);
        const std::size_t hidden = text.size() / 2;
        EXPECT_EQ(line.caretRectangle(hidden), line.caretRectangle(hidden + 1));
        EXPECT_EQ(line.unknownGlyphCount(), 0u);
    }
}

TEST(TextLayout, ShowsExactlyOneEllipsis) {
    const struct {
        const char16_t* text;
        double width;
        LineBreakMode mode;
        const char16_t* shown;
    } cases[] = {
        {u"a\nb", 100, LineBreakMode::truncatingTail, u"a…"},
        {u"abc\n\n", 100, LineBreakMode::truncatingTail, u"abc"},
        {u"中文中文中文", 17 * 3, LineBreakMode::truncatingTail, u"中文…"},
        {u"中文中文中文\nb", 17 * 3, LineBreakMode::truncatingTail, u"中文…"},
        {u"中文中文中文", 17 * 3, LineBreakMode::truncatingHead, u"…中文"},
        {u"中文中文中文", 17 * 3, LineBreakMode::truncatingMiddle, u"中…文"},
        {u"中文", 1, LineBreakMode::truncatingTail, u"…"},
        {u"a\nb", 100, LineBreakMode::truncatingHead, u"a b"},
        {u"a\nb", 100, LineBreakMode::clipping, u"a"},
        {u"👨‍👩‍👧👨‍👩‍👧", 30, LineBreakMode::truncatingTail, u"…"},
    };
    for (const auto& [text, width, mode, shown] : cases) {
        const TextLayout line =
            lay(text, {.width = width, .lineBreakMode = mode, .maximumLines = 1});
        const TextLayout expected = lay(shown);
        EXPECT_NEAR(line.lineRectangle(0).width, std::min(expected.lineRectangle(0).width, width),
                    0.01)
            << width << " " << static_cast<int>(mode);
        if (line.size().width < width) {
            EXPECT_NEAR(ink(line), ink(expected), 1e-4);
        }
    }
}

TEST(TextLayout, DoesNotTruncateWhatFits) {
    const double width = lay(u"Settings 设置").size().width;
    for (const LineBreakMode mode : {LineBreakMode::truncatingTail, LineBreakMode::truncatingHead,
                                     LineBreakMode::truncatingMiddle, LineBreakMode::clipping}) {
        EXPECT_FALSE(
            lay(u"Settings 设置", {.width = width, .lineBreakMode = mode, .maximumLines = 1})
                .isTruncated());
    }
}

TEST(TextLayout, CutsClippedLinesOff) {
    const TextLayout line = lay(
        u"MMMMMMMM", {.width = 30, .lineBreakMode = LineBreakMode::clipping, .maximumLines = 1});
    EXPECT_EQ(line.size().width, 30);
    Canvas canvas({100, 30}, 1);
    line.draw(canvas.context(), {});
    const Image image = canvas.snapshot();
    for (int y = 0; y < 30; ++y) {
        EXPECT_EQ(image.pixel(31, y).alpha, 0);
    }
}

TEST(TextLayout, SetsRunsInTheirOwnLook) {
    const TextRun runs[] = {
        {.start = 0, .length = 1, .colour = {1, 0, 0}},
        {.start = 2, .length = 1, .font = {.size = 34}, .colour = {0, 0, 1}, .underline = true},
        {.start = 1, .length = 99, .font = {.size = 500}},
        {.start = 3, .length = 1, .colour = {0, 0, 0, 0}, .background = Colour{0, 1, 0}},
    };
    const TextLayout layout(u"■■■x", runs, {});
    EXPECT_NEAR(layout.lineRectangle(0).height, metrics({.size = 500}).lineHeight, 1e-6);
    const TextLayout ordered(u"■■■x", std::span(runs, 2), {});
    EXPECT_NEAR(ordered.lineRectangle(0).height, metrics({.size = 34}).lineHeight, 1e-6);
    Canvas canvas({100, 60}, 1);
    ordered.draw(canvas.context(), {});
    const double middle = ordered.caretRectangle(1).x / 2;
    const double baseline = ordered.firstBaseline();
    const Colour drawn =
        canvas.snapshot().pixel(static_cast<int>(middle), static_cast<int>(baseline - 6));
    EXPECT_GT(drawn.red, 0.9);
    EXPECT_LT(drawn.blue, 0.1);
    EXPECT_GT(drawn.alpha, 0.9);
}

TEST(TextLayout, RelatesCaretsAndPlaces) {
    const std::u16string text = u"ab 中文\n😀x\n";
    const TextLayout layout = lay(text, {.width = 200});
    for (const std::size_t index : {0u, 1u, 2u, 3u, 4u, 5u, 6u, 8u, 9u, 10u}) {
        const Rectangle caret = layout.caretRectangle(index);
        EXPECT_EQ(layout.indexAt({caret.x + 0.5, caret.y + caret.height / 2}), index) << index;
    }
    EXPECT_EQ(layout.caretRectangle(10).x, 0);
    EXPECT_NEAR(layout.caretRectangle(10).y, 2 * metrics({}).lineHeight, 1e-6);
    EXPECT_EQ(layout.caretRectangle(99), layout.caretRectangle(10));
    EXPECT_EQ(layout.indexAt({-50, -50}), 0u);
    EXPECT_EQ(layout.indexAt({1e9, 5}), 5u);
    EXPECT_EQ(layout.indexAt({1e9, 1e9}), 10u);
    EXPECT_EQ(layout.indexAt({std::nan(""), std::nan("")}), 10u);
    EXPECT_NEAR(lay(u"").caretRectangle(3).height, metrics({}).lineHeight, 1e-9);
    EXPECT_EQ(lay(u"").indexAt({5, 5}), 0u);
}

TEST(TextLayout, SurvivesBrokenText) {
    const std::u16string broken{u'a', 0xD800, 0, 0xDC00, 0xDC00, 0xD83D, u'\n', 0xDBFF};
    for (const LineBreakMode mode :
         {LineBreakMode::wordWrapping, LineBreakMode::truncatingMiddle}) {
        for (const double width : {1.0, 20.0, infinite}) {
            const TextLayout layout =
                lay(broken, {.width = width, .lineBreakMode = mode, .maximumLines = 3});
            EXPECT_EQ(layout.unknownGlyphCount(), 0u);
            for (std::size_t index = 0; index <= broken.size(); ++index) {
                EXPECT_TRUE(std::isfinite(layout.caretRectangle(index).x));
            }
        }
    }
}

TEST(TextLayout, SurvivesImpossibleSizes) {
    for (const double size : {0.0, -3.0, std::nan("")}) {
        const TextLayout layout = lay(u"some\ntext", {}, {.size = size});
        EXPECT_EQ(layout.size(), Size{}) << size;
        EXPECT_EQ(ink(layout), 0);
    }
    EXPECT_LT(lay(u"some text", {}, {.size = infinite}).size().width, 50000);
    lay(u"x").draw(Canvas({10, 10}, 1).context(), {std::nan(""), infinite});
}

TEST(TextLayout, SetsOfAMillionCharactersWhatCanBeSeen) {
    for (const char16_t character : {u'a', u'中', u' ', u'\n', u'\0'}) {
        const std::u16string text(1000000, character);
        EXPECT_EQ(lay(text, {.width = 300, .maximumLines = 1}).lineCount(), 1u);
        EXPECT_LE(lay(text, {.width = 300, .height = 800}).lineCount(), 40u);
        EXPECT_LE(lay(text, {.lineBreakMode = LineBreakMode::truncatingMiddle, .maximumLines = 1})
                      .size()
                      .width,
                  TextFrame::widestLine + 1);
    }
}

TEST(TextLayout, MeasuresOnSeveralThreads) {
    const Size expected = lay(u"Settings 设置").size();
    std::vector<std::thread> threads;
    std::atomic<int> equal = 0;
    for (int count = 0; count < 4; ++count) {
        threads.emplace_back([&] { equal += lay(u"Settings 设置").size() == expected ? 1 : 0; });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(equal, 4);
}

TEST(TextLayout, SetsLongTextAsShortText) {
    std::u16string paragraph;
    for (int count = 0; count < 300; ++count) {
        paragraph += u"some words 和中文 ";
    }
    const TextLayout layout = lay(paragraph, {.width = 300});
    EXPECT_GT(layout.lineCount(), 100u);
    // A line that was set anew at a seam would be shorter than its neighbours.
    for (std::size_t line = 0; line + 1 < layout.lineCount(); ++line) {
        EXPECT_GT(layout.lineRectangle(line).width, 240) << line;
    }
    EXPECT_FALSE(layout.isTruncated());
}

} // namespace
