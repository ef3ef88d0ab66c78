// Foundation's methods that take what they get for what they want.
#include "desktop/foundation/declared_arguments.hpp"

#include "bindings/objc/declared_types.hpp"
#include "bindings/objc/send.hpp"

#include <array>

namespace desktop::foundation {
namespace {

struct Row {
    const char* cls;
    const char* selector;
    const char* types;
};

constexpr auto instanceMethods = std::to_array<Row>({
    {"NSAttributedString", "initWithString:", R"(@@:@"NSString")"},
    {"NSAttributedString", "initWithString:attributes:", R"(@@:@"NSString"@"NSDictionary")"},
    {"NSAttributedString", "initWithAttributedString:", R"(@@:@"NSAttributedString")"},
    {"NSAttributedString", "isEqualToAttributedString:", R"(B@:@"NSAttributedString")"},
    {"NSMutableAttributedString", "appendAttributedString:", R"(v@:@"NSAttributedString")"},
    {"NSMutableAttributedString", "setAttributedString:", R"(v@:@"NSAttributedString")"},
    {"NSMutableAttributedString", "addAttributes:range:", R"(v@:@"NSDictionary"{_NSRange=QQ})"},
    {"NSMutableAttributedString", "setAttributes:range:", R"(v@:@"NSDictionary"{_NSRange=QQ})"},
    {"NSBundle", "initWithURL:", R"(@@:@"NSURL")"},
    {"NSDateFormatter", "setDateFormat:", R"(v@:@"NSString")"},
    {"NSDateFormatter", "setLocale:", R"(v@:@"NSLocale")"},
    {"NSDateFormatter", "setTimeZone:", R"(v@:@"NSTimeZone")"},
    {"NSDecimalNumber", "decimalNumberByAdding:", R"(@@:@"NSDecimalNumber")"},
    {"NSDecimalNumber", "decimalNumberBySubtracting:", R"(@@:@"NSDecimalNumber")"},
    {"NSDecimalNumber", "decimalNumberByMultiplyingBy:", R"(@@:@"NSDecimalNumber")"},
    {"NSDecimalNumber", "decimalNumberByDividingBy:", R"(@@:@"NSDecimalNumber")"},
    {"NSIndexPath", "compare:", R"(q@:@"NSIndexPath")"},
    {"NSIndexSet", "containsIndexes:", R"(B@:@"NSIndexSet")"},
    {"NSIndexSet", "isEqualToIndexSet:", R"(B@:@"NSIndexSet")"},
    {"NSMutableIndexSet", "addIndexes:", R"(v@:@"NSIndexSet")"},
    {"NSMutableIndexSet", "removeIndexes:", R"(v@:@"NSIndexSet")"},
    {"NSInputStream", "initWithURL:", R"(@@:@"NSURL")"},
    {"NSURLComponents", "initWithString:", R"(@@:@"NSString")"},
    {"NSURLComponents", "initWithURL:resolvingAgainstBaseURL:", R"(@@:@"NSURL"B)"},
});

constexpr auto classMethods = std::to_array<Row>({
    {"NSBundle", "bundleWithURL:", R"(@@:@"NSURL")"},
    {"NSURLConnection", "canHandleRequest:", R"(B@:@"NSURLRequest")"},
    {"NSURLConnection",
     "sendSynchronousRequest:returningResponse:error:", R"(@@:@"NSURLRequest"^@^@)"},
    {"NSInputStream", "inputStreamWithURL:", R"(@@:@"NSURL")"},
    {"NSURLComponents", "componentsWithString:", R"(@@:@"NSString")"},
    {"NSURLComponents", "componentsWithURL:resolvingAgainstBaseURL:", R"(@@:@"NSURL"B)"},
});

void declare(Class cls, const Row& row) {
    static_cast<void>(objc::keepDeclaredTypes(cls, row.selector, row.types));
}

} // namespace

void declareArguments() {
    for (const Row& row : instanceMethods) {
        declare(objc_getClass(row.cls), row);
    }
    for (const Row& row : classMethods) {
        declare(object_getClass(objc::object(objc_getClass(row.cls))), row);
    }
}

} // namespace desktop::foundation
