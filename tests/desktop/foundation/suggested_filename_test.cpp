// Names for files that were loaded.
#include "desktop/foundation/suggested_filename.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace {

using desktop::foundation::suggestedFilename;

struct FilenameCase {
    const char* disposition;
    const char* url;
    const char* mimeType;
    const char* name;
};

void expectNames(const std::vector<FilenameCase>& cases) {
    for (const auto& [disposition, url, mimeType, name] : cases) {
        EXPECT_EQ(suggestedFilename(disposition, url, mimeType), name) << disposition << ' ' << url;
    }
}

TEST(SuggestedFilename, IsTheLastPartOfTheUrl) {
    expectNames({
        {"", "https://a.example/b/c.zip", "application/zip", "c.zip"},
        {"", "https://a.example/b/c.zip?d=e/f#g", "", "c.zip"},
        {"", "https://a.example/%E7%85%A7%20b.jpg", "", "照 b.jpg"},
        {"", "https://a.example/b%2Fc.txt", "", "c.txt"},
        {"", "https://a.example/b/", "", "b"},
        {"", "https://a.example/100%", "", "100%"},
    });
}

TEST(SuggestedFilename, IsTheHostOrUnknownWithoutAPath) {
    expectNames({
        {"", "https://a.example/", "text/html", "a.example.html"},
        {"", "https://user@a.example:8080", "", "a.example"},
        {"", "https://a.example/%2e%2e", "", "a.example"},
        {"", "", "", "unknown"},
        {"", "data:,x", "text/plain", "unknown.txt"},
    });
}

TEST(SuggestedFilename, ComesFromTheHeaderFirst) {
    const char* url = "https://a.example/url.bin";
    expectNames({
        {"attachment; filename=\"a b.txt\"", url, "", "a b.txt"},
        {"attachment; filename=a.txt", url, "", "a.txt"},
        {"ATTACHMENT; FILENAME = a.txt ; size=3", url, "", "a.txt"},
        {"attachment; filename=\"a;b\\\".txt\"", url, "", "a;b\".txt"},
        {"attachment; filename=a.txt; filename*=UTF-8''%e6%96%87.txt", url, "", "文.txt"},
        {"attachment; filename*=utf-8'en'x%20y.txt; filename=a.txt", url, "", "x y.txt"},
        {"attachment; filename*=shift_jis''%93; filename=a.txt", url, "", "a.txt"},
        {"attachment; filename*=UTF-8''%FF; filename=a.txt", url, "", "a.txt"},
        {"attachment; filename=\"😀.png\"", url, "", "😀.png"},
        {"attachment", url, "", "url.bin"},
        {"attachment; filename=\"\"", url, "", "url.bin"},
        {"attachment; filename", url, "", "url.bin"},
        {"attachment; filename=\"", url, "", "url.bin"},
        {"attachment; filename*=''", url, "", "url.bin"},
        {";;;=;\"", url, "", "url.bin"},
    });
}

TEST(SuggestedFilename, IsNeverAPath) {
    const char* url = "https://a.example/url.bin";
    expectNames({
        {"attachment; filename=\"../../etc/passwd\"", url, "", "passwd"},
        {"attachment; filename=\"..\"", url, "", "url.bin"},
        {"attachment; filename=\".\"", url, "", "url.bin"},
        {"attachment; filename=\"a/\"", url, "", "url.bin"},
        {"attachment; filename=\"..\\\\..\\\\a.txt\"", url, "", "a.txt"},
        {"attachment; filename*=UTF-8''..%2F..%2Fa.txt", url, "", "a.txt"},
        {"attachment; filename*=UTF-8''a%00%0A.txt", url, "", "a.txt"},
        {"attachment; filename=\"  \"", url, "", "url.bin"},
    });
}

TEST(SuggestedFilename, GetsAnExtensionWhereItHasNone) {
    expectNames({
        {"", "https://a.example/page", "text/html", "page.html"},
        {"", "https://a.example/page.php", "text/html", "page.php"},
        {"", "https://a.example/page", "TEXT/HTML", "page.html"},
        {"", "https://a.example/page", "application/x-unknown", "page"},
        {"", "https://a.example/.hidden", "text/plain", ".hidden.txt"},
    });
}

TEST(SuggestedFilename, FitsIntoAFileSystem) {
    std::string url = "https://a.example/";
    for (int i = 0; i < 200; ++i) {
        url += "%E6%96%87";
    }
    const std::string name = suggestedFilename("", url + ".txt", "");
    EXPECT_LE(name.size(), 255U);
    EXPECT_TRUE(name.ends_with("文.txt")) << name;
    EXPECT_EQ(suggestedFilename("", "https://a.example/a." + std::string(300, 'b'), "").size(),
              255U);
}

} // namespace
