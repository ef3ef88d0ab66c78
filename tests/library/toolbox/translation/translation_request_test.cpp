// The rules of requests: language, lines, encoding, signature and address.
#include "library/toolbox/translation/translation_request.hpp"

#include <gtest/gtest.h>

namespace wentra::toolbox {
namespace {

using namespace std::string_view_literals;

TEST(TranslationRequest, TakesTextForChineseFromTheSecondIdeographOn) {
    for (const auto& [text, target] : std::vector<std::pair<std::u16string_view, std::string_view>>{
             {u"", "zh"},
             {u"hello", "zh"},
             {u"一", "zh"},
             {u"\x4E01", "auto"},
             {u"a中b", "auto"},
             {u"\x9FFE", "auto"},
             {u"\x9FFF", "zh"},
             {u"かな 😀", "zh"},
         }) {
        EXPECT_EQ(targetLanguage(text), target) << text.size();
    }
}

TEST(TranslationRequest, EncodesAllButAsciiLettersDigitsAndSixCharacters) {
    EXPECT_EQ(encodedForService(u"aZ09-._~/?"), "aZ09-._~/?");
    EXPECT_EQ(encodedForService(u" &=+%#!'"), "%20%26%3D%2B%25%23%21%27");
    EXPECT_EQ(encodedForService(u"é你😀"), "%C3%A9%E4%BD%A0%F0%9F%98%80");
    EXPECT_EQ(encodedForService(u"\xD83D"), "%EF%BF%BD") << "a lone surrogate";
    EXPECT_EQ(encodedForService(u"a\0b"sv), "a%00b");
}

TEST(TranslationRequest, SignsTheLineAsItIs) {
    const TranslationAccount account{u"2015", u"钥匙"};
    EXPECT_EQ(signedText(account, u"a b&", 7), u"2015a b&7钥匙");
    EXPECT_EQ(translationAddress(account, u"a b&", "zh", 9999, "0f"),
              "https://fanyi-api.baidu.com/api/trans/vip/translate"
              "?q=a%20b%26&from=auto&to=zh&appid=2015&salt=9999&sign=0f");
}

TEST(TranslationRequest, AddressesThePageWithWhatAQueryAllows) {
    EXPECT_EQ(translationPageAddress(u"a b?你"),
              "https://translate.google.com/?sl=auto&tl=auto&text=a%20b?%E4%BD%A0");
    EXPECT_EQ(translationPageAddress(u"\"x\""),
              "https://translate.google.com/?sl=auto&tl=zh&text=%22x%22");
}

} // namespace
} // namespace wentra::toolbox
