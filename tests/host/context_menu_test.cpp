// The commands "context" and "file".
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using Json = nlohmann::json;
using support::HostProcess;

class ContextMenu : public testing::Test {
protected:
    ContextMenu() {
        host.result({{"do", "advance"}, {"seconds", 1}});
        const Json table = host.result({{"do", "find"}, {"where", {{"class", "UITableView"}}}})[0];
        const Json path =
            host.message({{"class", "NSIndexPath"}}, "indexPathForRow:inSection:", {0, 0});
        cell = host.message(table, "cellForRowAtIndexPath:", {path});
    }
    Json context(Json request) {
        request["do"] = "context";
        return host.result(request);
    }

    HostProcess host = tests::hostWith({"--automation", "--app", "files"});
    Json cell;
};

TEST_F(ContextMenu, StaysUntilItIsChosenFromOrPutAway) {
    EXPECT_TRUE(context(Json::object()).is_null());
    const Json menu = context({{"on", cell}});
    EXPECT_FALSE(menu["title"].get<std::string>().empty());
    EXPECT_EQ(menu["items"][1], (Json{{"title", "删除"}, {"symbol", "trash"}}));
    EXPECT_EQ(context(Json::object()), menu);
    EXPECT_EQ(context({{"choose", nullptr}}), menu);
    EXPECT_TRUE(context(Json::object()).is_null());
    context({{"on", cell}, {"choose", "复制路径"}});
    EXPECT_EQ(host.result({{"do", "pasteboard"}}).get<std::string>().find("/var/mobile/"), 0U);
    EXPECT_TRUE(context(Json::object()).is_null());
}

TEST_F(ContextMenu, BelongsToTheViewUnderAPoint) {
    const Json rect = host.result({{"do", "tree"}, {"of", cell}})["rect"];
    const Json place{rect[0].get<double>() + 50, rect[1].get<double>() + 20};
    EXPECT_EQ(context({{"at", place}, {"choose", nullptr}})["items"].size(), 12U);
    EXPECT_NE(host.error({{"do", "context"}, {"at", {380, 60}}}), "");
    EXPECT_NE(host.error({{"do", "context"}, {"at", "here"}}), "");
}

TEST_F(ContextMenu, ComesUpByAPressAndGoesByATapBesideIt) {
    host.result({{"do", "press"}, {"on", cell}, {"seconds", 0.6}});
    EXPECT_EQ(context(Json::object())["items"].size(), 12U);
    host.result({{"do", "tap"}, {"at", {380, 60}}});
    EXPECT_TRUE(context(Json::object()).is_null());
    host.result({{"do", "press"}, {"on", cell}, {"seconds", 0.6}});
    const Json row = host.result({{"do", "find"}, {"where", {{"text", "复制路径"}}}})[0];
    host.result({{"do", "tap"}, {"on", row}});
    EXPECT_TRUE(host.result({{"do", "pasteboard"}}).is_string());
}

TEST_F(ContextMenu, ScrollsWhereTheScreenIsLow) {
    host.result({{"do", "rotate"}, {"to", "landscapeLeft"}});
    host.result({{"do", "advance"}, {"seconds", 1}});
    context({{"on", cell}});
    const Json list = host.result({{"do", "find"}, {"where", {{"class", "UIScrollView"}}}}).back();
    EXPECT_LT(list["frame"][3], 390);
    host.result({{"do", "slide"}, {"path", {{100, 300}, {100, 200}, {100, 120}}}});
    EXPECT_GT(host.message(list, "contentOffset")["point"][1], 100);
    EXPECT_EQ(context(Json::object())["items"].size(), 12U); // nothing was chosen
}

TEST_F(ContextMenu, RefusesWhatIsNotThere) {
    const Json window = host.result({{"do", "tree"}})[0];
    EXPECT_NE(host.error({{"do", "context"}, {"on", window}}), "");
    EXPECT_NE(host.error({{"do", "context"}, {"choose", "删除"}}), "");
    EXPECT_NE(host.error({{"do", "context"}, {"on", cell}, {"choose", "飞"}}), "");
}

TEST_F(ContextMenu, DatesFiles) {
    const std::string path = "/var/mobile/Documents/readme";
    EXPECT_EQ(host.result({{"do", "file"}, {"path", path}, {"created", 1000.5}})["created"],
              1000.5);
    EXPECT_EQ(host.result({{"do", "file"}, {"path", path}})["created"], 1000.5);
    EXPECT_NE(host.error({{"do", "file"}, {"path", "/gone"}, {"created", 1}}), "");
    EXPECT_NE(host.error({{"do", "file"}, {"path", path}, {"created", "today"}}), "");
    EXPECT_NE(host.error({{"do", "file"}}), "");
}

TEST_F(ContextMenu, TellsAndSetsAttributesOfFiles) {
    const Json manager = host.message({{"class", "NSFileManager"}}, "defaultManager");
    const std::string path = "/var/mobile/Documents/readme";
    const Json attributes{{"NSFilePosixPermissions", 0600},
                          {"NSFileModificationDate", {{"date", 1000}}},
                          {"NSFileCreationDate", {{"date", 500}}}};
    EXPECT_EQ(
        host.message(manager, "setAttributes:ofItemAtPath:error:", {attributes, path, nullptr}),
        true);
    const Json known = host.message(manager, "attributesOfItemAtPath:error:", {path, nullptr});
    EXPECT_EQ(known["NSFilePosixPermissions"], 0600);
    EXPECT_EQ(known["NSFileModificationDate"]["date"], 1000);
    EXPECT_EQ(known["NSFileCreationDate"]["date"], 500);
    EXPECT_EQ(known["NSFileType"], "NSFileTypeRegular");
    EXPECT_EQ(
        host.message(manager, "setAttributes:ofItemAtPath:error:", {attributes, "/gone", nullptr}),
        false);
    EXPECT_TRUE(
        host.message(manager, "attributesOfItemAtPath:error:", {"/gone", nullptr}).is_null());
}

TEST_F(ContextMenu, MovesLinksThatLeadNowhere) {
    const Json manager = host.message({{"class", "NSFileManager"}}, "defaultManager");
    const std::string folder = "/var/mobile/Documents/";
    host.message(manager, "createSymbolicLinkAtPath:withDestinationPath:error:",
                 {folder + "link", "/gone", nullptr});
    EXPECT_EQ(host.message(manager, "moveItemAtPath:toPath:error:",
                           {folder + "link", folder + "moved", nullptr}),
              true);
    EXPECT_EQ(host.message(manager, "moveItemAtPath:toPath:error:",
                           {folder + "readme", folder + "moved", nullptr}),
              false);
}

} // namespace
