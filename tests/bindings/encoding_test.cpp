// Type encodings made at compile time, against what the runtimes write and understand.
#include "bindings/coregraphics/color.hpp"
#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/invocation.hpp"
#include "bindings/foundation/method_signature.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/block.hpp"
#include "bindings/objc/declared_types.hpp"
#include "bindings/objc/encoding.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/label.hpp"

#include <gtest/gtest.h>

namespace {

template <class Signature>
std::string encoding() {
    return objc::MethodEncoding<Signature>::value.data();
}

TEST(Encoding, WritesWhatTheRuntimeWrites) {
    EXPECT_EQ(encoding<bool()>(), "B@:");
    EXPECT_EQ(encoding<void(objc::Object)>(), "v@:@");
    EXPECT_EQ(encoding<void(ns::String, ui::View)>(), "v@:@@");
    EXPECT_EQ(encoding<CGRect(SEL, Class)>(), "{CGRect={CGPoint=dd}{CGSize=dd}}@::#");
    EXPECT_EQ(encoding<ns::Range(const char*, char16_t*)>(), "{_NSRange=QQ}@:r*^S");
    EXPECT_EQ(encoding<void(objc::Block<void(bool)>, void*)>(), "v@:@?^v");
    EXPECT_EQ(encoding<ui::TextAlignment(float, double)>(), "q@:fd");
    EXPECT_EQ(encoding<objc::Strong<ui::View>(objc::Copied<ns::String>)>(), "@@:@");
    EXPECT_EQ(encoding<CGColorRef(CGAffineTransform, UIEdgeInsets)>(),
              "^{CGColor=}@:{CGAffineTransform=dddddd}{UIEdgeInsets=dddd}");
}

TEST(Encoding, TellsTheClassesOfArguments) {
    const auto classed = []<class Signature>(Signature*) {
        return std::string(objc::ClassedMethodEncoding<Signature>::value.data());
    };
    using Setter = void(objc::Copied<ns::String>, double, objc::Object, ns::ArrayOf<ui::View>);
    EXPECT_EQ(classed(static_cast<Setter*>(nullptr)), "v@:@\"NSString\"d@@\"NSArray<UIView>\"");
    EXPECT_EQ(classed(static_cast<ui::View (*)(objc::Block<void(ui::View)>)>(nullptr)), "@@:@?");
}

TEST(DeclaredTypes, AreKeptForAClassAndItsSubclasses) {
    const Class string = objc_lookUpClass("NSString");
    const Class mutableString = objc_lookUpClass("NSMutableString");
    EXPECT_STREQ(objc::keepDeclaredTypes(string, "keptForTest:", "v@:@\"UIFont\"d"), "v@:@d");
    EXPECT_STREQ(objc::declaredTypes(mutableString, sel_registerName("keptForTest:")),
                 "v@:@\"UIFont\"d");
    EXPECT_STREQ(objc::keepDeclaredTypes(string, "plainForTest:", "v@:@"), "v@:@");
    EXPECT_EQ(objc::declaredTypes(mutableString, sel_registerName("plainForTest:")), nullptr);
}

TEST(Encoding, IsParsedByFoundationToTheRightSizes) {
    const objc::Pool pool;
    const auto signature = ns::MethodSignature::withTypes(
        encoding<CGRect(bool, CGAffineTransform, ns::Range)>().c_str());
    EXPECT_EQ(signature.numberOfArguments(), 5U);
    EXPECT_EQ(signature.returnLength(), sizeof(CGRect));
}

TEST(Encoding, ComparesByMeaning) {
    struct Case {
        const char* one;
        const char* other;
        bool same;
    };
    for (const auto& [one, other, same] : {
             Case{"v24@0:8@16", "v@:@", true}, // frame offsets
             Case{"C16@0:8", "B@:", true},     // BOOL
             Case{"c16@0:8", "B@:", true},
             Case{"l16@0:8", "q@:", true},                     // NSInteger
             Case{"{_NSRect={_NSPoint=dd}{_NSSize=dd}}16@0:8", // structure names
                  "{CGRect={CGPoint=dd}{CGSize=dd}}@:", true},
             Case{"v@:@?", "v@:@", true},              // a block is an object
             Case{"@\"NSString\"16@0:8", "@@:", true}, // an argument's class
             Case{"Vv24@0:8r^v16", "v@:^v", true},     // qualifiers
             Case{"v@:@", "v@:", false},
             Case{"v@:f", "v@:d", false},
             Case{"v@:i", "v@:q", false},
             Case{"{CGSize=dd}@:", "{CGRect={CGPoint=dd}{CGSize=dd}}@:", false},
             Case{"v@:@", "@@:@", false},
         }) {
        EXPECT_EQ(objc::sameMeaning(one, other), same) << one << " and " << other;
    }
}

TEST(Encoding, AgreesWithFoundationsOwnMethods) {
    const auto typesOf = [](const char* cls, const char* name) {
        return method_getTypeEncoding(
            class_getInstanceMethod(objc_getClass(cls), sel_registerName(name)));
    };
    EXPECT_TRUE(
        objc::sameMeaning(typesOf("NSString", "isEqualToString:"), encoding<bool(ns::String)>()));
    EXPECT_TRUE(objc::sameMeaning(typesOf("NSString", "length"), encoding<unsigned long()>()));
    EXPECT_TRUE(objc::sameMeaning(typesOf("NSString", "rangeOfString:"),
                                  encoding<ns::Range(ns::String)>()));
    EXPECT_TRUE(objc::sameMeaning(typesOf("NSString", "getCharacters:range:"),
                                  encoding<void(char16_t*, ns::Range)>()));
    EXPECT_TRUE(objc::sameMeaning(typesOf("NSArray", "objectAtIndex:"),
                                  encoding<objc::Object(unsigned long)>()));
}

} // namespace
