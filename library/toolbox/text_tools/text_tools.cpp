// The conversion's alert and the hand-over to the analysis.
#include "library/toolbox/text_tools/text_tools.hpp"

#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/analysis/details_view_controller.hpp"
#include "library/analysis/library_lines.hpp"
#include "library/common/alert.hpp"
#include "library/common/animated.hpp"
#include "library/common/string_array.hpp"
#include "library/toolbox/text_tools/unicode_escapes.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;
using analysis::SystemList;

} // namespace

bool TextTools::isUnicode(ns::String text) const { return hasUnicodeEscapes(text.utf16()); }

ns::String TextTools::escaped(ns::String text) const {
    return ns::String::from(unicodeEscapes(text.utf16()));
}

ns::String TextTools::unescaped(ns::String text) const {
    const auto plain = withoutUnicodeEscapes(text.utf16());
    return plain ? ns::String::from(*plain) : nullptr;
}

void TextTools::convert(objc::Object /*sender*/) {
    const ns::String text = selection_.pickedOrCopied();
    const ns::String converted = isUnicode(text) ? unescaped(text) : escaped(text);
    const std::u16string message = text.utf16() + u"\n\n\n" + converted.utf16();
    Alert(u"U码转换结果"_ns, ns::String::from(message))
        .action(u"关闭窗口"_ns)
        .action(u"复制结果"_ns,
                [result = objc::Copied(converted)] {
                    ui::Pasteboard::generalPasteboard().setString(result);
                })
        .covering(ui::ModalPresentation::overCurrentContext)
        .present();
    self().send<"setSelectedString:">(ns::String());
}

ns::Array TextTools::libraryLines(ns::String text) const {
    return stringArray(analysis::libraryLines(text, SystemList::toolbox).all());
}

bool TextTools::isSystemLibrary(ns::String line) const {
    return analysis::isSystemLine(line.utf16(), SystemList::toolbox);
}

void TextTools::analyse(objc::Object /*sender*/) {
    const auto lines = analysis::libraryLines(selection_.pickedOrCopied(), SystemList::toolbox);
    const auto details = ui::NavigationController::withRoot(
        analysis::DetailsViewController::with(analysis::messagesOf(lines)));
    details.setModalPresentationStyle(ui::ModalPresentation::pageSheet);
    self().present(details, animated);
    selection_.forgetTokens();
}

} // namespace wentra::toolbox
