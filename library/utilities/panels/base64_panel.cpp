// The panel, and the two ways.
#include "library/utilities/panels/base64_panel.hpp"

#include "bindings/foundation/data.hpp"
#include "library/common/text_encoding.hpp"

namespace wentra::utilities {

using namespace ns::literals;

void Base64Panel::show() {
    const ui::View panel = screens_.newScreen();
    input_ = addPanelText(panel, {365, 200}, -340);
    output_ = addPanelText(panel, {365, 320}, -38.8);
    addPanelButton(panel, u"加密"_ns, {-65, -220}, self(),
                   objc::selector<"base64EncryptButtonPressed:">());
    addPanelButton(panel, u"解密"_ns, {65, -220}, self(),
                   objc::selector<"base64DecryptButtonPressed:">());
    addPanelCloser(screens_);
    screens_.showScreen();
}

void Base64Panel::encode(objc::Object /*sender*/) {
    output_.setText(ns::Data::from(utf8FromUtf16(input_.text().utf16())).base64());
}

void Base64Panel::decode(objc::Object /*sender*/) {
    const auto data = ns::Data::fromBase64(output_.text());
    const std::string_view bytes = data.bytes();
    input_.setText(ns::String::from(isUtf8(bytes) ? utf16FromUtf8(bytes) : u""));
}

} // namespace wentra::utilities
