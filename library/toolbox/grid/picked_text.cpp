// Copying and sharing what is picked.
#include "library/toolbox/grid/picked_text.hpp"

#include "bindings/uikit/pasteboard.hpp"
#include "library/common/sharing.hpp"

namespace wentra::toolbox {

using namespace ns::literals;

ns::String PickedText::textToCopy() const {
    const ns::Array tokens = selection_.tokens();
    const ns::String text = tokens.count() > 0 ? tokens.componentsJoined(u""_ns)
                                               : ui::Pasteboard::generalPasteboard().string();
    return text ? text : u""_ns;
}

void PickedText::copy(objc::Object) {
    ui::Pasteboard::generalPasteboard().setString(textToCopy());
    selection_.forgetTokens();
}

void PickedText::share(objc::Object) {
    const ns::String words = selection_.tokens().componentsJoined(u" "_ns);
    shareText(words ? words : u""_ns);
}

} // namespace wentra::toolbox
