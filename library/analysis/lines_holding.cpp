// Searches the whole text for each fragment, which is quicker than to take it apart first.
#include "library/analysis/lines_holding.hpp"

#include "library/common/search_ahead.hpp"
#include "library/common/unit_vector.hpp"

#include <algorithm>
#include <utility>

namespace wentra::analysis {
namespace {

/// Takes the lines out of a text that lie around given places.
class LinesAround {
public:
    explicit LinesAround(std::u16string_view text) : text_(text), lineFeeds_(text, u"\n") {}

    /// Takes the line around that place; where it ends.
    std::size_t take(std::size_t place) {
        const std::size_t start = lineStart(place);
        const std::size_t end = lineFeeds_.next(place);
        taken_.push_back(text_.substr(start, end - start));
        return end;
    }
    std::vector<std::u16string_view> taken() && { return std::move(taken_); }

private:
    [[nodiscard]] std::size_t lineStart(std::size_t place) const {
        const UnitVector lineFeed = unitVector(u'\n');
        while (place >= unitVectorSize &&
               !holdsAny(unitsAt(text_.data() + place - unitVectorSize) == lineFeed)) {
            place -= unitVectorSize;
        }
        return text_.substr(0, place).rfind(u'\n') + 1; // npos + 1 is the text's start
    }

    std::u16string_view text_;
    TextSearch lineFeeds_;
    std::vector<std::u16string_view> taken_;
};

} // namespace

std::vector<std::u16string_view> linesHolding(std::u16string_view text,
                                              std::span<const std::u16string_view> fragments) {
    std::vector<SearchAhead> searches;
    for (const std::u16string_view fragment : fragments) {
        searches.emplace_back(text, fragment);
    }
    LinesAround lines(text);
    for (;;) {
        const std::size_t place = std::ranges::min(searches, {}, &SearchAhead::place).place();
        if (place >= text.size()) {
            return std::move(lines).taken();
        }
        const std::size_t end = lines.take(place);
        std::ranges::for_each(searches, [end](SearchAhead& search) { search.skipTo(end); });
    }
}

std::vector<std::u16string_view> linesWhere(std::u16string_view text, std::u16string_view fragment,
                                            bool (*accept)(std::u16string_view rest)) {
    const TextSearch search(text, fragment);
    LinesAround lines(text);
    for (std::size_t place = search.next(0); place < text.size();) {
        place = search.next(accept(text.substr(place)) ? lines.take(place) : place + 1);
    }
    return std::move(lines).taken();
}

} // namespace wentra::analysis
