// What the device keeps: preferences, user defaults, the pasteboard, dates of files.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using support::HostProcess;
using support::TemporaryFolder;

constexpr const char* preferenceFile = "var/mobile/Library/Preferences/cn.zerk.hovtanprefs.plist";

class Device : public testing::Test {
protected:
    HostProcess start(std::vector<std::string> options = {}) {
        options.insert(options.end(), {"--root", root.path().string()});
        return tests::automatedHost(options);
    }

    TemporaryFolder root;
};

const json everyKind = json::parse(
    R"({"是":true,"off":false,"one":1,"zero":0,"half":0.5,"text":"文字 & <b> 😀","empty":"",
        "list":[1,"a",[true]],"map":{"k":{"a":2.5}},"data":{"data":"AAEC"}})");

TEST_F(Device, PreferencesAreKeptInBothFormats) {
    for (const char* format : {"xml", "binary"}) {
        HostProcess host = start();
        const json replaced =
            host.result({{"do", "preferences"}, {"replace", everyKind}, {"format", format}});
        for (const auto& [key, value] : everyKind.items()) {
            EXPECT_EQ(replaced.at(key), value) << format << " " << key;
            EXPECT_EQ(replaced.at(key).is_boolean(), value.is_boolean()) << format << " " << key;
        }
    }
}

TEST_F(Device, PreferencesAreWrittenAsThePhoneWritesThem) {
    HostProcess host = start();
    EXPECT_EQ(host.result({{"do", "preferences"}}), nullptr);
    host.result({{"do", "preferences"}, {"set", {{"on", true}, {"number", 1}}}});
    const std::string xml = support::readFile(root.path() / preferenceFile);
    EXPECT_NE(xml.find("<true/>"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<integer>1</integer>"), std::string::npos) << xml;
    host.result({{"do", "preferences"}, {"set", {{"more", "x"}}}, {"format", "binary"}});
    EXPECT_EQ(support::readFile(root.path() / preferenceFile).substr(0, 8), "bplist00");
}

TEST_F(Device, PreferencesAreMergedReplacedAndRemoved) {
    HostProcess host = start();
    const auto preferences = [&host](json request) {
        request["do"] = "preferences";
        return host.result(request);
    };
    EXPECT_EQ(preferences({{"set", {{"a", 1}}}}), json({{"a", 1}}));
    EXPECT_EQ(preferences({{"set", {{"b", 2}}}}), json({{"a", 1}, {"b", 2}}));
    EXPECT_EQ(preferences({{"set", {{"a", nullptr}}}}), json({{"b", 2}}));
    EXPECT_EQ(preferences({{"replace", {{"c", 3}}}}), json({{"c", 3}}));
    EXPECT_EQ(preferences({{"remove", true}}), nullptr);
    EXPECT_FALSE(std::filesystem::exists(root.path() / preferenceFile));
}

TEST_F(Device, PreferencesLieBelowTheJailbreaksFolderWhereThereIsOne) {
    std::filesystem::create_directories(root.path() / "var/jb");
    HostProcess host = start();
    host.result({{"do", "preferences"}, {"set", {{"a", 1}}}});
    EXPECT_TRUE(std::filesystem::exists(root.path() / "var/jb" / preferenceFile));
    EXPECT_FALSE(std::filesystem::exists(root.path() / preferenceFile));
}

std::string nested(const std::string& opening, const std::string& closing) {
    constexpr int levels = 300'000;
    std::string document;
    for (int level = 0; level < levels; ++level) {
        document += opening;
    }
    for (int level = 0; level < levels; ++level) {
        document += closing;
    }
    return document;
}

TEST_F(Device, AFileThatIsNestedTooDeeplyIsNone) {
    const std::string files[] = {"{a=" + nested("{a=", "};") + "1;}",
                                 "<plist>" + nested("<dict><key>a</key>", "</dict>") + "</plist>"};
    for (const std::string& file : files) {
        root.write(preferenceFile, file);
        HostProcess host = start();
        EXPECT_EQ(host.result({{"do", "preferences"}}), nullptr);
        EXPECT_EQ(host.result({{"do", "preferences"}, {"set", {{"a", 1}}}}), json({{"a", 1}}));
    }
}

TEST_F(Device, APreferenceFileThatIsNoneIsNull) {
    HostProcess host = start();
    for (const std::string content : {"", "not a list", "bplist00\xff\xff", "<plist><dict><key>"}) {
        root.write(preferenceFile, content);
        EXPECT_EQ(host.result({{"do", "preferences"}}), nullptr) << content;
    }
}

TEST_F(Device, DefaultsLastAndBelongToTheirBundle) {
    const json rules = json::parse(R"({"文本":"text","list":[1,true,"x"]})");
    {
        HostProcess host = start({"--bundle", "com.example.one"});
        EXPECT_EQ(host.result({{"do", "defaults"}, {"key", "zerk"}}), nullptr);
        EXPECT_EQ(host.result({{"do", "defaults"}, {"key", "zerk"}, {"set", rules}}), rules);
        host.result({{"do", "quit"}});
        EXPECT_EQ(host.wait(), 0);
    }
    HostProcess same = start({"--bundle", "com.example.one"});
    EXPECT_EQ(same.result({{"do", "defaults"}, {"key", "zerk"}}), rules);
    HostProcess other = start({"--bundle", "com.example.two"});
    EXPECT_EQ(other.result({{"do", "defaults"}, {"key", "zerk"}}), nullptr);
    EXPECT_EQ(same.result({{"do", "defaults"}, {"key", "zerk"}, {"set", nullptr}}), nullptr);
}

TEST_F(Device, DefaultsAreWrittenWithoutBeingAskedTo) {
    HostProcess host = start({"--app", "plain"});
    host.result({{"do", "defaults"}, {"key", "someKey"}, {"set", 1}});
    EXPECT_NE(
        support::readFile(root.path() / "var/mobile/Library/Preferences/com.example.plain.plist")
            .find("someKey"),
        std::string::npos);
}

TEST_F(Device, DefaultsRefuseWhatIsNoPropertyList) {
    HostProcess host = start();
    const json view = host.message({{"class", "UIView"}}, "new");
    EXPECT_EQ(host.error({{"do", "defaults"}, {"key", "a"}, {"set", {view}}})
                  .find("NSInvalidArgumentException"),
              0U);
    EXPECT_EQ(host.result({{"do", "defaults"}, {"key", "a"}}), nullptr);
}

TEST_F(Device, TheApplicationsDomainIsWhatItsDefaultsHold) {
    HostProcess host = start({"--bundle", "com.example.one"});
    const json defaults = host.message({{"class", "NSUserDefaults"}}, "standardUserDefaults");
    host.message(defaults, "setObject:forKey:", {"x", "a"});
    EXPECT_EQ(host.message(defaults, "persistentDomainForName:", {"com.example.one"}),
              json({{"a", "x"}}));
    EXPECT_EQ(host.message(defaults, "persistentDomainForName:", {"com.example.two"}), nullptr);
    host.message(defaults, "setPersistentDomain:forName:", {{{"b", 2}}, "com.example.one"});
    host.message(defaults, "setPersistentDomain:forName:", {{{"c", 3}}, "com.example.two"});
    EXPECT_EQ(host.message(defaults, "dictionaryRepresentation"), json({{"b", 2}}));
    host.message(defaults, "removePersistentDomainForName:", {"com.example.one"});
    EXPECT_EQ(host.result({{"do", "defaults"}, {"key", "b"}}), nullptr);
}

TEST_F(Device, TheBundleIsTheOneThatWasAskedFor) {
    HostProcess host = start({"--app", "plain", "--bundle", "org.example.other"});
    const json bundle = host.message({{"class", "NSBundle"}}, "mainBundle");
    EXPECT_EQ(host.message(bundle, "bundleIdentifier"), "org.example.other");
}

TEST_F(Device, ThePasteboardHoldsTextAndAnnouncesIt) {
    HostProcess host = start();
    const json board = host.message({{"class", "UIPasteboard"}}, "generalPasteboard");
    const json before = host.message(board, "changeCount");
    EXPECT_EQ(host.result({{"do", "pasteboard"}}), nullptr);
    EXPECT_EQ(host.result({{"do", "pasteboard"}, {"set", "复制"}}), "复制");
    EXPECT_EQ(host.message(board, "string"), "复制");
    EXPECT_EQ(host.message(board, "changeCount"), before.get<int>() + 1);
    EXPECT_EQ(host.result({{"do", "pasteboard"}, {"set", nullptr}}), nullptr);
}

TEST_F(Device, AnImageTakesThePlaceOfThePasteboardsText) {
    HostProcess host = start();
    const auto picture = root.path() / "picture.png";
    host.result({{"do", "screenshot"}, {"file", picture.string()}});
    EXPECT_EQ(host.result({{"do", "pasteboard"}, {"set", "text"}}), "text");
    EXPECT_EQ(host.result({{"do", "pasteboard"}, {"image", picture.string()}}), nullptr);
    const json board = host.message({{"class", "UIPasteboard"}}, "generalPasteboard");
    EXPECT_EQ(host.message(board, "image").at("class"), "UIImage");
    EXPECT_EQ(host.message(board, "string"), nullptr);
}

TEST_F(Device, GivesEachApplicationItsDocuments) {
    HostProcess notes = start({"--app", "notes"});
    HostProcess plain = start({"--app", "plain"});
    HostProcess settings = start({"--app", "settings"});
    const json documents{{"do", "documents"}};
    const std::string own = notes.result(documents);
    EXPECT_EQ(own, "/var/mobile/Containers/Data/Application/com.example.notes/Documents");
    EXPECT_TRUE(std::filesystem::is_directory(root.path().string() + own));
    EXPECT_NE(plain.result(documents), own);
    EXPECT_EQ(settings.result(documents), "/var/mobile/Documents");
    const json manager = notes.message({{"class", "NSFileManager"}}, "defaultManager");
    constexpr int caches = 13;
    EXPECT_EQ(notes.message(manager, "URLsForDirectory:inDomains:", {caches, 1}), json::array());
    EXPECT_EQ(notes.message(manager, "URLsForDirectory:inDomains:", {9, 8}), json::array());
}

TEST_F(Device, DatesFiles) {
    root.write("var/mobile/a", "");
    HostProcess host = start();
    const json file{{"do", "file"}, {"path", "/var/mobile/a"}};
    const auto dated = [&](const json& date) {
        json request = file;
        request["created"] = date;
        return request;
    };
    EXPECT_EQ(host.result(dated(1000.5))["created"], 1000.5);
    EXPECT_EQ(host.result(file)["created"], 1000.5);
    EXPECT_NE(host.error(dated("today")), "");
    EXPECT_NE(host.error({{"do", "file"}, {"path", "/gone"}, {"created", 1}}), "");
    EXPECT_EQ(host.error({{"do", "file"}, {"path", "/gone"}}), "there is no file /gone");
    EXPECT_NE(host.error({{"do", "file"}}), "");
}

} // namespace
