// Looks for the first and the last unit of what is sought, many places at a time.
#include "library/common/plain_search.hpp"

#include <algorithm>
#include <cstdint>

namespace wentra {
namespace {

/// So many places are looked at before anything is decided, which compilers turn into vectors.
constexpr std::size_t blockSize = 64;

constexpr bool isPlain(char16_t unit) {
    const auto within = [unit](char16_t first, char16_t last) {
        return static_cast<std::uint16_t>(unit - first) <= static_cast<std::uint16_t>(last - first);
    };
    // Without the combining marks, the letters of other alphabets and the fullwidth ones.
    return unit < 0x80 || within(0x4E00, 0x9FFF) || within(0x2010, 0x2027) ||
           within(0x3000, 0x3029) || within(0xFF01, 0xFF20);
}

constexpr char16_t lowerCase(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
}

bool isAscii(std::u16string_view block) {
    std::uint16_t seen = 0;
    for (const char16_t unit : block) {
        seen = static_cast<std::uint16_t>(seen | unit);
    }
    return seen < 0x80;
}

/// A unit of what is sought, and its case.
struct Letter {
    explicit Letter(char16_t unit)
        : lower(lowerCase(unit)), caseBit(lower >= u'a' && lower <= u'z' ? u' ' : u'\0') {}

    char16_t lower;
    char16_t caseBit; ///< what tells it from the capital letter; 0 where there is none
};

class Search {
public:
    Search(std::u16string_view text, std::u16string_view sought)
        : text_(text), sought_(sought), first_(sought.front()), last_(sought.back()) {}

    /// The first place from `place` on where it stands; the end of the text when there is none.
    [[nodiscard]] std::size_t next(std::size_t place) const {
        for (const std::size_t end = placesEnd(); place < end; ++place) {
            place = skip(place);
            if (place < end && standsAt(place)) {
                return place;
            }
        }
        return text_.size();
    }

private:
    [[nodiscard]] std::size_t placesEnd() const {
        return text_.size() < sought_.size() ? 0 : text_.size() - sought_.size() + 1;
    }

    /// Past the blocks in which it stands nowhere.
    [[nodiscard]] std::size_t skip(std::size_t place) const {
        const std::size_t end = placesEnd();
        while (place + blockSize <= end && !mayStandIn(place)) {
            place += blockSize;
        }
        return place;
    }

    [[nodiscard]] bool mayStandIn(std::size_t place) const {
        const char16_t* const starts = text_.data() + place;
        const char16_t* const ends = starts + sought_.size() - 1;
        const auto [lower, caseBit] = first_;
        const auto [lastLower, lastCaseBit] = last_;
        // A unit with the case's bit set is the small letter: what differs from it in no bit.
        std::uint16_t found = 0;
        for (std::size_t index = 0; index < blockSize; ++index) {
            const auto first = static_cast<std::uint16_t>((starts[index] | caseBit) ^ lower);
            const auto last = static_cast<std::uint16_t>((ends[index] | lastCaseBit) ^ lastLower);
            const auto differs = static_cast<std::uint16_t>(first | last);
            found = static_cast<std::uint16_t>(found | (differs == 0 ? 1U : 0U));
        }
        return found != 0;
    }

    [[nodiscard]] bool standsAt(std::size_t place) const {
        return std::ranges::equal(text_.substr(place, sought_.size()), sought_, {}, &lowerCase,
                                  &lowerCase);
    }

    std::u16string_view text_;
    std::u16string_view sought_;
    Letter first_;
    Letter last_;
};

} // namespace

bool isPlainText(std::u16string_view text) {
    while (!text.empty()) {
        const std::u16string_view block = text.substr(0, blockSize);
        if (!isAscii(block) && !std::ranges::all_of(block, &isPlain)) {
            return false;
        }
        text.remove_prefix(block.size());
    }
    return true;
}

std::vector<ns::Range> plainOccurrences(std::u16string_view text, std::u16string_view sought) {
    std::vector<ns::Range> found;
    if (sought.empty()) {
        return found;
    }
    const Search search(text, sought);
    for (std::size_t place = search.next(0); place < text.size();
         place = search.next(place + sought.size())) {
        found.push_back({place, sought.size()});
    }
    return found;
}

} // namespace wentra
