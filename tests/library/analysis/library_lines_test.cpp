// Which lines of a crash report name libraries, how they are cleaned, and whose libraries they are.
#include "library/analysis/library_lines.hpp"

#include <gtest/gtest.h>

namespace wentra::analysis {
namespace {

using LineTexts = std::vector<std::u16string>;

TEST(LibraryLines, AreSortedAndKeepTheirOrder) {
    const LibraryLines lines = libraryLines(uR"(Incident
  "path" : "\/var\/jb\/Library\/MobileSubstrate\/DynamicLibraries\/Odd.dylib",
  "path" : "\/usr\/lib\/libobjc.A.dylib",
  "name"   :   "Unheard.framework",
  "asi" : {"libsystem_c.dylib":["abort() called"]},UIKitCore.framework
libsystem_m.dylib)",
                                            SystemList::reports);
    EXPECT_EQ(lines.system, (LineTexts{u"  路径 : \"/usr/lib/libobjc.A.dylib\",",
                                       u"UIKitCore.framework", u"libsystem_m.dylib"}));
    EXPECT_EQ(
        lines.others,
        (LineTexts{u"  路径 : \"/var/jb/Library/MobileSubstrate/DynamicLibraries/Odd.dylib\",",
                   u"  名称：\"Unheard.framework\","}));
}

TEST(LibraryLines, EndAtLineFeedsOnly) {
    EXPECT_EQ(libraryLines(u"a.dylib\r\nb\u2028c.dylib", SystemList::reports).others,
              (LineTexts{u"a.dylib\r", u"b\u2028c.dylib"}));
    EXPECT_TRUE(libraryLines(u"", SystemList::reports).others.empty());
}

TEST(SystemLines, HoldANameAnywhere) {
    for (const std::u16string_view line :
         {u"0x1 libobjc.A.dylib 0x2", u"mylibz.1.dylib", u"libc++.1.dylib", u"TCC.framework",
          u"Odd.dylib libxpc.dylib", u"ab/IDS.framework/x", u"systemhook.dylib",
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

TEST(SystemLines, DifferInTwoNames) {
    for (const std::u16string_view line : {u"libdns_services.dylib", u"libsystem_darwin.dylib"}) {
        EXPECT_TRUE(isSystemLine(line, SystemList::reports));
        EXPECT_FALSE(isSystemLine(line, SystemList::toolbox));
    }
}

} // namespace
} // namespace wentra::analysis
