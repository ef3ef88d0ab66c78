// Running the byte code of fixups.
#include "device/emulation/fixups.hpp"

#include "device/emulation/refusal.hpp"

#include <array>
#include <cstdio>

namespace emulation {
namespace {

constexpr std::uint64_t wordSize = 8;
constexpr unsigned pointerType = 1;

[[noreturn]] void refuseOperation(const char* table, unsigned operation) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "the operation %#x in the table of %s", operation,
                  table);
    throw Refusal(text.data());
}

void requirePointer(unsigned type) {
    if (type != pointerType) {
        throw Refusal("a fixup of another form than an address");
    }
}

/// Where the code stands in the image.
class Place {
public:
    explicit Place(const std::vector<Segment>& segments) : segments_(&segments) {
        for (const Segment& segment : segments) {
            wordsLeft_ += segment.size / wordSize;
        }
    }

    void set(unsigned segment, std::uint64_t offset) {
        if (segment >= segments_->size()) {
            throw Refusal("a fixup in a segment that is not there");
        }
        segment_ = &(*segments_)[segment];
        offset_ = offset;
    }
    /// Backwards, too, by a number that wraps around.
    void skip(std::uint64_t bytes) { offset_ += bytes; }
    /// The word here; the place is behind it then.
    std::uint64_t pass() {
        if (segment_ == nullptr || segment_->size < wordSize ||
            offset_ > segment_->size - wordSize) {
            throw Refusal("a fixup outside of the segments");
        }
        if (wordsLeft_-- == 0) {
            throw Refusal("more fixups than words");
        }
        offset_ += wordSize;
        return segment_->address + offset_ - wordSize;
    }

private:
    const std::vector<Segment>* segments_;
    const Segment* segment_ = nullptr;
    std::uint64_t offset_ = 0;
    /// No word has two, so a count that the file exaggerates ends here.
    std::uint64_t wordsLeft_ = 0;
};

class Rebasing {
public:
    Rebasing(Bytes code, const std::vector<Segment>& segments) : code_(code), place_(segments) {}

    std::vector<std::uint64_t> run() {
        while (!code_.empty() && step(code_.byte())) {
        }
        return words_;
    }

private:
    /// False at the end mark.
    bool step(unsigned operation) {
        const unsigned immediate = operation & 0xFU;
        switch (operation & 0xF0U) {
        case 0x00:
            return false;
        case 0x10:
            requirePointer(immediate);
            break;
        case 0x20:
            place_.set(immediate, code_.number());
            break;
        case 0x30:
            place_.skip(code_.number());
            break;
        case 0x40:
            place_.skip(immediate * wordSize);
            break;
        case 0x50:
            add(immediate, 0);
            break;
        case 0x60:
            add(code_.number(), 0);
            break;
        case 0x70:
            add(1, code_.number());
            break;
        case 0x80: {
            const std::uint64_t count = code_.number();
            add(count, code_.number());
            break;
        }
        default:
            refuseOperation("rebased words", operation);
        }
        return true;
    }

    void add(std::uint64_t count, std::uint64_t gap) {
        for (; count > 0; --count) {
            words_.push_back(place_.pass());
            place_.skip(gap);
        }
    }

    ByteReader code_;
    Place place_;
    std::vector<std::uint64_t> words_;
};

class Binder {
public:
    Binder(Bytes code, BindingTable table, const std::vector<Segment>& segments)
        : code_(code), table_(table), place_(segments) {}

    std::vector<Binding> run() {
        while (!code_.empty() && step(code_.byte())) {
        }
        return found_;
    }

private:
    bool step(unsigned operation) {
        const unsigned immediate = operation & 0xFU;
        switch (operation & 0xF0U) {
        case 0x00:
            return table_ == BindingTable::lazy;
        case 0x10: // Which library has it does not matter: there is one host.
        case 0x30:
            break;
        case 0x20:
            code_.number();
            break;
        case 0x40:
            mayBeMissing_ = (immediate & 1U) != 0;
            name_ = code_.text();
            break;
        case 0x50:
            requirePointer(immediate);
            break;
        case 0x60:
            addend_ = code_.signedNumber();
            break;
        case 0x70:
            place_.set(immediate, code_.number());
            break;
        case 0x80:
            place_.skip(code_.number());
            break;
        default:
            bind(operation);
        }
        return true;
    }

    void bind(unsigned operation) {
        switch (operation & 0xF0U) {
        case 0x90:
            add(1, 0);
            break;
        case 0xA0:
            add(1, code_.number());
            break;
        case 0xB0:
            add(1, (operation & 0xFU) * wordSize);
            break;
        case 0xC0: {
            const std::uint64_t count = code_.number();
            add(count, code_.number());
            break;
        }
        default:
            refuseOperation("imports", operation);
        }
    }

    void add(std::uint64_t count, std::uint64_t gap) {
        for (; count > 0; --count) {
            found_.push_back({place_.pass(), name_, addend_, mayBeMissing_});
            place_.skip(gap);
        }
    }

    ByteReader code_;
    BindingTable table_;
    Place place_;
    std::vector<Binding> found_;
    std::string name_;
    std::int64_t addend_ = 0;
    bool mayBeMissing_ = false;
};

} // namespace

std::vector<std::uint64_t> rebasedWords(Bytes code, const std::vector<Segment>& segments) {
    return Rebasing(code, segments).run();
}

std::vector<Binding> bindings(Bytes code, BindingTable table,
                              const std::vector<Segment>& segments) {
    return Binder(code, table, segments).run();
}

} // namespace emulation
