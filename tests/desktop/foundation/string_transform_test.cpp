// Transliterations by the platform's names and by ICU's.
#include "bindings/foundation/string_transform.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/foundation/string_transform.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ns::literals;

TEST(StringTransforms, MakePinyinAndDropItsMarks) {
    const objc::Pool pool;
    desktop::foundation::installStringTransforms();
    const ns::String pinyin = ns::applyTransform(u"中文 a"_ns, ns::mandarinToLatin());
    EXPECT_EQ(pinyin.utf16(), u"zhōng wén a");
    EXPECT_EQ(ns::applyTransform(pinyin, ns::stripDiacritics()).utf16(), u"zhong wen a");
    EXPECT_EQ(ns::applyTransform(u"ä\u0323é"_ns, ns::stripDiacritics()).utf16(), u"ae");
    EXPECT_EQ(ns::applyTransform(u"abc"_ns, u"Any-Upper"_ns).utf16(), u"ABC");
    EXPECT_FALSE(ns::applyTransform(u"abc"_ns, u"no such transform"_ns));
    EXPECT_FALSE(ns::applyTransform(nullptr, ns::mandarinToLatin()));
}

} // namespace
