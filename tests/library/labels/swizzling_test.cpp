// The class method by which labels' methods trade places.
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/label.hpp"
#include "desktop/platform/platform.hpp"
#include "library/labels/long_press_copy.hpp"

#include <gtest/gtest.h>

namespace wentra::labels {
namespace {

Class makeLabelClass() {
    const Class cls = objc_allocateClassPair(ui::Label::classObject(), "TestSpeakingLabel", 0);
    constexpr auto whisper = +[](id, SEL) { return 1; };
    constexpr auto shout = +[](id, SEL) { return 2; };
    class_addMethod(cls, sel_registerName("whisper"), reinterpret_cast<IMP>(whisper), "i@:");
    class_addMethod(cls, sel_registerName("shout"), reinterpret_cast<IMP>(shout), "i@:");
    objc_registerClassPair(cls);
    return cls;
}

TEST(Swizzling, TwoMethodsOfALabelClassTradePlaces) {
    const objc::Pool pool;
    desktop::registerPlatform();
    for (const objc::Change& change : longPressCopyCategory()) {
        objc::install(change);
    }
    const id cls = objc::object(makeLabelClass());
    const auto label = objc::wrap(objc::send<"new", id>(cls));
    objc::send<"swizzleInstanceMethod:withMethod:">(cls, sel_registerName("whisper"),
                                                    sel_registerName("shout"));
    EXPECT_EQ((label.send<"whisper", int>()), 2);
    EXPECT_EQ((label.send<"shout", int>()), 1);

    objc::send<"swizzleInstanceMethod:withMethod:">(cls, sel_registerName("whisper"),
                                                    sel_registerName("unknown"));
    EXPECT_EQ((label.send<"whisper", int>()), 2) << "a method that is missing takes no place";
    objc_release(label.raw());
}

} // namespace
} // namespace wentra::labels
