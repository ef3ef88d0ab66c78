// One value written back: the other entries stay, whatever form the file had.
#include "library/preferences/preference_writing.hpp"

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/deviceroot/deviceroot.hpp"
#include "desktop/foundation/dictionary_files.hpp"
#include "desktop/foundation/property_list_serialization.hpp"
#include "library/common/text_encoding.hpp"
#include "library/paths/root_path.hpp"
#include "library/preferences/preferences.hpp"
#include "tests/library/preferences/property_list/property_list_writer.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <iterator>

namespace wentra::preferences {
namespace {

using namespace ns::literals;

class PreferenceWriting : public testing::Test {
protected:
    PreferenceWriting() {
        std::filesystem::create_directories(folder());
        deviceroot_set(root_.path().c_str());
    }
    ~PreferenceWriting() override { deviceroot_set(nullptr); }

    /// In the rootless layout, where nobody looks up the jailbreak's own library: what this process
    /// finds of that, it finds for all of its tests.
    [[nodiscard]] std::filesystem::path folder() const {
        return root_.path() / "var/jb/var/mobile/Library/Preferences";
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
    support::TemporaryFolder root_;
};

TEST_F(PreferenceWriting, ChangesOneEntryOfEitherForm) {
    const WrittenEntries entries{
        {"kqwzgs", true}, {"百度id", std::string("某人")}, {"kqxydx", 2.5}};
    for (const std::string& before : {xmlPropertyList(entries), binaryPropertyList(entries)}) {
        write(before);
        EXPECT_TRUE(storePreference(keys.copyOnLongPress, ns::Number::from(true)));
        EXPECT_TRUE(storePreference(keys.blockedHosts[0], u"a,\n<b> & c,"_ns));
        EXPECT_TRUE(storePreference(keys.globalFontSizeIncrease, nullptr));
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

TEST_F(PreferenceWriting, ChangesOneEntryOfEveryFormThatIsRead) {
    desktop::foundation::installPropertyListSerialization();
    const std::string dict =
        "<dict><key>kqwzgs</key><true/><key>百度id</key><string>é</string></dict>";
    const std::string documents[] = {
        dict,
        "<plist version = \"1.0\">" + dict + "</plist>",
        "\xEF\xBB\xBF<plist>" + dict + "</plist>",
        "<?xml version = \"1.0\" encoding = 'UTF-8' ?><plist version=\"1.0\">" + dict + "</plist>",
        "\xFE\xFF" + bigEndianUtf16(u"<?xml version='1.0' encoding='UTF-16'?><plist>" +
                                    utf16FromUtf8(dict) + u"</plist>"),
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><plist version=\"1.0\"><dict><key>kqwzgs</key>"
        "<true/><key>&#x767E;&#x5EA6;id</key><string>\xE9</string></dict></plist>",
        "{ kqwzgs = 1; \"\\U767E\\U5EA6id\" = \"é\"; }",
        "{ 'kqwzgs' = '1'; '\\U767E\\U5EA6id' = 'é'; '\"a\\'' = ('\"{', \"'\"); }",
        "'kqwzgs' = 'YES'; /* it's */ '百度id' = 'é'; // isn't",
        "/* strings */ kqwzgs = YES; \"百度id\" = \"é\"; // end",
    };
    for (const std::string& before : documents) {
        write(before);
        ASSERT_EQ(Preferences::read().text(keys.translationIdentifier), u"é") << before;
        EXPECT_TRUE(storePreference(keys.resize, ns::Number::from(true))) << before;
        const Preferences after = Preferences::read();
        EXPECT_TRUE(after.on(keys.recolour)) << before;
        EXPECT_TRUE(after.on(keys.resize)) << before;
        EXPECT_EQ(after.text(keys.translationIdentifier), u"é") << before;
    }
}

TEST_F(PreferenceWriting, WhoeverReadsMeanwhileHasTheFormerFile) {
    write(xmlPropertyList({{"kqwzgs", true}}));
    const std::string before = bytes();
    std::ifstream reader(file(), std::ios::binary);
    EXPECT_TRUE(storePreference(keys.blockedHosts[0], u"a,"_ns));
    EXPECT_NE(bytes(), before);
    EXPECT_EQ(std::string(std::istreambuf_iterator(reader), {}), before);
}

TEST_F(PreferenceWriting, MakesAMissingFileAndLeavesAForeignOneAlone) {
    EXPECT_TRUE(storePreference(keys.recolour, ns::Number::from(true)));
    EXPECT_TRUE(Preferences::read().on(keys.recolour));

    const std::string foreign = "no property list <";
    write(foreign);
    EXPECT_FALSE(storePreference(keys.recolour, ns::Number::from(true)));
    EXPECT_EQ(bytes(), foreign);
}

std::string repeated(std::string_view text, int times) {
    std::string all;
    for (int time = 0; time < times; ++time) {
        all += text;
    }
    return all;
}

TEST_F(PreferenceWriting, SurvivesWhatFoundationDoesNot) {
    constexpr int levels = 300'000;
    const std::string hostile[] = {
        std::string(1000, '\0'), // raises as a list of GNUstep's own
        repeated("{a=", levels) + "1;" + repeated("};", levels - 1) + "}",
        "<plist><dict>" + repeated("<key>a</key><dict>", levels) + repeated("</dict>", levels) +
            "</dict></plist>",
    };
    for (const std::string& before : hostile) {
        write(before);
        EXPECT_EQ(storedPreferences().count(), 0U);
        EXPECT_FALSE(storePreference(keys.recolour, ns::Number::from(true)));
        EXPECT_TRUE(bytes() == before);
    }
}

TEST_F(PreferenceWriting, LeavesAloneWhatIsTooLargeToBeRead) {
    write(xmlPropertyList({{"kqwzgs", true}}));
    std::ofstream(file(), std::ios::app) << std::string(std::size_t{17} << 20, ' ');
    ASSERT_FALSE(Preferences::read().on(keys.recolour));
    EXPECT_FALSE(storePreference(keys.resize, ns::Number::from(true)));
    EXPECT_EQ(storedPreferences().count(), 0U);
}

TEST_F(PreferenceWriting, AFailureIsToldAndChangesNothing) {
    std::filesystem::remove_all(folder());
    EXPECT_FALSE(storePreference(keys.recolour, ns::Number::from(true)));
    std::filesystem::create_directories(file()); // a folder in the file's place
    EXPECT_FALSE(storePreference(keys.recolour, ns::Number::from(true)));
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
    const auto path = ns::String::fromUtf8(paths::preferencePath());
    for (const std::string& written : {xmlPropertyList(entries), binaryPropertyList(entries)}) {
        write(written);
        const auto read = ns::Dictionary::withContentsOfFile(path);
        EXPECT_EQ(read.get(u"键"_ns).as<ns::String>().utf16(), u"值");
    }
    write("bplist00 but broken");
    EXPECT_FALSE(ns::Dictionary::withContentsOfFile(path));
}

} // namespace
} // namespace wentra::preferences
