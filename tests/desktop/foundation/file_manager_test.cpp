// The file manager's attributes, copies and moves.
#include "desktop/foundation/error_description.hpp"
#include "desktop/foundation/file_manager.hpp"

#include "bindings/foundation/file_manager.hpp"
#include "bindings/foundation/log.hpp"
#include "bindings/objc/pool.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ns::literals;

constexpr id* noError = nullptr;

class FileManager : public testing::Test {
protected:
    static void SetUpTestSuite() {
        desktop::foundation::installFileManager();
        desktop::foundation::installErrorDescriptions();
    }

    [[nodiscard]] ns::String at(const char* name) const {
        return ns::String::fromUtf8((folder.path() / name).string());
    }
    [[nodiscard]] bool set(ns::Dictionary attributes, ns::String path) const {
        return manager.send<"setAttributes:ofItemAtPath:error:", bool>(attributes, path, noError);
    }
    [[nodiscard]] bool move(const char* from, const char* to) const {
        return manager.send<"moveItemAtPath:toPath:error:", bool>(at(from), at(to), noError);
    }

    objc::Pool pool;
    support::TemporaryFolder folder;
    ns::FileManager manager = ns::FileManager::defaultManager();
};

TEST_F(FileManager, TellsAndSetsAttributes) {
    folder.write("a", "");
    const auto attributes = ns::MutableDictionary::make();
    constexpr unsigned long long permissions = 0600;
    attributes.set(ns::Number::from(permissions), ns::file_attributes::posixPermissions());
    attributes.set(ns::Date::withTimeIntervalSince1970(1000),
                   ns::file_attributes::modificationDate());
    attributes.set(ns::Date::withTimeIntervalSince1970(500), ns::file_attributes::creationDate());
    EXPECT_TRUE(set(attributes, at("a")));
    const ns::Dictionary known = manager.attributesOfItem(at("a")).value;
    for (const objc::Object name : attributes.allKeys()) {
        EXPECT_TRUE(known.get(name).isEqual(attributes.get(name))) << ns::description(name).utf8();
    }
    EXPECT_TRUE(known.get(u"NSFileType"_ns).isEqual(u"NSFileTypeRegular"_ns));
}

TEST_F(FileManager, TellsOfWhatIsNotThere) {
    EXPECT_FALSE(set(ns::MutableDictionary::make(), at("gone")));
    const auto [attributes, error] = manager.attributesOfItem(at("gone"));
    EXPECT_FALSE(attributes);
    EXPECT_EQ(error.code(), 260);
}

TEST_F(FileManager, CopiesAndSaysWhyNot) {
    folder.write("a", "bytes");
    EXPECT_FALSE(manager.copyItem(at("a"), at("b")));
    EXPECT_EQ(std::filesystem::file_size(folder.path() / "b"), 5U);
    EXPECT_EQ(manager.copyItem(at("gone"), at("c")).code(), 260);
    const ns::Error exists = manager.copyItem(at("a"), at("b"));
    EXPECT_EQ(exists.code(), 516);
    EXPECT_EQ(exists.localizedDescription().utf8(), "未能完成操作。File exists");
    std::filesystem::create_directory(folder.path() / "folder");
    folder.write("folder/inner", "");
    EXPECT_FALSE(manager.copyItem(at("folder"), at("another")));
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "another/inner"));
}

TEST_F(FileManager, MovesLinksThatLeadNowhere) {
    folder.write("a", "");
    std::filesystem::create_symlink("gone", folder.path() / "link");
    EXPECT_TRUE(move("link", "moved"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "moved"));
    EXPECT_FALSE(move("a", "moved"));
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "a"));
}

} // namespace
