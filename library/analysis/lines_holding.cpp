// Searches the whole text for each fragment, which is quicker than to take it apart first.
#include "library/analysis/lines_holding.hpp"

#include "library/common/text_search.hpp"

#include <algorithm>

namespace wentra::analysis {
namespace {

/// A fragment, and where it stands next.
class Fragment {
public:
    Fragment(std::u16string_view text, std::u16string_view fragment)
        : search_(text, fragment), place_(search_.next(0)) {}

    [[nodiscard]] std::size_t place() const { return place_; }
    void skipTo(std::size_t place) {
        if (place_ < place) {
            place_ = search_.next(place);
        }
    }

private:
    TextSearch search_;
    std::size_t place_;
};

} // namespace

std::vector<std::u16string_view> linesHolding(std::u16string_view text,
                                              std::span<const std::u16string_view> fragments) {
    std::vector<Fragment> searches;
    for (const std::u16string_view fragment : fragments) {
        searches.emplace_back(text, fragment);
    }
    const TextSearch lineFeeds(text, u"\n");
    std::vector<std::u16string_view> lines;
    for (;;) {
        const std::size_t place = std::ranges::min(searches, {}, &Fragment::place).place();
        if (place >= text.size()) {
            return lines;
        }
        const std::size_t start = text.rfind(u'\n', place) + 1; // npos + 1 is the text's start
        const std::size_t end = lineFeeds.next(place);
        lines.push_back(text.substr(start, end - start));
        std::ranges::for_each(searches, [end](Fragment& search) { search.skipTo(end); });
    }
}

} // namespace wentra::analysis
