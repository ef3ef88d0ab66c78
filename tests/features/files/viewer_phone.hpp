// A phone with a folder of files, and screens pushed over its application.
#pragma once

#include "tests/support/phone.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <fstream>

namespace tests {

class ViewerTest : public testing::Test {
protected:
    /// Pushes the controller in a navigation controller that covers the application.
    void show(const Json& controller) {
        const Json navigation =
            phone.message(phone.message({{"class", "UINavigationController"}}, "alloc"),
                          "initWithRootViewController:", {made("UIViewController")});
        constexpr int fullScreen = 0;
        phone.message(navigation, "setModalPresentationStyle:", {fullScreen});
        const Json application = phone.message(phone.window(), "rootViewController");
        phone.message(application, "dismissViewControllerAnimated:completion:", {false, nullptr});
        phone.message(application,
                      "presentViewController:animated:completion:", {navigation, false, nullptr});
        phone.message(navigation, "pushViewController:animated:", {controller, false});
        phone.advance(1);
    }
    Json made(const std::string& cls) { return phone.message({{"class", cls}}, "new"); }
    /// Where a file of that name lies for the phone.
    static std::string path(const std::string& name) { return "/var/mobile/" + name; }
    [[nodiscard]] std::filesystem::path onDisk(const std::string& name) const {
        return folder.path() / "var/mobile" / name;
    }
    void write(const std::string& name, const std::string& bytes) const {
        std::filesystem::create_directories(onDisk(name).parent_path());
        std::ofstream(onDisk(name), std::ios::binary) << bytes;
    }
    [[nodiscard]] std::string read(const std::string& name) const {
        return support::readFile(onDisk(name));
    }
    static Json url(const std::string& name) { return {{"url", "file://" + path(name)}}; }
    void press(const std::string& title) {
        phone.tap(phone.find({{"title", title}, {"visible", true}}).at(0));
        phone.advance(0.5);
    }

    support::TemporaryFolder folder;
    Phone phone{{"--app", "notes", "--root", folder.path().string()}};
};

} // namespace tests
