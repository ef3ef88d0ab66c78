// Share codes in texts.
#include "library/toolbox/text_tools/share_codes.hpp"

#include <gtest/gtest.h>

namespace wentra::toolbox {
namespace {

TEST(ShareCodes, AreKnownByTheirWords) {
    const std::pair<std::u16string_view, std::u16string_view> cases[]{
        {u"复制打开抖音极速版", u"douyinsharesdk://"},
        {u"抖音口令", u"douyinsharesdk://"},
        {u"通过百度网盘", u"baiduyun://"},
        {u"百度云盘：闲鱼", u"baiduyun://"},
        {u"打开淘宝搜索", u"taobao://"},
        {u"【淘宝】", u"taobao://"},
        {u"打开手机阿里", u"wireless1688://"},
        {u"【闲鱼", u"fleamarket://"},
        {u"淘宝 抖音 百度", u""},
        {u"", u""},
    };
    for (const auto& [text, scheme] : cases) {
        EXPECT_EQ(sharedScheme(text), scheme) << testing::PrintToString(text);
    }
}

} // namespace
} // namespace wentra::toolbox
