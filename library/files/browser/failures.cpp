// Describes failures in the platform's words.
#include "library/files/browser/failures.hpp"

#include "library/common/alert.hpp"

namespace wentra::files {

using namespace ns::literals;

ns::String descriptionOf(Failure failure) {
    return ns::Error::with(u"NSPOSIXErrorDomain"_ns, failure).localizedDescription();
}

void showFailure(ui::ViewController controller, std::u16string_view text, Failure failure) {
    const std::u16string message = std::u16string(text) + descriptionOf(failure).utf16();
    Alert(u"错误"_ns, ns::String::from(message)).action(u"确定"_ns).presentFrom(controller);
}

} // namespace wentra::files
