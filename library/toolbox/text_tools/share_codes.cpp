// Searches for the words of share codes.
#include "library/toolbox/text_tools/share_codes.hpp"

#include <algorithm>
#include <array>

namespace wentra::toolbox {
namespace {

struct ShareCode {
    std::array<std::u16string_view, 2> words; ///< one of which the text has
    std::u16string_view scheme;
};

/// The first one that fits counts.
constexpr std::array<ShareCode, 5> shareCodes{{
    {{u"打开抖音", u"抖音口令"}, u"douyinsharesdk://"},
    {{u"通过百度", u"百度云盘"}, u"baiduyun://"},
    {{u"淘宝搜索", u"淘宝】"}, u"taobao://"},
    {{u"手机阿里", u"手机阿里"}, u"wireless1688://"},
    {{u"闲鱼】", u"闲鱼"}, u"fleamarket://"},
}};

} // namespace

std::u16string_view sharedScheme(std::u16string_view text) {
    const auto isIn = [text](std::u16string_view word) { return text.find(word) != text.npos; };
    const auto* const code = std::ranges::find_if(shareCodes, [isIn](const ShareCode& candidate) {
        return std::ranges::any_of(candidate.words, isIn);
    });
    return code == shareCodes.end() ? std::u16string_view() : code->scheme;
}

} // namespace wentra::toolbox
