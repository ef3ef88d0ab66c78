// Labels rewritten by the loaded library, seen through the host: rules and switches in, views out.
#include "tests/support/phone.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using tests::Json;
using tests::Phone;

TEST(LabelRewriting, ReplacesTextsWithoutAnySwitch) {
    Phone phone;
    phone.saveRules("Name===名字\na↲b===c\ntwo===x↲y\na===b===d\n===空\nsame#=ff0000");
    for (const auto& [given, wanted] : std::vector<std::pair<std::string, std::string>>{
             {"Name: Bob", "名字: Bob"},
             {"Name", "名字"},
             {"name", "name"},
             {"a\nb", "c"},
             {"two", "x\ny"},
             {"a", "a"},
             {":rest", "空:rest"},
             {"line\nName: Bob", "line\nName: Bob"},
             {"已有↲换行", "已有\n换行"},
             {"same", "same"},
         }) {
        EXPECT_EQ(phone.label(given)["text"], wanted) << given;
    }
    EXPECT_EQ(phone.label("same")["textColor"], "#000000ff") << "the colour switch is off";
    EXPECT_EQ(phone.result({{"do", "defaults"}, {"key", "改色zerk"}}), (Json{{"same", "ff0000"}}));
}

TEST(LabelRewriting, SizesTextsThatFollowTheSizeAPersonWants) {
    const support::TemporaryFolder root;
    const std::vector<std::string> notes{"--app", "notes", "--root", root.path()};
    {
        Phone phone{notes};
        phone.saveRules("Travel plan#÷=26");
        phone.turnOn({"kqwzdx"});
    }
    Phone phone{notes};
    EXPECT_EQ(phone.find({{"text", "Travel plan"}})[0]["font"]["size"], 26);
}

TEST(LabelRewriting, SavingOneKindLeavesTheOthersStored) {
    Phone phone;
    phone.saveRules("a===b\nx#=123456");
    phone.saveRules("c#=00ff00");
    EXPECT_EQ(phone.result({{"do", "defaults"}, {"key", "zerk"}}), (Json{{"a", "b"}}));
    EXPECT_EQ(phone.result({{"do", "defaults"}, {"key", "改色zerk"}}), (Json{{"c", "00ff00"}}));
}

TEST(LabelRewriting, StylesByTheTextThatWasAskedFor) {
    Phone phone;
    phone.turnOn({"kqwzgs", "kqwzdx", "kqwzgd", "kqwzkd", "kqhxyd", "kqzxyd", "kqxstm", "kqxgzt"});
    phone.saveRules("hello===你好\nhello#=ff8000\nhello#÷=21\nhello#g=41\nhello#k=151\nhello#x=7\n"
                    "hello#y=8\nhello#t=0.5\nhello#z=Georgia\n你好#=0000ff");
    const Json node = phone.label("hello");
    EXPECT_EQ(node["text"], "你好");
    EXPECT_EQ(node["textColor"], "#ff8000ff");
    EXPECT_EQ(node["font"], (Json{{"name", "Georgia"}, {"size", 21.0}}));
    EXPECT_EQ(node["frame"], (Json{7.0, 8.0, 151.0, 41.0}));
    EXPECT_NEAR(node["alpha"].get<double>(), 0.5, 1e-6);

    const Json other = phone.label("Hello");
    EXPECT_EQ(other["text"], "Hello");
    EXPECT_EQ(other["textColor"], "#000000ff");
    EXPECT_EQ(other["frame"], (Json{10.0, 20.0, 100.0, 30.0}));
}

TEST(LabelRewriting, AStylingThatRaisesDoesNotCostTheTextItsRule) {
    Phone phone;
    phone.turnOn({"kqwzgd", "kqwzkd", "kqxgzt"});
    phone.saveRules("hello===你好\nhello#g=1e39\nhello#k=50\nhello#z=Georgia");
    const Json node = phone.label("hello");
    EXPECT_EQ(phone.swallowed().size(), 1U) << "an infinite height has no middle";
    EXPECT_EQ(node["text"], "你好");
    EXPECT_EQ(node["font"]["name"], "Georgia");
}

TEST(LabelRewriting, EachSwitchGovernsItsOwnRuleAndTakesEffectAtTheNextLabel) {
    Phone phone;
    phone.saveRules("t#=ff0000\nt#÷=21\nt#g=41\nt#k=151\nt#x=7\nt#y=8\nt#t=0.5\nt#z=Georgia");
    const Json plain = phone.label("t");
    const auto differences = [&](const Json& node) {
        std::vector<std::string> keys;
        for (const char* key : {"textColor", "font", "frame", "alpha"}) {
            if (node[key] != plain[key]) {
                keys.emplace_back(key);
            }
        }
        return keys;
    };
    using Keys = std::vector<std::string>;
    for (const auto& [key, changed] :
         std::vector<std::pair<std::string, std::string>>{{"kqwzgs", "textColor"},
                                                          {"kqwzdx", "font"},
                                                          {"kqwzgd", "frame"},
                                                          {"kqwzkd", "frame"},
                                                          {"kqhxyd", "frame"},
                                                          {"kqzxyd", "frame"},
                                                          {"kqxstm", "alpha"},
                                                          {"kqxgzt", "font"}}) {
        for (const char* format : {"xml", "binary"}) {
            phone.result({{"do", "preferences"}, {"replace", {{key, true}}}, {"format", format}});
            EXPECT_EQ(differences(phone.label("t")), Keys{changed}) << key << " " << format;
        }
    }
    phone.result({{"do", "preferences"}, {"remove", true}});
    EXPECT_EQ(differences(phone.label("t")), Keys{}) << "the file is gone";
}

TEST(LabelRewriting, TheGlobalSizeOverridesEveryOwnSize) {
    Phone phone;
    phone.saveRules("A全局大小#÷=14\nhello#÷=30");
    phone.result(
        {{"do", "preferences"}, {"set", {{"kqwzdx", true}, {"kqdxzq", true}, {"kqxydx", 2}}}});
    EXPECT_EQ(phone.label("hello")["font"]["size"], 16);
    EXPECT_EQ(phone.label("anything")["font"]["size"], 16);
    phone.result({{"do", "preferences"}, {"set", {{"kqdxzq", false}}}});
    EXPECT_EQ(phone.label("hello")["font"]["size"], 30);
    EXPECT_EQ(phone.label("anything")["font"]["size"], 17);
    phone.result({{"do", "preferences"}, {"set", {{"kqdxzq", true}, {"kqwzdx", false}}}});
    EXPECT_EQ(phone.label("hello")["font"]["size"], 17) << "the size switch itself is off";
}

TEST(LabelRewriting, AGlobalFontStaysInForceOnceItWasUsed) {
    Phone phone;
    phone.saveRules("A全局字体#z=Georgia\nhello#z=Courier");
    phone.turnOn({"kqxgzt"});
    EXPECT_EQ(phone.label("hello")["font"]["name"], "Courier");
    phone.turnOn({"kqztzq"});
    EXPECT_EQ(phone.label("hello")["font"]["name"], "Georgia");
    phone.result({{"do", "preferences"}, {"set", {{"kqztzq", false}}}});
    EXPECT_EQ(phone.label("hello")["font"]["name"], "Georgia") << "it outlives its switch";

    phone.saveRules("A全局字体#z=NoSuchFont");
    phone.turnOn({"kqztzq"});
    EXPECT_EQ(phone.label("hello")["font"]["name"], ".SFUI-Regular") << "unknown and kept as nil";
    phone.saveRules("hello#z=Courier");
    EXPECT_EQ(phone.label("hello")["font"]["name"], "Courier");
}

TEST(LabelRewriting, ANumberIsARulesValueAsWellAsItsText) {
    Phone phone;
    phone.turnOn({"kqxstm"});
    for (const Json& value : {Json(0.25), Json("0.25")}) {
        phone.result({{"do", "defaults"}, {"key", "透明zerk"}, {"set", {{"hello", value}}}});
        EXPECT_EQ(phone.label("hello")["alpha"], 0.25) << value;
    }
}

TEST(LabelRewriting, YYLabelsHaveTheirOwnRulesOnly) {
    Phone phone({"--app", "notes"});
    phone.saveRules("A全局大小#÷=14\nA全局字体#z=Georgia\nhello#÷=30\nhello===你好\nhello#=ff0000");
    phone.turnOn({"kqwzdx", "kqdxzq", "kqxgzt", "kqztzq", "kqwzgs"});
    const Json node = phone.label("hello", "YYLabel");
    EXPECT_EQ(node["text"], "你好");
    EXPECT_EQ(node["textColor"], "#ff0000ff");
    EXPECT_EQ(node["font"], (Json{{"name", ".SFUI-Regular"}, {"size", 30.0}}));
    EXPECT_EQ(phone.label("other", "YYLabel")["font"]["size"], 17);
}

TEST(LabelRewriting, AppliesToWhatTheApplicationShowsFromItsStart) {
    const support::TemporaryFolder root;
    const std::vector<std::string> options{"--app", "chat", "--root", root.path().string()};
    {
        Phone phone(options);
        phone.saveRules("Name===名字\n周末去爬山吗？===Hiking? 😀");
    }
    Phone phone(options);
    EXPECT_EQ(phone.result({{"do", "find"}, {"where", {{"text", "名字: Bob 也会来"}}}}).size(), 1U);
    EXPECT_EQ(phone.result({{"do", "find"}, {"where", {{"text", "Hiking? 😀"}}}}).size(), 1U);
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST(LabelRewriting, OneTextIsNeverShown) {
    Phone phone;
    const Json label = phone.make("UILabel");
    phone.shown(label, "before");
    const Json node = phone.shown(label, "感谢逆向，没技术含量的插件。");
    EXPECT_EQ(node["text"], "before");
    EXPECT_EQ(node["font"]["size"], 10);
}

TEST(LabelRewriting, TheExchangedSelectorIsThePlatformsOwn) {
    Phone phone;
    phone.saveRules("a===b");
    const Json label = phone.make("UILabel");
    phone.message(label, "hook_setText:", {"a"});
    EXPECT_EQ(phone.message(label, "text"), "a");
}

TEST(LabelRewriting, SurvivesWhateverARuleSays) {
    Phone phone;
    phone.turnOn({"kqwzgs", "kqwzdx", "kqwzgd", "kqwzkd", "kqhxyd", "kqzxyd", "kqxstm", "kqxgzt"});
    for (const std::string value :
         {"", "abc", "-5", "nan", "inf", "1e999", "-1e999", "0x10", "😀"}) {
        Json rules = Json::object();
        for (const char* marker : {"#=", "#÷=", "#g=", "#k=", "#x=", "#y=", "#t=", "#z="}) {
            phone.saveRules(std::string("t") + marker + value);
        }
        EXPECT_EQ(phone.label("t")["text"], "t") << value;
    }
    phone.result({{"do", "screenshot"}, {"file", testing::TempDir() + "survives.png"}});
    for (const Json& wrong :
         {Json(7), Json("text"), Json::array({1}), Json{{"t", 5}, {"u", Json::array()}}}) {
        for (const char* key :
             {"zerk", "改色zerk", "大小zerk", "高度zerk", "透明zerk", "字体zerk"}) {
            phone.result({{"do", "defaults"}, {"key", key}, {"set", wrong}});
        }
        EXPECT_EQ(phone.label("t")["text"], "t") << wrong;
        EXPECT_EQ(phone.label("u")["text"], "u") << wrong;
    }
}

TEST(LabelRewriting, LeavesTextsThatAreNoStringsToThePlatform) {
    Phone phone;
    const Json label = phone.make("UILabel");
    phone.shown(label, "before");
    const Json setting = phone.result({{"do", "make"},
                                       {"class", "NSInvocationOperation"},
                                       {"selector", "initWithTarget:selector:object:"},
                                       {"args", {label, {{"selector", "setText:"}}, 42}}});
    phone.message(setting, "start");
    EXPECT_EQ(phone.node(label)["text"], "before");
    EXPECT_EQ(phone.shown(label, nullptr)["text"], nullptr);
    EXPECT_EQ(phone.shown(label, "")["text"], "");
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST(LabelRewriting, WorksOnBackgroundThreads) {
    Phone phone;
    phone.saveRules("a===b\nA全局字体#z=Georgia");
    phone.turnOn({"kqxgzt", "kqztzq"});
    const Json queue =
        phone.message(phone.message({{"class", "NSOperationQueue"}}, "alloc"), "init");
    std::vector<Json> labels(20); // one a thread: the platform's labels are not made for more
    for (Json& label : labels) {
        label = phone.make("UILabel");
        const Json setting = phone.result({{"do", "make"},
                                           {"class", "NSInvocationOperation"},
                                           {"selector", "initWithTarget:selector:object:"},
                                           {"args", {label, {{"selector", "setText:"}}, "a"}}});
        phone.message(queue, "addOperation:", {setting});
    }
    phone.message(queue, "waitUntilAllOperationsAreFinished");
    for (const Json& label : labels) {
        const Json node = phone.node(label);
        EXPECT_EQ(node["text"], "b");
        EXPECT_EQ(node["font"]["name"], "Georgia");
    }
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST(ColorFromString, ReadsNamesAndDigits) {
    Phone phone;
    const Json view = phone.make("UIView");
    for (const auto& [text, colour] : std::vector<std::pair<std::string, std::string>>{
             {"red", "#ff0000ff"},
             {"red-0.5", "#ff000080"},
             {"#00ff00", "#00ff00ff"},
             {"0000ff", "#0000ffff"},
             {"blue1", "#ffffffff"},
             {"", "#ffffffff"},
             {"#", "#000000ff"},
             {"zzzzzz", "#000000ff"},
             {"#12", "#000012ff"},
             {"#ff00ff00ff-0", "#ffffff00"},
             {"systemRed", "#ff3b30ff"},
             {"-0.5", "#ffffff80"},
             {"clear-1", "#000000ff"},
             {"colorWithRed:green:blue:alpha:", "#ffffffff"},
             {std::string(1000, 'a'), "#ffffffff"},
             {"红色", "#ffffffff"}}) {
        const Json color = phone.message({{"class", "UIColor"}}, "colorFromString:", {text});
        phone.message(view, "setBackgroundColor:", {color});
        EXPECT_EQ(phone.result({{"do", "tree"}, {"of", view}})["backgroundColor"], colour) << text;
    }
    EXPECT_TRUE(phone.swallowed().empty());
}

} // namespace
