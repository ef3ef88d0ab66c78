// Searching a text for several others on one way through it.
#pragma once

#include "library/common/text_search.hpp"

#include <cstddef>
#include <string_view>

namespace wentra {

/// Where something stands next in a text. Both are borrowed.
class SearchAhead {
public:
    SearchAhead(std::u16string_view text, std::u16string_view sought)
        : search_(text, sought), place_(search_.next(0)) {}

    /// The end of the text when it stands nowhere any more.
    [[nodiscard]] std::size_t place() const { return place_; }
    /// Leaves out what starts before that place.
    void skipTo(std::size_t place) {
        if (place_ < place) {
            place_ = search_.next(place);
        }
    }

private:
    TextSearch search_;
    std::size_t place_;
};

} // namespace wentra
