// Tests reading preferences: the values of all types, and files of every kind, sound or broken.
#include "library/preferences/preferences.hpp"

#include "desktop/deviceroot/deviceroot.hpp"
#include "tests/library/preferences/property_list/property_list_writer.hpp"
#include "tests/support/fresh_process.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <fcntl.h>
#include <set>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace wentra::preferences {
namespace {

const WrittenEntries sample = {
    {"kqwzgs", true},
    {"kqwzdx", false},
    {"开启文字复制", true},
    {"悬浮球长宽比", 40.5},
    {"悬浮窗口起点", std::int64_t{-60}},
    {"Host过滤屏蔽8", "ads.example，其他"},
    {"百度id", "id-1"},
    {"注销按钮", true},
    {"大小", std::int64_t{12}},
};

void expectSample(const Preferences& preferences) {
    EXPECT_TRUE(preferences.on(keys.recolour));
    EXPECT_FALSE(preferences.on(keys.resize));
    EXPECT_TRUE(preferences.on(keys.copyOnLongPress));
    EXPECT_EQ(preferences.number(keys.buttonSide), 40.5);
    EXPECT_EQ(preferences.number(keys.panelTop), -60);
    EXPECT_EQ(preferences.text(keys.blockedHosts[8]), u"ads.example，其他");
    EXPECT_EQ(preferences.text(keys.translationIdentifier), u"id-1");
    EXPECT_TRUE(preferences.on("注销按钮"));
    EXPECT_EQ(preferences.number("大小"), 12);
    EXPECT_TRUE(preferences.on("kqwzgs"));
    EXPECT_FALSE(preferences.on(keys.showButton));
    EXPECT_EQ(preferences.number(keys.panelHeight), 0);
    EXPECT_EQ(preferences.text(keys.panelColour), u"");
    EXPECT_FALSE(preferences.on("没有"));
}

bool isEmpty(const Preferences& preferences) {
    return !preferences.on(keys.recolour) && !preferences.on("注销按钮");
}

TEST(Preferences, ReadsBothForms) {
    expectSample(Preferences::parse(xmlPropertyList(sample)));
    for (const std::size_t size : {1U, 2U, 3U, 8U}) {
        expectSample(
            Preferences::parse(binaryPropertyList(sample, std::max<std::size_t>(size, 2), size)));
    }
}

TEST(Preferences, EveryKnownKeyIsFoundInBothForms) {
    WrittenEntries entries;
    std::set<std::string_view> names;
    const auto known = std::bit_cast<std::array<Key, knownKeyCount>>(keys);
    for (const Key& key : known) {
        entries.emplace_back(key.name(), static_cast<std::int64_t>(entries.size() + 1));
        names.insert(key.name());
    }
    EXPECT_EQ(names.size(), knownKeyCount);
    const Preferences xml = Preferences::parse(xmlPropertyList(entries));
    const Preferences binary = Preferences::parse(binaryPropertyList(entries));
    for (const auto& [name, value] : entries) {
        EXPECT_EQ(xml.number(name), static_cast<double>(std::get<std::int64_t>(value))) << name;
        EXPECT_EQ(binary.number(name), static_cast<double>(std::get<std::int64_t>(value))) << name;
    }
}

TEST(Preferences, TheLastOfEqualKeysCounts) {
    const WrittenEntries twice = {{"kqwzgs", true}, {"a", true}, {"kqwzgs", false}, {"a", false}};
    for (const std::string& file : {xmlPropertyList(twice), binaryPropertyList(twice)}) {
        const Preferences preferences = Preferences::parse(file);
        EXPECT_FALSE(preferences.on(keys.recolour));
        EXPECT_FALSE(preferences.on("a"));
    }
}

struct Conversion {
    WrittenValue value;
    bool on;
    double number;
    std::u16string text;
};

TEST(Preferences, ConvertsValuesAsThePlatformDoes) {
    const Conversion conversions[] = {
        {true, true, 1, u""},
        {false, false, 0, u""},
        {std::int64_t{0}, false, 0, u""},
        {std::int64_t{-1}, true, -1, u""},
        {std::int64_t{16777217}, true, 16777216, u""}, // float precision
        {0.25, true, 0.25, u""},
        {"", false, 0, u""},
        {"YES", true, 0, u"YES"},
        {"no", false, 0, u"no"},
        {"true", true, 0, u"true"},
        {"TX", true, 0, u"TX"},
        {"  +0001x", true, 1, u"  +0001x"},
        {"000", false, 0, u"000"},
        {"-0y", true, 0, u"-0y"},
        {"--1", false, 0, u"--1"},
        {"12.5px", true, 12.5, u"12.5px"},
        {"\t-3e2", true, -300, u"\t-3e2"},
        {".5", false, 0.5, u".5"},
        {"x1", false, 0, u"x1"},
        {"　7", true, 7, u"　7"},
        {"\u200B7", false, 0, u"\u200B7"}, // has no width, but is no white space
        {"１", false, 0, u"１"},
        {"😄", false, 0, u"😄"},
    };
    for (const Conversion& conversion : conversions) {
        const WrittenEntries entries = {{"kqxydx", conversion.value}};
        for (const std::string& file : {xmlPropertyList(entries), binaryPropertyList(entries)}) {
            const Preferences preferences = Preferences::parse(file);
            EXPECT_EQ(preferences.on("kqxydx"), conversion.on) << file;
            EXPECT_EQ(preferences.number("kqxydx"), conversion.number) << file;
            EXPECT_EQ(preferences.text("kqxydx"), conversion.text) << file;
        }
    }
}

TEST(Preferences, AFileCutShortAnywhereIsEmpty) {
    const std::string xml = xmlPropertyList(sample);
    for (std::size_t size = 0; size + 1 < xml.size(); ++size) { // but for the line break at the end
        ASSERT_TRUE(isEmpty(Preferences::parse(xml.substr(0, size)))) << size;
    }
    expectSample(Preferences::parse(xml.substr(0, xml.size() - 1)));
    const std::string binary = binaryPropertyList(sample);
    for (std::size_t size = 0; size < binary.size(); ++size) {
        ASSERT_TRUE(isEmpty(Preferences::parse(binary.substr(0, size)))) << size;
    }
}

TEST(Preferences, MissingAndStrangeFilesAreEmpty) {
    const support::TemporaryFolder folder;
    const std::string pipe = folder.path() / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_TRUE(isEmpty(Preferences::readFile(folder.path() / "missing")));
    EXPECT_TRUE(isEmpty(Preferences::readFile(folder.path())));
    EXPECT_TRUE(isEmpty(Preferences::readFile(pipe)));
    EXPECT_TRUE(isEmpty(Preferences::readFile("")));
    EXPECT_TRUE(isEmpty(Preferences::readFile(folder.write("empty", ""))));
    EXPECT_TRUE(isEmpty(Preferences::readFile(folder.write("noise", "\x01\x02 noise"))));
    std::string huge = xmlPropertyList(sample);
    huge.append((std::size_t{16} << 20) + 1 - huge.size(), '\n');
    EXPECT_TRUE(isEmpty(Preferences::readFile(folder.write("huge", huge))));
    huge.pop_back();
    expectSample(Preferences::readFile(folder.write("large", huge)));
}

TEST(Preferences, ChangesInPlaceWithinOneTickAreSeen) {
    const support::TemporaryFolder folder;
    const std::string off = binaryPropertyList({{"kqwzgs", false}});
    const std::string path = folder.write("file", off);
    const auto place = static_cast<off_t>(off.find('\x08', 8));
    const int descriptor = open(path.c_str(), O_WRONLY);
    for (int round = 0; round < 1000; ++round) {
        const char marker = round % 2 == 0 ? '\x09' : '\x08';
        ASSERT_EQ(pwrite(descriptor, &marker, 1, place), 1);
        ASSERT_EQ(Preferences::readFile(path).on(keys.recolour), round % 2 == 0);
    }
    close(descriptor);
}

TEST(Preferences, OnlyAFileThatSaysTheSameIsSharedWithTheLastReading) {
    const support::TemporaryFolder folder;
    const std::string bytes = xmlPropertyList(sample);
    const auto readings = [&folder](const std::string& first, const std::string& second) {
        const Preferences before = Preferences::readFile(folder.write("file", first));
        const Preferences after = Preferences::readFile(folder.write("file", second));
        return std::pair(before, after);
    };
    for (const std::string& same :
         {bytes, binaryPropertyList(sample), std::string("malformed"), std::string(),
          bytes + std::string((1 << 14) - bytes.size(), '\n'),
          bytes + std::string(1 << 20, '\n')}) {
        const auto [before, after] = readings(same, same);
        EXPECT_TRUE(after.sharesWith(before)) << same.size();
        const auto [longer, shorter] = readings(same + '\n', same);
        EXPECT_FALSE(shorter.sharesWith(longer)) << same.size();
        const auto [shortened, lengthened] = readings(same, same + '\n');
        EXPECT_FALSE(lengthened.sharesWith(shortened)) << same.size();
    }
    const auto [before, after] = readings(bytes, xmlPropertyList({{"kqwzdx", true}}));
    expectSample(before); // what was read stays as it was
    EXPECT_TRUE(after.on(keys.resize));
}

TEST(Preferences, APipeIsNoFileWhateverComesOutOfIt) {
    const support::TemporaryFolder folder;
    const std::string bytes = xmlPropertyList(sample);
    expectSample(Preferences::readFile(folder.write("file", bytes)));
    const std::string pipe = folder.path() / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int descriptor = open(pipe.c_str(), O_RDWR | O_NONBLOCK);
    ASSERT_EQ(write(descriptor, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    EXPECT_TRUE(isEmpty(Preferences::readFile(pipe)));
    std::string kept(bytes.size(), ' ');
    EXPECT_EQ(read(descriptor, kept.data(), kept.size()), static_cast<ssize_t>(kept.size()));
    EXPECT_EQ(kept, bytes) << "what somebody else waits for was taken";
    close(descriptor);
    EXPECT_TRUE(isEmpty(Preferences::readFile("/dev/zero")));
}

TEST(Preferences, AreReadByManyThreadsWhileTheyChange) {
    const support::TemporaryFolder folder;
    const std::string path = folder.write("file", xmlPropertyList({{"kqwzgs", true}}));
    std::atomic<bool> changing = true;
    std::atomic<int> torn = 0;
    const auto read = [&] {
        while (changing) {
            const Preferences preferences = Preferences::readFile(path);
            torn += preferences.on(keys.recolour) == preferences.on(keys.resize) ? 1 : 0;
        }
    };
    std::vector<std::thread> readers;
    for (int thread = 0; thread < 4; ++thread) {
        readers.emplace_back(read);
    }
    for (int round = 0; round < 200; ++round) {
        const std::string next =
            folder.write("next", xmlPropertyList({{round % 2 == 0 ? "kqwzdx" : "kqwzgs", true}}));
        std::filesystem::rename(next, path);
    }
    changing = false;
    for (std::thread& reader : readers) {
        reader.join();
    }
    EXPECT_EQ(torn, 0);
}

TEST(Preferences, AreReadFromTheirPlaceOnTheDevice) {
    const support::TemporaryFolder device;
    const std::string name = "var/mobile/Library/Preferences/cn.zerk.hovtanprefs.plist";
    device.write(name, xmlPropertyList({{"kqwzgs", true}}));
    device.write("var/jb/" + name, xmlPropertyList({{"kqwzdx", true}}));
    const auto switches = [&] {
        deviceroot_set(device.path().c_str());
        const Preferences preferences = Preferences::read();
        return std::string(preferences.on(keys.recolour) ? "recolour " : "") +
               (preferences.on(keys.resize) ? "resize " : "");
    };
    EXPECT_EQ(support::inFreshProcess(switches), "resize ");
    std::filesystem::remove_all(device.path() / "var/jb/var");
    EXPECT_EQ(support::inFreshProcess(switches), "") << "the layout goes by the folder alone";
    std::filesystem::remove_all(device.path() / "var/jb");
    EXPECT_EQ(support::inFreshProcess(switches), "recolour ");
}

} // namespace
} // namespace wentra::preferences
