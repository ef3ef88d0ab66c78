// What each filter of the movable dialog keeps and shows.
#include "library/analysis/line_filters.hpp"

#include <gtest/gtest.h>

namespace wentra::analysis {
namespace {

constexpr std::u16string_view report = uR"(see https:\/\/a.example "path",
  "path" : "\/usr\/lib\/libobjc",
  "path" : "\/System\/Library\/Thing",  "asi" : {"libsystem_c.dylib":["abort() called"]},
/usr/lib/plain and /System/Library/plain
"name" : "\/private\/preboot\/x",
"name" : "\/private\/var\/containers\/y\/z.dylib",
a1b2
a1
http://b.example "name")";

TEST(LineFilters, KeepAndCleanTheirLines) {
    EXPECT_EQ(filtered(report, urlFilter), u"http://b.example 名称\n\n");
    EXPECT_EQ(filtered(report, libraryFilter),
              u"  路径 : \"/usr/lib/libobjc\"\n\n  路径 : \"/System/Library/Thing\"\n\n"
              u"名称 : \"/private/var/containers/y/z.dylib\"\n\n");
    EXPECT_EQ(filtered(report, dylibFilter), u"  路径 : \"/System/Library/Thing\"\n\n"
                                             u"名称 : \"/private/var/containers/y/z.dylib\"\n\n");
    EXPECT_EQ(filtered(report, errorFilter),
              u"名称 : \"/private/preboot/x\"\n\n名称 : \"/private/var/containers/y/z.dylib\"\n\n");
    EXPECT_EQ(filtered(report, systemFilter), u"  路径 : \"/System/Library/Thing\"  \"asi\" : "
                                              u"{\"libsystem_c.dylib\":[\"abort() called\"]},\n\n")
        << "the abort note stays here";
    EXPECT_EQ(filtered(report, numberFilter), u"a1b2\n");
    EXPECT_EQ(filtered(u"", numberFilter), u"");
}

TEST(LineFilters, CountDigitsOfEveryScript) {
    for (const std::u16string_view kept : {u"12", u"１ ２", u"٣a4", u"𝟎𝟗", u"九1和𞥙"}) {
        EXPECT_EQ(filtered(kept, numberFilter), std::u16string(kept) + u"\n");
    }
    for (const std::u16string_view dropped :
         {u"1", u"一二三", u"½²③Ⅳ", u"1\xD835", u"/:1", u"٪1"}) {
        EXPECT_EQ(filtered(dropped, numberFilter), u"");
    }
}

} // namespace
} // namespace wentra::analysis
