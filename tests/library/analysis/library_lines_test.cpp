// Which lines of a crash report name libraries, how they are cleaned, and whose libraries they are.
#include "library/analysis/library_lines.hpp"

#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace wentra::analysis {
namespace {

LibraryLines linesOf(std::u16string_view text) {
    LibraryLines lines;
    addLibraryLines(text, SystemList::reports, lines);
    return lines;
}

std::u16string joined(const std::vector<std::u16string>& pieces) {
    std::u16string text;
    for (const std::u16string& piece : pieces) {
        EXPECT_TRUE(piece.ends_with(u'\n'));
        text += piece;
    }
    return text;
}

TEST(LibraryLines, AreSortedAndKeepTheirOrder) {
    const LibraryLines lines = linesOf(uR"(Incident
  "path" : "\/var\/jb\/Library\/MobileSubstrate\/DynamicLibraries\/Odd.dylib",
  "path" : "\/usr\/lib\/libobjc.A.dylib",
  "name"   :   "Unheard.framework",
  "asi" : {"libsystem_c.dylib":["abort() called"]},UIKitCore.framework
libsystem_m.dylib)");
    EXPECT_EQ(joined(lines.system), u"  路径 : \"/usr/lib/libobjc.A.dylib\",\n"
                                    u"UIKitCore.framework\nlibsystem_m.dylib\n");
    EXPECT_EQ(joined(lines.others),
              u"  路径 : \"/var/jb/Library/MobileSubstrate/DynamicLibraries/Odd.dylib\",\n"
              u"  名称：\"Unheard.framework\",\n");
}

TEST(LibraryLines, EndAtLineFeedsOnly) {
    EXPECT_EQ(joined(linesOf(u"a.dylib\r\nb\u2028c.dylib").others), u"a.dylib\r\nb\u2028c.dylib\n");
    EXPECT_TRUE(linesOf(u"").others.empty());
}

TEST(LibraryLines, AreGivenOneByOne) {
    const LibraryLines lines{{u"a.dylib\nb.dylib\n", u"d.dylib\n"}, {u"\nc.dylib\n"}};
    EXPECT_EQ(lines.all(), (std::vector<std::u16string_view>{u"a.dylib", u"b.dylib", u"d.dylib",
                                                             u"", u"c.dylib"}));
    EXPECT_TRUE(LibraryLines{}.all().empty());
}

TEST(LibraryLines, AreTheSameInTheBlocksOfALongText) {
    const objc::Pool pool;
    std::u16string text;
    for (int line = 0; line < 5000; ++line) {
        text +=
            line % 3 == 0 ? u"\"path\" : \"\\/usr\\/lib\\/libxpc.dylib\",\n" : u"Odd.framework\n";
    }
    const LibraryLines whole = linesOf(text);
    const LibraryLines inBlocks = libraryLines(ns::String::from(text), SystemList::reports);
    EXPECT_GT(inBlocks.system.size(), 1U);
    EXPECT_TRUE(joined(inBlocks.system) == joined(whole.system));
    EXPECT_TRUE(joined(inBlocks.others) == joined(whole.others));
    EXPECT_EQ(inBlocks.all().size(), 5000U);
    EXPECT_TRUE(libraryLines(nullptr, SystemList::reports).all().empty());
}

TEST(SystemLines, HoldANameAnywhere) {
    for (const std::u16string_view line :
         {u"0x1 libobjc.A.dylib 0x2", u"mylibz.1.dylib", u"libc++.1.dylib", u"TCC.framework",
          u"Odd.dylib libxpc.dylib", u"ab/IDS.framework/x", u"a.b libxpc.dylib.c",
          u"Odd.framework /System/Library/Frameworks/x", u"systemhook.dylib",
          u"/System/Library/Frameworks/Odd.framework",
          u"\"/System/Library/PrivateFrameworks/Odd.framework"}) {
        EXPECT_TRUE(isSystemLine(line, SystemList::toolbox)) << testing::PrintToString(line);
    }
    for (const std::u16string_view line :
         {u"", u".dylib", u".framework", u"libobjc.dylib", u"TCC.dylib", u"libxpc.framework",
          u"LIBXPC.DYLIB", u"/System/Library/Odd.dylib", u"Odd.framework"}) {
        EXPECT_FALSE(isSystemLine(line, SystemList::reports)) << testing::PrintToString(line);
    }
}

TEST(SystemLines, HoldTheirOwnNamesOnly) {
    const std::u16string_view text =
        u"a.b\nx libxpc.dylib TCC.framework\nOdd.dylib\n\n"
        u"Odd.dylib /System/Library/Frameworks/x\n.dylib\nlibxpc.dylib";
    SystemNames names(text, SystemList::reports);
    std::string found;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(u'\n', start), text.size());
        found += names.standIn(start, end) ? 'S' : '-';
        start = end + 1;
    }
    EXPECT_EQ(found, "-S--S-S");
}

TEST(SystemLines, DifferInTwoNames) {
    for (const std::u16string_view line : {u"libdns_services.dylib", u"libsystem_darwin.dylib"}) {
        EXPECT_TRUE(isSystemLine(line, SystemList::reports));
        EXPECT_FALSE(isSystemLine(line, SystemList::toolbox));
    }
}

} // namespace
} // namespace wentra::analysis
