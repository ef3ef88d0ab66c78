// Searches for the folders at the root.
#include "library/common/path_links.hpp"

#include "library/common/white_space.hpp"

#include <algorithm>
#include <array>
#include <set>

namespace wentra {
namespace {

constexpr std::u16string_view scheme = u"filza://";

constexpr std::array<std::u16string_view, 13> folders{
    u"/etc",    u"/sbin", u"/bin", u"/usr",          u"/dev",   u"/private",   u"/Library",
    u"/System", u"/tmp",  u"/var", u"/Applications", u"/cores", u"/Developer",
};

bool startsWithFolder(std::u16string_view text) {
    return std::ranges::any_of(
        folders, [text](std::u16string_view folder) { return text.starts_with(folder); });
}

} // namespace

std::vector<std::u16string> pathLinksIn(std::u16string_view text) {
    std::vector<std::u16string> links;
    std::set<std::u16string_view> known;
    for (std::size_t start = text.find(u'/'); start != text.npos; start = text.find(u'/', start)) {
        if (!startsWithFolder(text.substr(start))) {
            ++start;
            continue;
        }
        const auto* const end = std::find_if(text.begin() + start, text.end(), isWhiteSpace);
        const auto path = text.substr(start, static_cast<std::size_t>(end - text.begin()) - start);
        if (known.insert(path).second) {
            links.emplace_back(scheme).append(path);
        }
        start += path.size();
    }
    return links;
}

} // namespace wentra
