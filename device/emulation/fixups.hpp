// The byte code of classic fixups: which words of the image move with it, and which are imports.
#pragma once

#include "device/emulation/image_file.hpp"

namespace emulation {

/// A word of the image that becomes the address of what it names, plus the addend.
struct Binding {
    std::uint64_t address;
    std::string name;
    std::int64_t addend;
    bool mayBeMissing; ///< The word is zero then.

    bool operator==(const Binding&) const = default;
};

/// The addresses of the words that hold addresses within the image. Throws Refusal, for a word
/// outside of the segments too.
[[nodiscard]] std::vector<std::uint64_t> rebasedWords(Bytes code,
                                                      const std::vector<Segment>& segments);

/// Whether a table of imports ends at the first end mark, or has one behind each import because
/// these are bound one by one.
enum class BindingTable { eager, lazy };

/// Throws Refusal as above.
[[nodiscard]] std::vector<Binding> bindings(Bytes code, BindingTable table,
                                            const std::vector<Segment>& segments);

} // namespace emulation
