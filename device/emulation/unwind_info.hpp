// The compact unwind table of an image: how the frames of its functions are undone.
#pragma once

#include "device/emulation/byte_reader.hpp"

#include <optional>
#include <vector>

namespace emulation {

/// What is known of the frames of one stretch of code. Addresses count from the image's start.
struct FrameRow {
    std::uint32_t start;
    std::uint32_t size;
    std::uint32_t encoding;
    /// The word that holds the address of the function that is asked about exceptions, and the
    /// table that it reads.
    std::optional<std::uint32_t> personality;
    std::uint32_t handlers = 0;

    bool operator==(const FrameRow&) const = default;
};

/// The rows of the table, by address, without those of code that has no frames to undo. Throws
/// Refusal.
[[nodiscard]] std::vector<FrameRow> readUnwindInfo(Bytes table);

} // namespace emulation
