// Writing call frame information.
#include "device/emulation/call_frames.hpp"

#include "device/emulation/refusal.hpp"

#include <array>
#include <cstring>
#include <initializer_list>
#include <map>

namespace emulation {
namespace {

// DWARF's numbers. Offsets are in units of -8 bytes.
enum : std::uint8_t { defineFrame = 0x0C, savedAtExtended = 0x05 };
constexpr std::uint8_t savedAt = 0x80;
enum : std::uint8_t { framePointer = 29, linkRegister = 30, stackPointer = 31, firstVector = 64 };
constexpr std::uint8_t unitOfOffsets = 0x78;
constexpr std::uint8_t absoluteAddresses = 0;

// Apple's numbers for arm64.
enum : std::uint32_t { withoutFrame = 2, inDwarf = 3, withFrame = 4 };
constexpr std::uint8_t firstSavedRegister = 19;
constexpr std::uint8_t firstSavedVector = firstVector + 8;

class Record {
public:
    template <class T>
    void value(T value) {
        std::array<std::byte, sizeof value> raw{};
        std::memcpy(raw.data(), &value, sizeof value);
        bytes_.insert(bytes_.end(), raw.begin(), raw.end());
    }
    void bytes(std::initializer_list<std::uint8_t> values) {
        for (const std::uint8_t one : values) {
            value(one);
        }
    }
    void number(std::uint64_t number) {
        for (; number > 0x7F; number >>= 7U) {
            value(static_cast<std::uint8_t>(number | 0x80U));
        }
        value(static_cast<std::uint8_t>(number));
    }

    /// With its length in front of it, in whole words.
    void appendTo(std::vector<std::byte>& out) const {
        Record length;
        const std::size_t padded = (bytes_.size() + 4 + 7) / 8 * 8 - 4;
        length.value(static_cast<std::uint32_t>(padded));
        out.insert(out.end(), length.bytes_.begin(), length.bytes_.end());
        out.insert(out.end(), bytes_.begin(), bytes_.end());
        out.resize(out.size() + padded - bytes_.size()); // zero is "no operation"
    }

private:
    std::vector<std::byte> bytes_;
};

/// What the functions with that personality have in common: on entry nothing is on the stack.
Record commonRecord(std::optional<std::uint64_t> personality) {
    Record record;
    record.value(std::uint32_t{0});
    if (personality) {
        record.bytes({1, 'z', 'P', 'L', 'R', 0, 1, unitOfOffsets, linkRegister, 11});
        record.bytes({absoluteAddresses});
        record.value(*personality);
        record.bytes({absoluteAddresses, absoluteAddresses});
    } else {
        record.bytes({1, 'z', 'R', 0, 1, unitOfOffsets, linkRegister, 1, absoluteAddresses});
    }
    record.bytes({defineFrame, stackPointer, 0});
    return record;
}

/// Registers are saved in pairs, below one another; `slot` counts the words below the caller's
/// stack.
void writeSaved(Record& record, std::uint32_t encoding, std::uint8_t slot) {
    constexpr unsigned pairs = 5;
    constexpr unsigned vectorPairs = 4;
    constexpr unsigned firstVectorBit = 8;
    for (unsigned i = 0; i < 2 * pairs; ++i) {
        if ((encoding >> i / 2 & 1U) != 0) {
            record.bytes({static_cast<std::uint8_t>(savedAt | (firstSavedRegister + i)), slot++});
        }
    }
    for (unsigned i = 0; i < 2 * vectorPairs; ++i) {
        if ((encoding >> (firstVectorBit + i / 2) & 1U) != 0) {
            record.bytes(
                {savedAtExtended, static_cast<std::uint8_t>(firstSavedVector + i), slot++});
        }
    }
}

void writeLayout(Record& record, std::uint32_t encoding) {
    constexpr std::uint64_t unitOfStack = 16;
    if ((encoding >> 24U & 0xFU) == withFrame) {
        constexpr std::uint8_t savedFramePointer = savedAt | framePointer;
        constexpr std::uint8_t savedLink = savedAt | linkRegister;
        record.bytes({defineFrame, framePointer, 16, savedFramePointer, 2, savedLink, 1});
        writeSaved(record, encoding, 3);
    } else {
        record.bytes({defineFrame, stackPointer});
        record.number((encoding >> 12U & 0xFFFU) * unitOfStack);
        writeSaved(record, encoding, 1);
    }
}

bool isCompact(std::uint32_t encoding) {
    const std::uint32_t mode = encoding >> 24U & 0xFU;
    if (mode != withoutFrame && mode != inDwarf && mode != withFrame) {
        throw Refusal("a frame of the unknown form " + std::to_string(mode));
    }
    return mode != inDwarf;
}

class Frames {
public:
    Frames(std::uint64_t base, const std::function<std::uint64_t(std::uint32_t)>& personality)
        : base_(base), personality_(&personality) {}

    void add(const FrameRow& row) {
        const std::size_t common = commonOf(row.personality);
        Record record;
        record.value(static_cast<std::uint32_t>(bytes_.size() + 4 - common));
        record.value(base_ + row.start);
        record.value(std::uint64_t{row.size});
        record.number(row.personality ? 8 : 0);
        if (row.personality) {
            record.value(base_ + row.handlers);
        }
        writeLayout(record, row.encoding);
        record.appendTo(bytes_);
    }

    std::vector<std::byte> finished() {
        bytes_.resize(bytes_.size() + 4);
        return std::move(bytes_);
    }

private:
    /// Where the common record lies, which is written at its first use.
    std::size_t commonOf(std::optional<std::uint32_t> word) {
        const auto [found, isNew] = common_.emplace(word, bytes_.size());
        if (isNew) {
            commonRecord(word ? std::optional((*personality_)(*word)) : std::nullopt)
                .appendTo(bytes_);
        }
        return found->second;
    }

    std::uint64_t base_;
    const std::function<std::uint64_t(std::uint32_t)>* personality_;
    std::vector<std::byte> bytes_;
    std::map<std::optional<std::uint32_t>, std::size_t> common_;
};

} // namespace

std::vector<std::byte>
callFrames(const std::vector<FrameRow>& rows, std::uint64_t base,
           const std::function<std::uint64_t(std::uint32_t word)>& personality) {
    Frames frames(base, personality);
    for (const FrameRow& row : rows) {
        if (isCompact(row.encoding)) {
            frames.add(row);
        }
    }
    return frames.finished();
}

} // namespace emulation
