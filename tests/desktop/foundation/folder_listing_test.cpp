// URLs of what a folder holds, and what they tell of the files.
#include "desktop/foundation/folder_listing.hpp"

#include "bindings/foundation/file_manager.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/file_dates.hpp"
#include "desktop/foundation/url.hpp"
#include "desktop/foundation/url_resources.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace desktop::foundation {
namespace {

using namespace ns::literals;
namespace fs = std::filesystem;

class FolderListing : public testing::Test {
protected:
    static void SetUpTestSuite() {
        installUrls();
        installFolderListing();
        installUrlResources();
    }

    [[nodiscard]] ns::Url at(const std::string& name) const {
        return urlWithText(fileUrlText((folder.path() / name).string()));
    }
    [[nodiscard]] ns::Result<ns::ArrayOf<ns::Url>> list(const std::string& name,
                                                        unsigned long options) const {
        return ns::FileManager::defaultManager().contentsOfDirectory(
            at(name), nullptr, ns::DirectoryEnumerationOptions{options});
    }
    /// What follows the folder's own URL in each text.
    [[nodiscard]] std::set<std::string> listed(unsigned long options) const {
        std::set<std::string> names;
        const std::size_t start = at("").absoluteString().utf8().size();
        for (const ns::Url url : list("", options).value) {
            names.insert(url.absoluteString().utf8().substr(start));
        }
        return names;
    }

    objc::Pool pool;
    support::TemporaryFolder folder;
};

using Names = std::set<std::string>;
constexpr unsigned long skippingHidden = 4;

TEST_F(FolderListing, KnowsFoldersAndHiddenFiles) {
    for (const char* name : {"a b%20#?;.ips", ".hidden", "日志.txt", "\xFF.ips"}) {
        folder.write(name, "");
    }
    fs::create_directories(folder.path() / ".folder");
    fs::create_directories(folder.path() / "folder.ips");
    fs::create_directory_symlink(folder.path() / "folder.ips", folder.path() / "link");
    const Names seen{"a%20b%2520%23%3F%3B.ips", "%E6%97%A5%E5%BF%97.txt", "folder.ips/", "link"};
    Names all = seen;
    all.insert({".hidden", ".folder/"});
    EXPECT_EQ(listed(skippingHidden), seen);
    EXPECT_EQ(listed(0), all);
}

TEST_F(FolderListing, NamesTheFilesThatAreThere) {
    folder.write("a b%20#?;日.ips", "");
    const ns::Url url = list("", 0).value.first();
    EXPECT_EQ(url.path().utf8(), (folder.path() / "a b%20#?;日.ips").string());
    EXPECT_EQ(url.lastPathComponent().utf8(), "a b%20#?;日.ips");
}

TEST_F(FolderListing, TellsWhyThereIsNone) {
    constexpr long noSuchFile = 260;
    const auto [urls, error] = list("gone", 0);
    EXPECT_FALSE(urls);
    EXPECT_EQ((error.send<"code", long>()), noSuchFile);
    const auto elsewhere = urlWithText("http://a.example" + folder.path().string());
    EXPECT_TRUE(
        ns::FileManager::defaultManager().contentsOfDirectory(elsewhere, nullptr, {}).error);
    EXPECT_TRUE(elsewhere.resourceValues(nullptr).error);
    const auto nothing =
        ns::FileManager::defaultManager().contentsOfDirectory(nullptr, nullptr, {});
    EXPECT_FALSE(nothing.value);
    EXPECT_TRUE(nothing.error);
}

TEST_F(FolderListing, GivesTheDateWhenItIsAskedFor) {
    folder.write("a", "");
    setCreationDate((folder.path() / "a").string(), 500);
    const auto keys = ns::MutableArray::make();
    EXPECT_EQ((at("a").resourceValues(keys.assume<ns::ArrayOf<ns::String>>()).value.count()), 0U);
    keys.add(ns::url_resources::fileProtection());
    keys.add(ns::url_resources::creationDate());
    const auto known = at("a").resourceValues(keys.assume<ns::ArrayOf<ns::String>>()).value;
    EXPECT_EQ(known.count(), 1U);
    const auto date = known.get(ns::url_resources::creationDate()).as<ns::Date>();
    EXPECT_EQ(date.timeIntervalSince1970(), 500);
    EXPECT_FALSE(at("gone").resourceValues(nullptr).value);
    EXPECT_TRUE(at("gone").resourceValues(nullptr).error);
}

TEST_F(FolderListing, TellsFoldersByTheirText) {
    for (const auto& [text, isFolder] :
         {std::pair{u"file:///a/"_ns, true}, std::pair{u"file:///a"_ns, false},
          std::pair{u"file:///"_ns, true}, std::pair{u"https://a.example/b/?c"_ns, true},
          std::pair{u"https://a.example/b?c/"_ns, false}, std::pair{u"file:///a#/"_ns, false}}) {
        EXPECT_EQ(ns::Url::withString(text).hasDirectoryPath(), isFolder) << text.utf8();
    }
}

} // namespace
} // namespace desktop::foundation
