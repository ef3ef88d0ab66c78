// Measuring strings, against labels that show them.
#include "bindings/uikit/string_drawing.hpp"

#include "bindings/uikit/label.hpp"
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include <limits>

namespace {

using namespace ns::literals;

constexpr double unlimited = std::numeric_limits<double>::max();

class StringDrawing : public tests::UIKitTest {};

TEST_F(StringDrawing, MeasuresWhatALabelNeeds) {
    const ui::Font font = ui::Font::system(18);
    for (const ns::String text : {u"词"_ns, u"word"_ns, u"两行\n文字"_ns, u"a b c d e f g"_ns}) {
        const auto label = ui::Label::withFrame({});
        label.setFont(font);
        label.setNumberOfLines(0);
        label.setLineBreakMode(ui::LineBreakMode::wordWrapping);
        label.setText(text);
        for (const double width : {40.0, 500.0}) {
            EXPECT_EQ(ui::textSize(text, {width, unlimited}, font), label.sizeThatFits({width, 0}))
                << text.utf8();
        }
    }
}

TEST_F(StringDrawing, MeasuresLongTextAsALabelDoes) {
    const ui::Font font = ui::Font::system(18);
    const auto text = ns::String::from(std::u16string(1'000'000, u'x'));
    const auto label = ui::Label::withFrame({});
    label.setFont(font);
    label.setNumberOfLines(0);
    label.setText(text);
    const CGSize size = ui::textSize(text, {300, unlimited}, font);
    EXPECT_EQ(size, label.sizeThatFits({300, 0}));
    const double line = ui::textSize(u"x"_ns, {300, unlimited}, font).height;
    EXPECT_GT(size.height, 30'000 * line);
    EXPECT_LT(ui::textSize(text, {300, 10 * line}, font).height, 11 * line);
}

TEST_F(StringDrawing, WrapsOnlyInLineFragments) {
    const ns::String text = u"one two three four"_ns;
    const auto attributes = ns::Dictionary::withObject(ui::Font::system(14), u"NSFont"_ns);
    const auto height = [&](ui::StringDrawingOptions options) {
        return text
            .send<"boundingRectWithSize:options:attributes:context:", CGRect>(
                CGSize{50, unlimited}, options, attributes, objc::Object())
            .size.height;
    };
    EXPECT_GT(height(ui::StringDrawingOptions::usesLineFragmentOrigin), 2 * height({}));
}

TEST_F(StringDrawing, ALineBreakAtTheEndTakesNoRoom) {
    const ui::Font font = ui::Font::system(18);
    const auto height = [&font](ns::String text) {
        return ui::textSize(text, {500, unlimited}, font).height;
    };
    EXPECT_EQ(height(u"a\n"_ns), height(u"a"_ns));
    for (const ns::String only : {u"\n"_ns, u"\r"_ns, u"\r\n"_ns, u"\u0085"_ns, u"\u2028"_ns}) {
        EXPECT_EQ(height(only), height(u"a"_ns));
    }
    EXPECT_EQ(height(u"a\n\u2028"_ns), height(u"a\nb"_ns));
    EXPECT_GT(height(u"a\nb"_ns), height(u"a"_ns));
}

TEST_F(StringDrawing, SurvivesOddRoomsAndTexts) {
    const ui::Font font = ui::Font::system(14);
    EXPECT_EQ(ui::textSize(u""_ns, {100, unlimited}, font).width, 0);
    EXPECT_EQ(ui::textSize(nullptr, {100, unlimited}, font), CGSize{});
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(ui::textSize(u"word"_ns, {notANumber, notANumber}, font).width, 0);
    EXPECT_GT(ui::textSize(u"word"_ns, {unlimited, unlimited}, nullptr).width, 0);
}

} // namespace
