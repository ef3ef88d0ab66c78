// Doing what a phone's loader does with a library.
#include "device/emulation/image.hpp"

#include "device/emulation/call_frames.hpp"
#include "device/emulation/fixups.hpp"
#include "device/emulation/imports.hpp"
#include "device/emulation/refusal.hpp"

#include "bindings/objc/runtime.hpp"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <sys/mman.h>
#include <unistd.h>

extern "C" void __register_frame(void* frames);

namespace emulation {
namespace {

using Initialiser = void (*)(int, const char**, char**, const char**);

std::span<std::byte> mapped;

std::uint64_t base() { return reinterpret_cast<std::uint64_t>(mapped.data()); }

std::vector<char> contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw Refusal("a file that cannot be read");
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A stretch of the image. Throws Refusal when it lies outside.
std::span<std::byte> stretch(std::uint64_t address, std::uint64_t size) {
    if (address > mapped.size() || size > mapped.size() - address) {
        throw Refusal("an address outside of the image");
    }
    return mapped.subspan(address, size);
}

std::uint64_t word(std::uint64_t address) {
    return valueAt<std::uint64_t>(stretch(address, sizeof(std::uint64_t)), 0);
}

void setWord(std::uint64_t address, std::uint64_t value) {
    std::memcpy(stretch(address, sizeof value).data(), &value, sizeof value);
}

/// A text of the image, by where it lies in memory. Throws Refusal.
const char* textAt(std::uint64_t address) {
    const std::uint64_t start = address - base();
    return ByteReader(stretch(start, mapped.size() - start)).text().data();
}

void map(const ImageFile& file) {
    void* memory =
        mmap(nullptr, file.size(), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        throw Refusal("an image without memory for it");
    }
    mapped = {static_cast<std::byte*>(memory), file.size()};
    for (const Segment& segment : file.segments) {
        std::ranges::copy(segment.content,
                          stretch(segment.address, segment.content.size()).begin());
    }
}

/// Sets the word to the import's address; appends the name of an import that nobody has.
void bind(const Binding& binding, std::string& missing) {
    const auto address = reinterpret_cast<std::uint64_t>(importNamed(binding.name));
    if (address == 0 && !binding.mayBeMissing) {
        missing += " " + binding.name;
    }
    setWord(binding.address, address + static_cast<std::uint64_t>(binding.addend));
}

void applyFixups(const ImageFile& file) {
    for (const std::uint64_t place : rebasedWords(file.rebaseCode, file.segments)) {
        setWord(place, word(place) + base());
    }
    std::string missing;
    for (const Binding& binding : bindings(file.bindCode, BindingTable::eager, file.segments)) {
        bind(binding, missing);
    }
    for (const Binding& binding : bindings(file.lazyBindCode, BindingTable::lazy, file.segments)) {
        bind(binding, missing);
    }
    if (!missing.empty()) {
        throw Refusal("the imports" + missing);
    }
}

/// As the phone's runtime does when it loads an image.
void registerSelectors(const ImageFile& file) {
    const Section* section = file.sectionNamed("__objc_selrefs");
    for (std::uint64_t i = 0; section != nullptr && i < section->size / 8; ++i) {
        const std::uint64_t place = section->address + 8 * i;
        setWord(place, reinterpret_cast<std::uint64_t>(sel_registerName(textAt(word(place)))));
    }
}

void registerCompactFrames(const Section& section) {
    const auto rows = readUnwindInfo(stretch(section.address, section.size));
    for (const FrameRow& row : rows) {
        static_cast<void>(stretch(row.start, row.size));
    }
    // The unwinder reads them for as long as the process lives.
    auto* frames = new std::vector(callFrames(rows, base(), &word));
    __register_frame(frames->data());
}

/// The few frames that the compact form cannot describe are in Linux's form as they are; but Linux
/// wants a zero word at the end.
void registerDwarfFrames(const Section& section) {
    constexpr std::uint64_t endSize = 4;
    if (valueAt<std::uint32_t>(stretch(section.address + section.size, endSize), 0) != 0) {
        throw Refusal("an __eh_frame without an end");
    }
    __register_frame(stretch(section.address, section.size).data());
}

void registerFrames(const ImageFile& file) {
    if (const Section* section = file.sectionNamed("__unwind_info"); section != nullptr) {
        registerCompactFrames(*section);
    }
    if (const Section* section = file.sectionNamed("__eh_frame"); section != nullptr) {
        registerDwarfFrames(*section);
    }
}

void protect(const ImageFile& file) {
    for (const Segment& segment : file.segments) {
        // A phone's loader makes it constant once its imports are bound.
        const bool isWritable = segment.writable && segment.name != "__DATA_CONST";
        if (mprotect(stretch(segment.address, segment.size).data(), segment.size,
                     (segment.readable ? PROT_READ : 0) | (isWritable ? PROT_WRITE : 0) |
                         (segment.executable ? PROT_EXEC : 0)) != 0) {
            throw Refusal("a segment that cannot be protected: " + segment.name);
        }
    }
    auto* start = reinterpret_cast<char*>(mapped.data());
    __builtin___clear_cache(start, start + mapped.size());
}

void runInitialisers(const ImageFile& file) {
    std::array<const char*, 1> none{};
    for (const Section& section : file.sections) {
        for (std::uint64_t i = 0; section.holdsInitialisers && i < section.size / 8; ++i) {
            const std::uint64_t start = word(section.address + 8 * i);
            if (!isInsideImage(start)) {
                throw Refusal("an initialiser outside of the image");
            }
            reinterpret_cast<Initialiser>(start)(0, none.data(), environ, none.data());
        }
    }
}

} // namespace

void bring(const std::filesystem::path& file) {
    const std::vector<char> content = contentOf(file);
    const ImageFile image = readImageFile(std::as_bytes(std::span(content)));
    map(image);
    applyFixups(image);
    registerSelectors(image);
    protect(image);
    registerFrames(image);
    runInitialisers(image);
}

bool isInsideImage(std::uint64_t address) { return address - base() < mapped.size(); }

} // namespace emulation
