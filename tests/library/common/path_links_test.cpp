// Paths in texts.
#include "library/common/path_links.hpp"

#include <gtest/gtest.h>

namespace wentra {
namespace {

using Links = std::vector<std::u16string>;

TEST(PathLinks, BeginAtAFolderOfTheRootAndEndAtWhiteSpace) {
    EXPECT_EQ(
        pathLinksIn(u"在/var/mobile，和 /etc\u3000/tmp\u2028x/usr/lib /home /Var"),
        (Links{u"filza:///var/mobile，和", u"filza:///etc", u"filza:///tmp", u"filza:///usr/lib"}));
    EXPECT_EQ(pathLinksIn(u"https://a.example/private/x//bin /variable"),
              (Links{u"filza:///private/x//bin", u"filza:///variable"}));
    EXPECT_EQ(pathLinksIn(u"//// /"), Links{});
}

TEST(PathLinks, AreGivenOnceEach) {
    EXPECT_EQ(pathLinksIn(u"/cores /Developer/a /cores\n/sbin /dev /Library /System /Applications"),
              (Links{u"filza:///cores", u"filza:///Developer/a", u"filza:///sbin", u"filza:///dev",
                     u"filza:///Library", u"filza:///System", u"filza:///Applications"}));
}

} // namespace
} // namespace wentra
