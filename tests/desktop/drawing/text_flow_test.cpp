// Long texts in blocks: places, edits, and that blocks leave no trace.
#include "desktop/drawing/text_flow.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <random>

using namespace desktop;

namespace {

/// A text in one look.
class Plain : public TextSource {
public:
    explicit Plain(std::u16string words) : text(std::move(words)) {}

    [[nodiscard]] std::size_t length() const override { return text.size(); }
    [[nodiscard]] std::u16string units(Stretch stretch) const override {
        return text.substr(stretch.start, stretch.end - stretch.start);
    }
    [[nodiscard]] std::vector<TextRun> runs(Stretch) const override { return {TextRun{}}; }

    std::u16string text;
};

std::u16string paragraphs(std::size_t count) {
    std::u16string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += u"Some words, 一些文字, in paragraph after paragraph.\n";
    }
    return text;
}

std::u16string words(std::size_t count) {
    std::u16string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += i % 7 == 3 ? u"中文 " : u"word ";
    }
    return text;
}

TextLayout whole(const std::u16string& text, double width) {
    TextFrame frame;
    frame.width = width;
    frame.lineBreakMode = LineBreakMode::wordWrapping;
    return {text, TextRun{}, frame};
}

class TextFlowLikeOneLayout : public testing::TestWithParam<int> {};

std::u16string textNumber(int number) {
    const std::u16string texts[] = {u"",
                                    u"a",
                                    u"\n",
                                    u"a\n",
                                    u"a\n\nb",
                                    paragraphs(200),
                                    words(1500),
                                    std::u16string(5000, u'字'),
                                    std::u16string(3000, u'\n')};
    return texts[number];
}

TEST_P(TextFlowLikeOneLayout, WhereverOneLooksFirst) {
    const Plain source(textNumber(GetParam()));
    const TextLayout layout = whole(source.text, 300);
    TextFlow flow(source);
    flow.setWidth(300);
    const std::size_t length = source.length();
    for (const std::size_t unit : {length, length / 2, length / 3, std::size_t{0}}) {
        flow.caret(unit);
    }
    const double height = length > 0 ? layout.size().height : layout.caretRectangle(0).height;
    EXPECT_NEAR(flow.size().height, height, 0.5);
    for (std::size_t unit = 0; unit <= length; unit += 97) {
        const Rectangle expected = layout.caretRectangle(unit);
        const Rectangle caret = flow.caret(unit);
        ASSERT_NEAR(caret.x, expected.x, 0.1) << unit;
        ASSERT_NEAR(caret.y, expected.y, 0.1) << unit;
        const std::size_t found = flow.unitAt({caret.x, caret.y + caret.height / 2});
        ASSERT_NEAR(flow.caret(found).x, caret.x, 0.1) << unit;
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, TextFlowLikeOneLayout, testing::Range(0, 9));

TEST(TextFlow, KnowsAboutHowMuchRoomALongTextTakes) {
    const std::u16string texts[] = {std::u16string(30'000, u'x'), std::u16string(30'000, u'W'),
                                    std::u16string(30'000, u'字'), words(5000), paragraphs(600)};
    for (const std::u16string& text : texts) {
        const Plain source(text);
        TextFlow flow(source);
        flow.setWidth(300);
        const Size exact = whole(text, 300).size();
        EXPECT_NEAR(flow.size().height, exact.height, exact.height / 100) << char(text[0]);
        EXPECT_NEAR(flow.size().width, exact.width, exact.width / 10) << char(text[0]);
    }
}

TEST(TextFlow, IsTheSameAfterEditsAsWhenSetAnew) {
    Plain source(paragraphs(60) + words(900) + u"\n" + paragraphs(20));
    TextFlow flow(source);
    flow.setWidth(280);
    std::mt19937 random(7);
    const auto below = [&random](std::size_t limit) {
        return random() % std::max<std::size_t>(limit, 1);
    };
    const std::u16string written[] = {u"x", u"\n", u"", u"字", words(300), paragraphs(40)};
    for (int step = 0; step < 120; ++step) {
        const std::size_t start = below(source.length() + 1);
        const std::size_t erased =
            std::min(source.length() - start, below(step % 5 == 0 ? 4000 : 3));
        const std::u16string& text = written[below(6)];
        source.text.replace(start, erased, text);
        flow.replaced({start, start + erased}, text.size());
        if (step % 4 == 0) { // else the edits gather
            flow.caret(below(source.length() + 1));
        }
        if (step % 10 == 9) {
            const TextLayout layout = whole(source.text, 280);
            // From the start on, so that every block knows where the one before it ends.
            for (std::size_t unit = 0; unit <= source.length(); unit += 101) {
                ASSERT_NEAR(flow.caret(unit).x, layout.caretRectangle(unit).x, 0.1) << step;
                ASSERT_NEAR(flow.caret(unit).y, layout.caretRectangle(unit).y, 0.1) << step;
            }
        }
    }
    source.text.clear();
    flow.reset();
    EXPECT_GT(flow.size().height, 0);
}

TEST(TextFlow, MovesByLines) {
    const Plain source(u"first line\nx\nlast line");
    TextFlow flow(source);
    flow.setWidth(300);
    const double x = flow.caret(5).x;
    EXPECT_EQ(flow.unitInLine(5, 1, x), 12u);
    EXPECT_NEAR(static_cast<double>(flow.unitInLine(5, 2, x)), 13 + 5, 1);
    EXPECT_EQ(flow.unitInLine(5, 3, x), source.length());
    EXPECT_EQ(flow.unitInLine(5, -1, x), 0u);
    EXPECT_EQ(flow.unitInLine(15, -1, 0), 11u);
    EXPECT_EQ(flow.lineAt(12), (Stretch{11, 13}));
}

TEST(TextFlow, SelectsLineByLine) {
    const Plain source(u"one\ntwo\nthree");
    TextFlow flow(source);
    flow.setWidth(300);
    const auto lines = flow.rectangles({1, 9}, 0, 1000);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_NEAR(lines[0].x, flow.caret(1).x, 0.1);
    EXPECT_NEAR(lines[0].x + lines[0].width, 300, 0.1);
    EXPECT_NEAR(lines[2].x + lines[2].width, flow.caret(9).x, 0.1);
    EXPECT_EQ(flow.rectangles({1, 9}, lines[1].y + 1, lines[1].y + 2).size(), 1u);
}

TEST(TextFlow, SelectsWhatIsReadFromRightToLeft) {
    const Plain source(u"שלום abc\nab");
    TextFlow flow(source);
    flow.setWidth(300);
    const auto word = flow.rectangles({1, 3}, 0, 10);
    ASSERT_EQ(word.size(), 1u);
    EXPECT_NEAR(word[0].x + word[0].width, flow.caret(1).x, 0.1);
    EXPECT_NEAR(word[0].x, flow.caret(3).x, 0.1);
    EXPECT_EQ(flow.rectangles({2, 6}, 0, 10).size(), 2u) << "the rest of a word and a letter";
    const auto lines = flow.rectangles({1, 11}, 0, 1000);
    EXPECT_EQ(lines.front().x, 0) << "to where the line ends";
    EXPECT_EQ(lines.back().x, 0);
}

TEST(TextFlow, TypingIntoAMillionCharactersIsFast) {
    using Clock = std::chrono::steady_clock;
    for (const std::u16string& text : {paragraphs(20000), words(200000)}) {
        Plain source(text);
        TextFlow flow(source);
        flow.setWidth(300);
        flow.caret(source.length() / 2);
        const auto start = Clock::now();
        for (int i = 0; i < 10; ++i) {
            source.text.insert(source.length() / 2, 1, u'x');
            flow.replaced({source.length() / 2, source.length() / 2}, 1);
            flow.caret(source.length() / 2);
        }
        EXPECT_LT(std::chrono::duration<double>(Clock::now() - start).count(), 3);
    }
}

TEST(TextFlow, SurvivesHostileMeasures) {
    const Plain source(words(50));
    for (const double width : {0.0, -1.0, std::nan(""), 1e300, 0.001}) {
        TextFlow flow(source);
        flow.setWidth(width);
        EXPECT_LE(flow.unitAt({std::nan(""), std::nan("")}), source.length());
        EXPECT_LE(flow.unitAt({1e300, -1e300}), source.length());
        EXPECT_LE(flow.unitInLine(3, 1000000, -5), source.length());
        EXPECT_GE(flow.caret(1000000).height, 0);
    }
}

} // namespace
