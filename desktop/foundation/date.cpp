// The clock's date in place of the machine's.
#include "desktop/foundation/date.hpp"

#include "bindings/foundation/date.hpp"
#include "bindings/objc/hook.hpp"
#include "desktop/runtime/clock.hpp"

namespace desktop::foundation {
namespace {

ns::Date date(objc::Next<ns::Date()>, objc::Object) {
    return ns::Date::withTimeIntervalSince1970(Clock::shared().date());
}

} // namespace

void installDates() { objc::install(objc::classHook<"NSDate", "date", &date>()); }

} // namespace desktop::foundation
