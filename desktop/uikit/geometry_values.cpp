// UIKit's additions to NSValue.
#include "desktop/uikit/geometry_values.hpp"

#include "bindings/objc/hook.hpp"
#include "bindings/objc/kind.hpp"

namespace desktop {
namespace {

struct Value : objc::Kind<Value, "NSValue"> {
    using Kind::Kind;
};

// Foundation's own structures are laid out alike.
objc::Object withRect(objc::Object, CGRect rect) {
    return Value::sendClass<"valueWithRect:", objc::Object>(rect);
}
objc::Object withPoint(objc::Object, CGPoint point) {
    return Value::sendClass<"valueWithPoint:", objc::Object>(point);
}
objc::Object withSize(objc::Object, CGSize size) {
    return Value::sendClass<"valueWithSize:", objc::Object>(size);
}
CGRect rect(Value value) { return value.send<"rectValue", CGRect>(); }
CGPoint point(Value value) { return value.send<"pointValue", CGPoint>(); }
CGSize size(Value value) { return value.send<"sizeValue", CGSize>(); }

} // namespace

objc::Object valueWith(CGRect rect) { return withRect(nullptr, rect); }

void installGeometryValues() {
    objc::install(objc::classAddition<"NSValue", "valueWithCGRect:", &withRect>());
    objc::install(objc::classAddition<"NSValue", "valueWithCGPoint:", &withPoint>());
    objc::install(objc::classAddition<"NSValue", "valueWithCGSize:", &withSize>());
    objc::install(objc::addition<"NSValue", "CGRectValue", &rect>());
    objc::install(objc::addition<"NSValue", "CGPointValue", &point>());
    objc::install(objc::addition<"NSValue", "CGSizeValue", &size>());
}

} // namespace desktop
