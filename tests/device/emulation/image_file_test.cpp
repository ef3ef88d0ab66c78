// Files of libraries: what is read of them, and what is refused.
#include "device/emulation/image_file.hpp"
#include "device/emulation/refusal.hpp"
#include "tests/device/emulation/written_bytes.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

namespace {

using emulation::Refusal;
using tests::WrittenBytes;

std::array<char, 16> name(const char* text) {
    std::array<char, 16> characters{};
    std::memcpy(characters.data(), text, std::min<std::size_t>(std::strlen(text), 16));
    return characters;
}

struct Parts {
    std::uint32_t magic = 0xFEEDFACF;
    std::uint32_t cpu = 0x0100000C;
    std::uint32_t type = 6;
    std::uint32_t sectionKind = 0;
    const char* section = "__text";
    std::uint32_t fixups = 0x80000022;
    std::uint32_t weakSize = 0;
    std::uint64_t memory = 0x4000;
    std::uint32_t cpuKind = 0;
    std::uint32_t commandSize = 152;
    std::uint64_t address = 0x8000;
    std::uint64_t sectionSize = 3;
    std::uint32_t sections = 1;
};

/// A library of one segment and one section; its five bytes of content are its fixups, too.
WrittenBytes library(const Parts& parts = {}) {
    constexpr std::uint32_t contents = 32 + 72 + 80 + 48;
    WrittenBytes file;
    file.words({parts.magic, parts.cpu, parts.cpuKind, parts.type, 2, 200, 0, 0});
    file.words({0x19, parts.commandSize}).value(name("__TEXT")).value(parts.address);
    file.value(parts.memory).value(std::uint64_t{contents}).value(std::uint64_t{5});
    file.words({5, 5, parts.sections, 0});
    file.value(name(parts.section)).value(name("__TEXT")).value(std::uint64_t{0x8001});
    file.value(parts.sectionSize).words({contents, 0, 0, 0, parts.sectionKind, 0, 0, 0});
    file.words(
        {parts.fixups, 48, contents, 1, contents + 1, 2, 0, parts.weakSize, contents + 3, 2});
    file.words({0, 0});
    return file.append({1, 2, 3, 4, 5});
}

TEST(ImageFile, TellsSegmentsSectionsAndFixups) {
    const WrittenBytes file = library({.sectionKind = 9});
    const auto image = emulation::readImageFile(file.view());
    ASSERT_EQ(image.segments.size(), 1U);
    EXPECT_EQ(image.segments[0].name, "__TEXT");
    EXPECT_EQ(image.segments[0].content.size(), 5U);
    EXPECT_TRUE(image.segments[0].readable && image.segments[0].executable);
    EXPECT_FALSE(image.segments[0].writable);
    EXPECT_EQ(image.size(), 0xC000U);
    ASSERT_NE(image.sectionNamed("__text"), nullptr);
    EXPECT_TRUE(image.sectionNamed("__text")->holdsInitialisers);
    EXPECT_EQ(image.sectionNamed("__text")->address, 0x8001U);
    EXPECT_EQ(image.sectionNamed("__data"), nullptr);
    EXPECT_EQ(image.rebaseCode[0], std::byte{1});
    EXPECT_EQ(image.bindCode[1], std::byte{3});
    EXPECT_EQ(image.lazyBindCode[1], std::byte{5});
}

TEST(ImageFile, TakesNamesOfSixteenCharacters) {
    const WrittenBytes file = library({.section = "__sixteen_letter"});
    EXPECT_NE(emulation::readImageFile(file.view()).sectionNamed("__sixteen_letter"), nullptr);
}

std::string refusal(const WrittenBytes& file) {
    try {
        static_cast<void>(emulation::readImageFile(file.view()));
    } catch (const Refusal& refused) {
        return refused.what();
    }
    return "";
}

TEST(ImageFile, RefusesByName) {
    for (const auto& [parts, text] : std::vector<std::pair<Parts, const char*>>{
             {{.magic = 0xBEBAFECA}, "arm64 alone"},
             {{.cpu = 0x01000007}, "arm64 alone"},
             {{.type = 2}, "not a library"},
             {{.sectionKind = 0x13, .section = "__thread_vars"}, "__thread_vars"},
             {{.section = "__objc_classlist"}, "__objc_classlist"},
             {{.fixups = 0x80000034}, "chained fixups"},
             {{.fixups = 0x80000099}, "without classic fixups"},
             {{.weakSize = 4}, "another image may replace"},
             {{.memory = 4}, "smaller"},
             {{.cpuKind = 2}, "arm64 alone"},
             {{.commandSize = 0}, "a load command"},
             {{.commandSize = 200}, "the file ends"},
             {{.memory = ~std::uint64_t{0}}, "64 megabytes"},
             {{.address = ~std::uint64_t{0} - 7}, "64 megabytes"},
             {{.address = 0x8002}, "outside its segment: __text"},
             {{.sectionSize = 0x4000}, "outside its segment: __text"},
             {{.sectionSize = ~std::uint64_t{0}}, "outside its segment: __text"},
             {{.sections = 2}, "the file ends"},
         }) {
        EXPECT_NE(refusal(library(parts)).find(text), std::string::npos) << text;
    }
    EXPECT_EQ(refusal(library({.section = "__objc_selrefs"})), "");
}

TEST(ImageFile, IsReadWithinItsBytesOnly) {
    const WrittenBytes whole = library();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_THROW(static_cast<void>(emulation::readImageFile(whole.view().first(size))), Refusal)
            << size;
    }
}

} // namespace
