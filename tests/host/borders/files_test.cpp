// Files and texts by the C library, whose numbers and structures differ between the systems.
#include "tests/host/borders/host_with_borders.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace {

using tests::HostWithBorders;
using tests::Json;
namespace fs = std::filesystem;

class Files : public testing::Test {
protected:
    Json asked(const std::string& selector, const std::string& name) {
        return host.message(clerk, selector, {(folder.path() / name).string()});
    }

    support::TemporaryFolder folder;
    HostWithBorders host;
    Json clerk = host.message({{"class", "Clerk"}}, "new");
};

TEST_F(Files, TellTheirStatusOnEveryWay) {
    fs::permissions(folder.write("file", "five5"), fs::perms(0604));
    fs::create_symlink("file", folder.path() / "link");
    for (const auto& [selector, name, status] :
         std::vector<std::array<const char*, 3>>{{"statusOf:", "file", "100604 1 5"},
                                                 {"statusOf:", "link", "100604 1 5"},
                                                 {"statusOfLink:", "link", "120777 1 4"},
                                                 {"statusOfOpen:", "link", "100604 1 5"},
                                                 {"statusInFolder:", "link", "120777 1 4"},
                                                 {"statusInFolder:", "file", "100604 1 5"}}) {
        EXPECT_EQ(asked(selector, name), status) << selector << name;
    }
    EXPECT_EQ(asked("statusOf:", "nothing"), nullptr);
}

TEST_F(Files, AreListedWithTheirKinds) {
    folder.write("folder/名", "");
    folder.write("file", "");
    EXPECT_EQ(asked("kindsIn:", ""), "..:4 .:4 file:8 folder:4 ");
    EXPECT_EQ(asked("kindsIn:", "folder"), "..:4 .:4 名:8 ");
    EXPECT_EQ(asked("readsTwice:", ""), true);
}

TEST_F(Files, AreMadeWithTheirPermissions) {
    EXPECT_EQ(asked("make:", "new"), "");
    EXPECT_EQ(fs::status(folder.path() / "new").permissions(), fs::perms(0640));
    EXPECT_EQ(asked("make:", "new"), "EEXIST");
}

TEST_F(Files, TellWhyNotByThePhonesNumbers) {
    folder.write("outer/inner/file", "");
    const std::string outer = folder.path() / "outer";
    // A folder and one within it cannot change places.
    EXPECT_EQ(host.message(clerk, "swap:with:", {outer, outer + "/inner"}), "ENOTSUP");
}

TEST_F(Files, AreWrittenOfInAnyNumberOfArguments) {
    EXPECT_EQ(host.message(clerk, "said"), "1two3 4.255.5 678 910-11");
}

} // namespace
