// NSDateFormatter.
#pragma once

#include "bindings/foundation/date.hpp"
#include "bindings/foundation/locale.hpp"

namespace ns {

struct DateFormatter : objc::Kind<DateFormatter, "NSDateFormatter"> {
    using Kind::Kind;

    void setLocale(Locale locale) const { send<"setLocale:">(locale); }
    /// A pattern of Unicode's date fields.
    void setDateFormat(String format) const { send<"setDateFormat:">(format); }
    [[nodiscard]] String string(Date date) const { return send<"stringFromDate:", String>(date); }
};

} // namespace ns
