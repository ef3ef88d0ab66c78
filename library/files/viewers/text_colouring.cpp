// Colours all at once, and matches of any pattern one after the other.
#include "library/files/viewers/text_colouring.hpp"

#include "bindings/foundation/regular_expression.hpp"
#include "library/common/alert.hpp"
#include "library/files/viewers/plain_text.hpp"
#include "library/files/viewers/platform_word_roles.hpp"
#include "library/files/viewers/syntax_colours.hpp"

#include <array>

namespace wentra::files {
namespace {

using namespace ns::literals;

/// In the order of `Syntax`.
std::array<ns::Dictionary, 7> syntaxAttributes(ui::TextView view) {
    const auto in = [view](ui::Color color) { return plainAttributes(view, color); };
    return {in(nullptr),
            in(ui::Color::red()),
            in(ui::Color::purple()),
            in(ui::Color::blue()),
            in(ui::Color::withRed(0, 0.5, 0.4, 1)),
            in(ui::Color::orange()),
            in(ui::Color::systemPurple())};
}

} // namespace

void TextColouring::askForSize() {
    Alert(u"设置字体大小"_ns)
        .field(u"请输入字体大小(数字)"_ns, nullptr, ui::TextFieldViewMode::never,
               ui::KeyboardType::numberPad)
        .action(u"确认"_ns,
                [controller = objc::Strong(self())](ui::TextField field) {
                    const auto points = static_cast<double>(field.text().integerValue());
                    controller.send<"setFontSize:">(points);
                })
        .action(u"取消"_ns, ui::AlertActionStyle::cancel)
        .presentFrom(self());
}

void TextColouring::colour() {
    const ui::TextView view = self().textView();
    const std::array attributes = syntaxAttributes(view);
    const auto text = plainText(view);
    // All attributes at once, in the text's order: adding one looks up and copies those before.
    for (const auto& [range, syntax] : syntaxOf(view.text().utf16(), PlatformWordRoles())) {
        text.setAttributes(attributes.at(static_cast<std::size_t>(syntax)), range);
    }
    view.setAttributedText(text);
}

void TextColouring::colourMatches(ns::String pattern, ui::Color color,
                                  ns::MutableAttributedString text) const {
    const auto [expression, malformed] = ns::RegularExpression::withPattern(pattern);
    for (const ns::TextCheckingResult match :
         expression.matches(text.string(), {0, text.length()})) {
        text.addAttribute(ui::attributes::foregroundColor(), color, match.range());
    }
}

} // namespace wentra::files
