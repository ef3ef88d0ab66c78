// Texts are compared here, everything else by GNUstep.
#include "desktop/foundation/predicate.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/objc/hook.hpp"
#include "desktop/foundation/text_comparison.hpp"

namespace desktop::foundation {
namespace {

using objc::Object;

TextLikeness likenessOf(unsigned long options) {
    return {.ignoresCase = (options & 1U) != 0, .ignoresMarks = (options & 2U) != 0};
}

bool evaluate(objc::Next<bool(Object, Object, Object)> next, Object predicate, Object left,
              Object right, Object object) {
    const auto text = left.as<ns::String>();
    const auto other = right.as<ns::String>();
    if (!text || !other) {
        return next(left, right, object);
    }
    const auto relation = TextOperator(predicate.send<"predicateOperatorType", unsigned long>());
    const auto answer = holds(relation, text.utf16(), other.utf16(),
                              likenessOf(predicate.send<"options", unsigned long>()));
    return answer ? *answer : next(left, right, object);
}

/// Within quotation marks, a backslash says that the next character stands for itself.
std::u16string withoutBackslashes(std::u16string_view format) {
    std::u16string text;
    char16_t quotation = 0;
    for (std::size_t at = 0; at < format.size(); ++at) {
        if (quotation != 0 && format[at] == u'\\' && at + 1 < format.size()) {
            ++at;
        } else if (quotation == 0 && (format[at] == u'\'' || format[at] == u'"')) {
            quotation = format[at];
        } else if (format[at] == quotation) {
            quotation = 0;
        }
        text += format[at];
    }
    return text;
}

Object readFormat(objc::Next<Object(ns::String, Object)> next, Object, ns::String format,
                  Object arguments) {
    return next(ns::String::from(withoutBackslashes(format.utf16())), arguments);
}

} // namespace

void installPredicates() {
    objc::install(
        objc::hook<"NSComparisonPredicate", "_evaluateLeftValue:rightValue:object:", &evaluate>());
    objc::install(objc::hook<"GSPredicateScanner", "initWithString:args:", &readFormat>());
}

} // namespace desktop::foundation
