// Searches for folders at the root, and for the words of share codes.
#include "library/toolbox/text_tools/links.hpp"

#include "library/common/white_space.hpp"

#include <algorithm>
#include <array>
#include <set>

namespace wentra::toolbox {
namespace {

constexpr std::array<std::u16string_view, 13> folders{
    u"/etc",    u"/sbin", u"/bin", u"/usr",          u"/dev",   u"/private",   u"/Library",
    u"/System", u"/tmp",  u"/var", u"/Applications", u"/cores", u"/Developer",
};

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

bool startsWithFolder(std::u16string_view text) {
    return std::ranges::any_of(
        folders, [text](std::u16string_view folder) { return text.starts_with(folder); });
}

} // namespace

std::vector<std::u16string> pathsIn(std::u16string_view text) {
    std::vector<std::u16string> paths;
    std::set<std::u16string_view> known;
    for (std::size_t start = text.find(u'/'); start != text.npos; start = text.find(u'/', start)) {
        if (!startsWithFolder(text.substr(start))) {
            ++start;
            continue;
        }
        const auto* const end = std::find_if(text.begin() + start, text.end(), isWhiteSpace);
        const auto path = text.substr(start, static_cast<std::size_t>(end - text.begin()) - start);
        if (known.insert(path).second) {
            paths.emplace_back(path);
        }
        start += path.size();
    }
    return paths;
}

std::u16string_view sharedScheme(std::u16string_view text) {
    const auto isIn = [text](std::u16string_view word) { return text.find(word) != text.npos; };
    const auto* const code = std::ranges::find_if(shareCodes, [isIn](const ShareCode& candidate) {
        return std::ranges::any_of(candidate.words, isIn);
    });
    return code == shareCodes.end() ? std::u16string_view() : code->scheme;
}

} // namespace wentra::toolbox
