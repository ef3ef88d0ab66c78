// Names, kinds, sizes, orders and duplicates.
#include "library/files/duplicates.hpp"
#include "library/files/file_kind.hpp"
#include "library/files/file_path.hpp"
#include "library/files/file_texts.hpp"
#include "library/files/listing.hpp"
#include "library/files/operations/numbered_path.hpp"
#include "library/files/operations/passing_name.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

using namespace wentra::files;

TEST(FilePath, LeadsBackToEveryName) {
    for (const std::string& path :
         {std::string("/a/b.txt"), std::string("你好 📁"), std::string("\xFF\xFE"),
          std::string("\xED\xB2\x80"), std::string("a\xE4\xBD"), std::string("-\n")}) {
        EXPECT_EQ(pathOfText(textOfPath(path)), path);
    }
    EXPECT_EQ(textOfPath("\xFF"), u"\xDCFF");
    EXPECT_EQ(pathOfText(std::u16string(u"a\0b", 3)), "");
}

TEST(FilePath, HasTheParts) {
    struct Case {
        const char* path;
        const char* name;
        const char* parent;
        const char* extension;
        const char* base;
    };
    for (const Case& each :
         {Case{"/a/c.TXT", "c.TXT", "/a", "TXT", "c"}, Case{"/a", "a", "/", "", "a"},
          Case{"/", "/", "/", "", "/"}, Case{"/a/b/", "b", "/a", "", "b"},
          Case{"/.bashrc", ".bashrc", "/", "", ".bashrc"}, Case{"/a.", "a.", "/", "", "a."},
          Case{"a.tar.gz", "a.tar.gz", "", "gz", "a.tar"}, Case{"", "", "", "", ""}}) {
        EXPECT_EQ(lastComponent(each.path), each.name);
        EXPECT_EQ(parentOf(each.path), each.parent);
        EXPECT_EQ(extensionOf(each.path), each.extension);
        EXPECT_EQ(baseOf(each.path), each.base);
    }
    EXPECT_EQ(joined("/a/", "b"), "/a/b");
    EXPECT_EQ(joined("/", "b"), "/b");
    EXPECT_EQ(joined("", "b"), "");
}

TEST(FileKind, HasAnIconForTheUsersExtensions) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {"a", "weizhi_icon.png"},        {".rc", "weizhi_icon.png"},   {"a.JPG", "image_icon.png"},
        {"a.bmp", "image_icon.png"},     {"a.dylib", "text_icon.png"}, {"a.ips", "text_icon.png"},
        {"a.html", "plist_icon.png"},    {"a.RMV", "video_icon.png"},  {"a.rmvb", ""},
        {"a.txt", "txt_icon.png"},       {"a.rar", "zip_icon.png"},    {"a.deb", "deb_icon.png"},
        {"a.ipa", "ipa_icon.png"},       {"a.e4a", "music_icon.png"},  {"a.pdf", "pdf_icon.png"},
        {"a.strings", "plist_icon.png"}, {"a.mov", "video_icon.png"},  {"a.amr", "music_icon.png"}};
    for (const auto& [name, icon] : rows) {
        EXPECT_EQ(iconOf(name), icon) << name;
    }
    EXPECT_TRUE(isImage("a.Jpeg"));
    EXPECT_FALSE(isImage("a.gif"));
    EXPECT_TRUE(isText("/x/a.h"));
    EXPECT_FALSE(isText("/x.txt/a"));
}

TEST(FileTexts, WriteSizesAndPermissions) {
    constexpr double kilo = 1024;
    EXPECT_EQ(sizeText(0), "0.00 B");
    EXPECT_EQ(sizeText(1023), "1023.00 B");
    EXPECT_EQ(sizeText(1024), "1.00 KB");
    EXPECT_EQ(sizeText(1536 * kilo), "1.50 MB");
    EXPECT_EQ(sizeText(kilo * kilo * kilo * kilo), "1024.00 GB");
    EXPECT_FALSE(sizeText(1e308).empty());
    EXPECT_EQ(permissionsText(0644), "0644");
    EXPECT_EQ(permissionsText(04755), "4755");
    EXPECT_EQ(permissionsText(0), "0000");
}

class Listing : public testing::Test {
protected:
    void file(const std::string& name, std::size_t size, timespec date) {
        const std::string path = folder.write(name, std::string(size, 'x'));
        const timespec times[2]{date, date};
        utimensat(AT_FDCWD, path.c_str(), times, 0);
    }
    std::string at(const std::string& name) { return folder.path() / name; }
    support::TemporaryFolder folder;
};

TEST_F(Listing, PutsTheNewestFirst) {
    file("a", 1, {10, 0});
    file(".b", 1, {30, 0});
    file("c", 1, {20, 0});
    file("d", 1, {20, 1});
    EXPECT_EQ(listing(folder.path()), (Names{".b", "d", "c", "a"}));
    EXPECT_EQ(listing(at("gone")), Names{});
    EXPECT_EQ(listing(at("a")), Names{});
    EXPECT_EQ(listing(""), Names{});
}

TEST_F(Listing, LeavesOutWhatAChangeIsMaking) {
    const std::string copied = folder.write("copied", "1");
    std::string passing;
    {
        const PassingName name;
        passing = std::string(lastComponent(name.beside(copied)));
        folder.write(passing, "1");
        EXPECT_EQ(listing(folder.path()), Names{"copied"});
        EXPECT_EQ(groupedBySize(folder.path()).at(0).paths, Names{copied});
    }
    EXPECT_EQ(listing(folder.path()).size(), 2U) << "what is left over can be seen and removed";
}

TEST_F(Listing, SortsNamesAndKeepsTheUnknown) {
    file("a", 5, {10, 0});
    file("b", 5, {30, 0});
    file("c", 1, {20, 0});
    const Names names{"a", "b", "c", "gone"};
    EXPECT_EQ(sortedByDate(names, folder.path(), Order::ascending), (Names{"gone", "a", "c", "b"}));
    EXPECT_EQ(sortedByDate(names, folder.path(), Order::descending),
              (Names{"b", "c", "a", "gone"}));
    const Names up = sortedBySize(names, folder.path(), Order::ascending);
    EXPECT_EQ(up, (Names{"gone", "c", "b", "a"}));
    const Names down = sortedBySize(up, folder.path(), Order::descending);
    EXPECT_EQ(down, Names(up.rbegin(), up.rend()));
}

TEST_F(Listing, CountsCopiesUp) {
    EXPECT_EQ(numberedPath("/x/a.txt", at("a.txt")), at("a.txt"));
    file("a.txt", 1, {1, 0});
    file("a-1.txt", 1, {1, 0});
    EXPECT_EQ(numberedPath("/x/a.txt", at("a.txt")), at("a-2.txt"));
    file("a", 1, {1, 0});
    EXPECT_EQ(numberedPath("/x/a", at("a")), at("a-1."));
    file("a-1.", 1, {1, 0});
    EXPECT_EQ(numberedPath("/x/a", at("a")), at("a-2."));
}

TEST_F(Listing, GroupsFilesBySize) {
    file("one", 10, {1, 0});
    file("deep/er/.two", 10, {1, 0});
    file("three", 11, {1, 0});
    std::filesystem::create_symlink("one", at("link"));
    std::filesystem::create_directory_symlink("deep", at("again"));
    std::filesystem::create_directory_symlink("..", at("deep/loop"));
    mkfifo(at("pipe").c_str(), 0600);
    const auto groups = groupedBySize(folder.path());
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].size, 10U);
    EXPECT_EQ(groups[0].paths.size(), 2U);
    EXPECT_EQ(groups[1].paths, std::vector{at("three")});
    EXPECT_EQ(groupedBySize(at("again")).at(0).paths.size(),
              1U); // the folder itself may be a link
    EXPECT_TRUE(groupedBySize(at("gone")).empty());
}

TEST(Duplicates, KeepTheFirstOfEqualNames) {
    const std::vector<std::string> paths{"/x/ab.txt", "/cd.txt", "/long/e"};
    EXPECT_EQ(keeper(paths, Keeps::longestName), "/x/ab.txt");
    EXPECT_EQ(keeper(paths, Keeps::shortestName), "/long/e");
    EXPECT_EQ(keeper({"/你好", "/abc"}, Keeps::longestName), "/abc"); // units, not bytes
}

TEST(Duplicates, AreReportedByGroups) {
    EXPECT_EQ(duplicateReport({{10, {"/a", "/b"}}, {3, {"/c", "/d", "/e"}}}),
              u"找到5个重复文件。\n\n文件组1 (大小：10 字节):\n/a\n/b\n\n"
              u"\n文件组2 (大小：3 字节):\n/c\n/d\n/e\n\n");
}

} // namespace
