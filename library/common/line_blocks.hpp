// A long text of the platform, read piece by piece.
#pragma once

#include "bindings/foundation/string.hpp"

#include <string>
#include <string_view>

namespace wentra {

/// Gives a text's units in blocks of whole lines (ended by "\n" alone), so that looking through a
/// long text needs no copy of all of it, and what is looked through is still in the processor's
/// cache.
class LineBlocks {
public:
    explicit LineBlocks(ns::String text);

    /// The next lines with their ends; the text's last one may have none. Valid until the next
    /// call. Empty at the end.
    std::u16string_view next();

private:
    void read();

    objc::Strong<ns::String> text_;
    unsigned long length_;
    unsigned long read_ = 0;
    std::u16string buffer_;
    std::size_t given_ = 0; ///< so many of the buffer's units
};

} // namespace wentra
