// UIKit's additions to NSValue.
#include "desktop/uikit/values/geometry_values.hpp"

#include "bindings/foundation/value.hpp"
#include "bindings/objc/hook.hpp"

namespace desktop {
namespace {

// Foundation's own structures are laid out alike.
objc::Object withRect(objc::Object, CGRect rect) {
    return ns::Value::sendClass<"valueWithRect:", objc::Object>(rect);
}
objc::Object withPoint(objc::Object, CGPoint point) {
    return ns::Value::sendClass<"valueWithPoint:", objc::Object>(point);
}
objc::Object withSize(objc::Object, CGSize size) {
    return ns::Value::sendClass<"valueWithSize:", objc::Object>(size);
}
CGRect rect(ns::Value value) { return value.send<"rectValue", CGRect>(); }
CGPoint point(ns::Value value) { return value.send<"pointValue", CGPoint>(); }
CGSize size(ns::Value value) { return value.send<"sizeValue", CGSize>(); }

} // namespace

objc::Object valueWith(CGRect rect) { return withRect(nullptr, rect); }

void installGeometryValues() {
    objc::install(objc::classAddition<"NSValue", "valueWithCGRect:", &withRect>());
    objc::install(objc::classAddition<"NSValue", "valueWithCGPoint:", &withPoint>());
    objc::install(objc::classAddition<"NSValue", "valueWithCGSize:", &withSize>());
    objc::install(objc::addition<"CGRectValue", &rect>());
    objc::install(objc::addition<"CGPointValue", &point>());
    objc::install(objc::addition<"CGSizeValue", &size>());
}

} // namespace desktop
