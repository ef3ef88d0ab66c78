// Copying, moving and removing on real files.
#include "library/files/operations/item_changes.hpp"

#include "bindings/darwin/file_status.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <future>
#include <unistd.h>

namespace {

using namespace wentra::files;
namespace fs = std::filesystem;

class ItemChanges : public testing::Test {
protected:
    std::string at(const std::string& name) const { return folder.path() / name; }
    std::string read(const std::string& name) const {
        std::ifstream file(at(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// The names in the folder, what is left over included.
    std::set<std::string> names() const {
        std::set<std::string> found;
        for (const auto& entry : fs::directory_iterator(folder.path())) {
            found.insert(entry.path().filename());
        }
        return found;
    }
    struct stat status(const std::string& name) const {
        struct stat found {};
        EXPECT_EQ(lstat(at(name).c_str(), &found), 0);
        return found;
    }
    void date(const std::string& name, long seconds) const {
        const timespec times[2]{{seconds, 0}, {seconds, 123456789}};
        ASSERT_EQ(utimensat(AT_FDCWD, at(name).c_str(), times, AT_SYMLINK_NOFOLLOW), 0);
    }

    support::TemporaryFolder folder;
};

TEST_F(ItemChanges, KeepsDatesPermissionsAndLinksOfATree) {
    folder.write("tree/inner/a.txt", "a");
    fs::create_symlink("nowhere", at("tree/dangling"));
    fs::create_symlink("..", at("tree/loop"));
    chmod(at("tree/inner/a.txt").c_str(), 0640);
    chmod(at("tree/inner").c_str(), 0751);
    for (const char* name : {"tree/inner/a.txt", "tree/inner", "tree/dangling", "tree"}) {
        date(name, 1000000000);
    }
    ASSERT_EQ(copyItem(at("tree"), at("copy")), 0);
    EXPECT_EQ(read("copy/inner/a.txt"), "a");
    EXPECT_EQ(fs::read_symlink(at("copy/dangling")), "nowhere");
    EXPECT_EQ(fs::read_symlink(at("copy/loop")), "..");
    EXPECT_EQ(status("copy/inner/a.txt").st_mode & 07777U, 0640U);
    EXPECT_EQ(status("copy/inner").st_mode & 07777U, 0751U);
    for (const char* name : {"copy/inner/a.txt", "copy/inner", "copy/dangling", "copy"}) {
        EXPECT_EQ(darwin::modificationTime(status(name)).tv_sec, 1000000000) << name;
        EXPECT_EQ(darwin::modificationTime(status(name)).tv_nsec, 123456789) << name;
    }
}

TEST_F(ItemChanges, CopiesAndMovesOnlyWhereNothingIs) {
    folder.write("a", "a");
    folder.write("b", "b");
    fs::create_symlink("nowhere", at("link"));
    EXPECT_EQ(copyItem(at("a"), at("b")), EEXIST);
    EXPECT_EQ(moveItem(at("a"), at("b")), EEXIST);
    EXPECT_EQ(moveItem(at("a"), at("link")), EEXIST);
    EXPECT_EQ(moveItem(at("a"), at("a")), EEXIST);
    EXPECT_EQ(read("b"), "b");
    EXPECT_EQ(moveItem(at("link"), at("moved")), 0);
    EXPECT_EQ(moveItem(at("a"), at("c")), 0);
    EXPECT_EQ(names(), (std::set<std::string>{"b", "c", "moved"}));
}

TEST_F(ItemChanges, ReplacesFilesAndFoldersByOneAnother) {
    for (const bool copies : {true, false}) {
        for (const bool sourceIsFolder : {true, false}) {
            for (const bool targetIsFolder : {true, false}) {
                folder.write(sourceIsFolder ? "new/in" : "new", "new");
                folder.write(targetIsFolder ? "old/in/deep" : "old", "old");
                ASSERT_EQ((copies ? replaceByCopy : replaceByMove)(at("new"), at("old")), 0);
                EXPECT_EQ(read(sourceIsFolder ? "old/in" : "old"), "new");
                EXPECT_EQ(names(), (copies ? std::set<std::string>{"new", "old"}
                                           : std::set<std::string>{"old"}));
                fs::remove_all(at("new"));
                fs::remove_all(at("old"));
            }
        }
    }
}

TEST_F(ItemChanges, ReplaceWhatAnotherCopyPutThereMeanwhile) {
    folder.write("file", "whole");
    folder.write("tree/inner", "whole");
    for (int round = 0; round != 100; ++round) {
        for (const char* source : {"file", "tree"}) {
            const auto copy = [&] { return replaceByCopy(at(source), at("copy")); };
            auto other = std::async(std::launch::async, copy);
            EXPECT_EQ(copy(), 0);
            EXPECT_EQ(other.get(), 0);
            EXPECT_EQ(removeItem(at("copy")), 0);
        }
    }
    EXPECT_EQ(names(), (std::set<std::string>{"file", "tree"}));
}

TEST_F(ItemChanges, LeavesAloneWhatWouldReplaceItself) {
    folder.write("a", "a");
    fs::create_symlink(".", at("here"));
    for (const char* other : {"a", "./a", "here/a", "here/here/a"}) {
        EXPECT_EQ(replaceByCopy(at("a"), at(other)), 0) << other;
        EXPECT_EQ(replaceByMove(at("a"), at(other)), 0) << other;
        EXPECT_EQ(read("a"), "a") << other;
    }
}

TEST_F(ItemChanges, MovesOneNameOfAFileOverAnother) {
    folder.write("a", "a");
    fs::create_hard_link(at("a"), at("b"));
    EXPECT_EQ(replaceByMove(at("a"), at("b")), 0);
    EXPECT_EQ(names(), std::set<std::string>{"b"});
    EXPECT_EQ(read("b"), "a");
}

TEST_F(ItemChanges, RefusesFoldersThatLieInOneAnother) {
    folder.write("tree/tree/tree/leaf", "leaf");
    fs::create_symlink("tree/tree", at("way"));
    for (const auto change : {&copyItem, &replaceByCopy, &moveItem, &replaceByMove}) {
        EXPECT_EQ(change(at("tree"), at("tree/tree")), EINVAL);
        EXPECT_EQ(change(at("tree"), at("way/new")), EINVAL);
        EXPECT_EQ(change(at("tree/tree/tree"), at("tree/tree")), EINVAL);
        EXPECT_EQ(change(at("tree/."), at("new")), EINVAL);
        EXPECT_EQ(change("/", at("new")), EINVAL);
        EXPECT_EQ(read("tree/tree/tree/leaf"), "leaf");
    }
    EXPECT_EQ(copyItem(at("way"), at("tree/tree/link")), 0); // the link does not lie in itself
}

TEST_F(ItemChanges, KeepsTheDestinationOfASourceThatIsGone) {
    folder.write("old/in", "old");
    for (const auto change : {&copyItem, &replaceByCopy, &moveItem, &replaceByMove}) {
        EXPECT_EQ(change(at("gone"), at("old")), ENOENT);
        EXPECT_EQ(change("", at("old")), ENOENT);
    }
    EXPECT_EQ(names(), std::set<std::string>{"old"});
    EXPECT_EQ(read("old/in"), "old");
}

TEST_F(ItemChanges, CopiesNoHalfOfATreeWithAPipeInIt) {
    folder.write("tree/a", "a");
    ASSERT_EQ(mkfifo(at("tree/pipe").c_str(), 0600), 0);
    folder.write("old", "old");
    EXPECT_EQ(replaceByCopy(at("tree"), at("old")), ENOTSUP);
    EXPECT_EQ(names(), (std::set<std::string>{"old", "tree"}));
    EXPECT_EQ(read("old"), "old");
}

TEST_F(ItemChanges, RemovesTreesAndNeverFollowsLinks) {
    folder.write("kept/a", "a");
    folder.write("tree/b", "b");
    fs::create_directory_symlink(at("kept"), at("tree/link"));
    fs::create_directory_symlink(at("kept"), at("link"));
    EXPECT_EQ(removeItem(at("link")), 0);
    EXPECT_EQ(removeItem(at("tree")), 0);
    EXPECT_EQ(removeItem(at("tree")), ENOENT);
    EXPECT_EQ(names(), std::set<std::string>{"kept"});
    EXPECT_EQ(read("kept/a"), "a");
}

TEST_F(ItemChanges, MakesWithoutTouchingWhatIsThere) {
    folder.write("a", "a");
    EXPECT_EQ(makeFile(at("a")), EEXIST);
    EXPECT_EQ(makeFile(at("gone/b")), ENOENT);
    EXPECT_NE(makeFile(at("")), 0);
    EXPECT_EQ(makeFile(at("b")), 0);
    EXPECT_EQ(makeFolder(at("c/d/e")), 0);
    EXPECT_EQ(makeFolder(at("c/d")), EEXIST);
    EXPECT_EQ(makeFolder(at("a/x")), ENOTDIR);
    EXPECT_EQ(read("a"), "a");
    EXPECT_EQ(names(), (std::set<std::string>{"a", "b", "c"}));
    EXPECT_TRUE(fs::is_directory(at("c/d/e")));
}

TEST_F(ItemChanges, TakesNamesOfAnyBytes) {
    const std::string longest(255, 'x');
    for (const std::string& name :
         {std::string("-rf"), std::string("\xFF\xFE"), std::string("a\nb"),
          std::string("\xF0\x9F\x93\x81 مرحبا"), longest}) {
        folder.write("source", "s");
        folder.write(name, "old");
        EXPECT_EQ(replaceByCopy(at("source"), at(name)), 0);
        EXPECT_EQ(read(name), "s");
        EXPECT_EQ(removeItem(at(name)), 0);
        EXPECT_EQ(names(), std::set<std::string>{"source"});
    }
    EXPECT_EQ(copyItem(at("source"), at(longest + "x")), ENAMETOOLONG);
    EXPECT_EQ(names(), std::set<std::string>{"source"});
}

TEST_F(ItemChanges, MovesToAnotherVolumeAsAWhole) {
    const fs::path other = fs::path("/dev/shm") / folder.path().filename();
    std::error_code missing;
    fs::create_directory(other, missing);
    if (struct stat there{};
        missing || stat(other.c_str(), &there) != 0 || there.st_dev == status("").st_dev) {
        GTEST_SKIP() << "there is only one volume";
    }
    folder.write("tree/a", "a");
    folder.write("b", "b");
    EXPECT_EQ(moveItem(at("tree"), other / "tree"), 0);
    EXPECT_TRUE(fs::exists(other / "tree/a"));
    EXPECT_EQ(replaceByMove(at("b"), other / "tree"), 0);
    EXPECT_TRUE(fs::is_regular_file(other / "tree"));
    EXPECT_EQ(names(), std::set<std::string>());
    fs::remove_all(other);
}

} // namespace
