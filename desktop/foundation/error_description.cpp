// Describing errors that bring no description.
#include "desktop/foundation/error_description.hpp"

#include "bindings/foundation/error.hpp"
#include "bindings/objc/hook.hpp"

#include <system_error>

namespace desktop::foundation {
namespace {

using namespace ns::literals;

using Describer = objc::Next<ns::String()>;
ns::String describe(Describer next, ns::Error error) {
    if (error.userInfo().get(u"NSLocalizedDescription"_ns)) {
        return next();
    }
    if (const auto cause = error.userInfo().get(u"NSUnderlyingError"_ns).as<ns::Error>(); cause) {
        return cause.localizedDescription();
    }
    if (!error.domain().isEqualToString(u"NSPOSIXErrorDomain"_ns)) {
        return next();
    }
    const std::string reason = std::generic_category().message(static_cast<int>(error.code()));
    return ns::String::fromUtf8("未能完成操作。" + reason);
}

} // namespace

void installErrorDescriptions() { objc::install(objc::hook<"localizedDescription", &describe>()); }

} // namespace desktop::foundation
