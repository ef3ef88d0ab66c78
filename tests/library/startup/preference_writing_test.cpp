// One value written back: the other entries stay, whatever form the file had.
#include "library/startup/preference_writing.hpp"

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/deviceroot/deviceroot.hpp"
#include "desktop/foundation/dictionary_files.hpp"
#include "library/startup/preferences.hpp"
#include "library/startup/root_path.hpp"
#include "tests/library/startup/property_list/property_list_writer.hpp"
#include "tests/library/startup/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <iterator>

namespace wentra::startup {
namespace {

using namespace ns::literals;

class PreferenceWriting : public testing::Test {
protected:
    PreferenceWriting() {
        std::filesystem::create_directories(folder());
        deviceroot_set(root_.path().c_str());
    }
    ~PreferenceWriting() override { deviceroot_set(nullptr); }

    [[nodiscard]] std::filesystem::path folder() const {
        return root_.path() / "var/mobile/Library/Preferences";
    }
    [[nodiscard]] std::filesystem::path file() const {
        return folder() / "cn.zerk.hovtanprefs.plist";
    }
    void write(const std::string& bytes) const { std::ofstream(file(), std::ios::binary) << bytes; }
    [[nodiscard]] std::string bytes() const {
        std::ifstream stream(file(), std::ios::binary);
        return {std::istreambuf_iterator(stream), {}};
    }

private:
    objc::Pool pool_;
    TemporaryFolder root_;
};

TEST_F(PreferenceWriting, ChangesOneEntryOfEitherForm) {
    const WrittenEntries entries{
        {"kqwzgs", true}, {"百度id", std::string("某人")}, {"kqxydx", 2.5}};
    for (const std::string& before : {xmlPropertyList(entries), binaryPropertyList(entries)}) {
        write(before);
        EXPECT_TRUE(storePreference(u"开启文字复制"_ns, ns::Number::from(true)));
        EXPECT_TRUE(storePreference(u"Host过滤屏蔽"_ns, u"a,\n<b> & c,"_ns));
        EXPECT_TRUE(storePreference(u"kqxydx"_ns, nullptr));
        const Preferences after = Preferences::read();
        EXPECT_TRUE(after.on(keys.recolour));
        EXPECT_TRUE(after.on(keys.copyOnLongPress));
        EXPECT_EQ(after.text(keys.blockedHosts[0]), u"a,\n<b> & c,");
        EXPECT_EQ(after.text("百度id"), u"某人");
        EXPECT_EQ(after.number(keys.globalFontSizeIncrease), 0);
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder()), {}), 1)
        << "something was left beside the file";
}

TEST_F(PreferenceWriting, MakesAMissingFileAndLeavesAForeignOneAlone) {
    EXPECT_TRUE(storePreference(u"kqwzgs"_ns, ns::Number::from(true)));
    EXPECT_TRUE(Preferences::read().on(keys.recolour));

    const std::string foreign = "no property list <";
    write(foreign);
    EXPECT_FALSE(storePreference(u"kqwzgs"_ns, ns::Number::from(true)));
    EXPECT_EQ(bytes(), foreign);
}

TEST_F(PreferenceWriting, AFailureIsToldAndChangesNothing) {
    std::filesystem::remove_all(folder());
    EXPECT_FALSE(storePreference(u"kqwzgs"_ns, ns::Number::from(true)));
    std::filesystem::create_directories(file()); // a folder in the file's place
    EXPECT_FALSE(storePreference(u"kqwzgs"_ns, ns::Number::from(true)));
    EXPECT_TRUE(std::filesystem::is_directory(file()));
}

TEST_F(PreferenceWriting, ReplacesEverythingButAForeignFile) {
    EXPECT_EQ(storedPreferences().count(), 0U);
    const auto entries = ns::MutableDictionary::make();
    entries.set(u"text"_ns, u"百度id"_ns);
    EXPECT_TRUE(storePreferences(entries)) << "a missing file is made";
    EXPECT_EQ(Preferences::read().text("百度id"), u"text");

    write(binaryPropertyList({{"kqwzgs", true}, {"unknown", 7.5}}));
    const ns::MutableDictionary stored = storedPreferences();
    EXPECT_EQ(stored.count(), 2U);
    EXPECT_TRUE(storePreferences(entries));
    EXPECT_FALSE(Preferences::read().on(keys.recolour));
    EXPECT_TRUE(storePreferences(stored));
    EXPECT_TRUE(Preferences::read().on(keys.recolour));
    EXPECT_EQ(Preferences::read().number("unknown"), 7.5);

    write("somebody's");
    EXPECT_FALSE(storePreferences(entries));
    EXPECT_EQ(storedPreferences().count(), 0U);
    EXPECT_FALSE(storePreferences(nullptr));
    EXPECT_EQ(bytes(), "somebody's");
}

TEST_F(PreferenceWriting, FoundationReadsBothFormsByFileToo) {
    desktop::foundation::installDictionaryFiles();
    const WrittenEntries entries{{"键", std::string("值")}};
    const auto path = ns::String::fromUtf8(preferencePath());
    for (const std::string& written : {xmlPropertyList(entries), binaryPropertyList(entries)}) {
        write(written);
        const auto read = ns::Dictionary::withContentsOfFile(path);
        EXPECT_EQ(read.get(u"键"_ns).as<ns::String>().utf16(), u"值");
    }
    write("bplist00 but broken");
    EXPECT_FALSE(ns::Dictionary::withContentsOfFile(path));
}

} // namespace
} // namespace wentra::startup
