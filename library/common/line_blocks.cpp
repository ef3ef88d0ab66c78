// Reads on until a line ends.
#include "library/common/line_blocks.hpp"

#include <algorithm>

namespace wentra {
namespace {

constexpr std::size_t blockUnits = 1U << 14U;

} // namespace

LineBlocks::LineBlocks(ns::String text) : text_(text), length_(text.length()) {}

std::u16string_view LineBlocks::next() {
    buffer_.erase(0, given_);
    given_ = 0;
    while (given_ == 0 && read_ < length_) {
        const std::size_t searched = buffer_.size();
        read();
        const std::size_t rest = std::u16string_view(buffer_).substr(searched).rfind(u'\n');
        given_ = rest == buffer_.npos ? 0 : searched + rest + 1;
    }
    if (given_ == 0) {
        given_ = buffer_.size();
    }
    return std::u16string_view(buffer_).substr(0, given_);
}

void LineBlocks::read() {
    const std::size_t kept = buffer_.size();
    const std::size_t count = std::min(blockUnits, length_ - read_);
    buffer_.resize(kept + count);
    text_.getCharacters(buffer_.data() + kept, {read_, count});
    read_ += count;
}

} // namespace wentra
