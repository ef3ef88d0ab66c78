// What a script learns of a share sheet.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;

TEST(Sharing, PicturesAreToldAsObjects) {
    support::HostProcess host = tests::automatedHost({"--app", "notes"});
    const json image = host.message({{"class", "UIImage"}}, "systemImageNamed:", {"photo"});
    const json sheet = host.result({{"do", "make"},
                                    {"class", "UIActivityViewController"},
                                    {"selector", "initWithActivityItems:applicationActivities:"},
                                    {"args", {{"text", {{"url", "file:///a"}}, image}, nullptr}}});
    const json window = host.result({{"do", "tree"}}).at(0);
    host.message(host.message(window, "rootViewController"),
                 "presentViewController:animated:completion:", {sheet, false, nullptr});
    const json event = host.result({{"do", "events"}}).at(0);
    EXPECT_EQ(event.at("kind"), "share");
    const json items = event.at("items");
    EXPECT_EQ(items.at(0), "text");
    EXPECT_EQ(items.at(1), "file:///a");
    EXPECT_EQ(items.at(2).at("class"), "UIImage");
    EXPECT_EQ(items.at(2).at("object"), image.at("object"));
    EXPECT_EQ(host.message(items.at(2), "size"), host.message(image, "size"));
}

} // namespace
