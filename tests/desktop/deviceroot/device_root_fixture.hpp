// Gives a test a device of its own: a fresh folder that is the device's root until the test ends.
#pragma once

#include "desktop/deviceroot/deviceroot.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

class DeviceRootTest : public testing::Test {
protected:
    DeviceRootTest() {
        std::string pattern = (std::filesystem::temp_directory_path() / "device.XXXXXX").string();
        root_ = std::filesystem::canonical(mkdtemp(pattern.data()));
        for (const char* folder : {"var/mobile", "var/jb", "Library", "usr/bin"}) {
            std::filesystem::create_directories(root_ / folder);
        }
        previous_ = deviceroot_get();
        deviceroot_set(root_.c_str());
    }

    ~DeviceRootTest() override {
        deviceroot_set(previous_.c_str());
        std::filesystem::remove_all(root_);
    }

    // The real place of a device path.
    std::filesystem::path real(const std::string& devicePath) const {
        return root_.string() + devicePath;
    }

    static void write(const std::filesystem::path& file, const std::string& text) {
        std::ofstream(file) << text;
    }

    static std::string read(const std::filesystem::path& file) {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }

private:
    std::filesystem::path root_;
    std::string previous_;
};
