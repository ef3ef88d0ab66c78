// The file of the copied texts: what it holds, what else may lie in its place, and what a sudden
// end of the process leaves of it.
#include "tests/features/clipboard/history_list.hpp"

#include <csignal>
#include <sys/stat.h>

namespace {

using tests::HistoryList;
using tests::Json;
using Texts = std::vector<std::string>;

TEST_F(HistoryList, KeepsAnyTextAsItIs) {
    const std::vector<Json> texts{
        "&<>\"'\r\n\t",
        "😀",
        "\x01 control",
        {{"units", {0x61, 0xD83D, 0x62}}},
        "\uFFFE" + std::string(1, '\0'),
    };
    for (const Json& text : texts) {
        open();
        phone.copy(text);
        close();
    }
    open();
    const Json records = phone.message(list, "clipboardContents");
    ASSERT_EQ(records.size(), texts.size());
    for (std::size_t index = 0; index < texts.size(); ++index) {
        EXPECT_EQ(records[index]["content"], texts[index]) << index;
    }
}

TEST_F(HistoryList, IsXmlWhereverTextsAllowThat) {
    open();
    phone.copy("<a> & 汉字");
    EXPECT_TRUE(support::readFile(file()).starts_with("<?xml"));
    EXPECT_NE(support::readFile(file()).find("<string>&lt;a&gt; &amp; 汉字</string>"),
              std::string::npos);
}

struct OddFile {
    const char* name;
    std::string bytes;
};

class OddHistoryFile : public HistoryList, public testing::WithParamInterface<OddFile> {};

TEST_P(OddHistoryFile, CountsAsNone) {
    std::ofstream(file(), std::ios::binary) << GetParam().bytes;
    open();
    EXPECT_TRUE(shown().empty());
    EXPECT_EQ(support::readFile(file()), GetParam().bytes) << "opening it changes nothing";
    phone.copy("x");
    EXPECT_EQ(stored("content"), (Texts{"x"}));
    EXPECT_TRUE(phone.swallowed().empty());
}

INSTANTIATE_TEST_SUITE_P(
    , OddHistoryFile,
    testing::Values(
        OddFile{"cutShort", "<plist version=\"1.0\"><array><dict><key>content</key><str"},
        OddFile{"garbage", std::string("\0\xFF\xFE garbage", 11)}, OddFile{"empty", ""},
        OddFile{"dictionary", "<plist><dict><key>content</key><string>x</string></dict></plist>"},
        OddFile{"cutBinary", "bplist00\xD1"},
        OddFile{"text", "<plist><string>content</string></plist>"},
        OddFile{"otherThings", "<plist><array><string>x</string><integer>1</integer><array/><dict/>"
                               "<dict><key>content</key><integer>1</integer></dict></array>"
                               "</plist>"}),
    [](const auto& each) { return each.param.name; });

TEST_F(HistoryList, LeavesOutWhatIsNoRecordAndShowsTheRest) {
    std::ofstream(file()) << "<plist><array><string>x</string>"
                             "<dict><key>content</key><string>no time</string></dict>"
                             "<dict><key>content</key><string>odd</string><key>time</key><true/>"
                             "</dict></array></plist>";
    open();
    EXPECT_EQ(shown(), (Texts{"no time", "odd"}));
    phone.tap(barButton("日期"));
    EXPECT_EQ(shown(), (Texts{"no time", "odd"}));
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(HistoryList, LeavesAloneWhatIsNoFile) {
    std::filesystem::create_directories(file() / "kept");
    open();
    phone.copy("x");
    EXPECT_TRUE(shown().empty());
    EXPECT_TRUE(std::filesystem::is_directory(file() / "kept"));
    close();
    std::filesystem::remove_all(file());
    ASSERT_EQ(mkfifo(file().c_str(), 0600), 0);
    open();
    EXPECT_EQ(shown(), (Texts{"x"})) << "nobody waits for a pipe";
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(HistoryList, SurvivesTextsOfAMegabyte) {
    std::string text = "/var/x https://a.example ";
    while (text.size() < 1'000'000) {
        text += "0123456789 abcdefghi 汉字\n";
    }
    write({text, "after"});
    open();
    phone.copy(text);
    phone.copy("small");
    phone.tap(barButton("链接"));
    EXPECT_EQ(shown().size(), 1U);
    EXPECT_EQ(stored("content").back(), "small");
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(HistoryList, SurvivesTenThousandRecords) {
    constexpr std::size_t many = 10'000;
    Texts texts;
    for (std::size_t number = 0; number < many; ++number) {
        texts.push_back("text " + std::to_string(number));
    }
    write(texts, Texts(many, "2024/01/01 00:00:00"));
    open();
    EXPECT_LT(shown().size(), 40U);
    phone.copy("new");
    phone.tap(barButton("日期"));
    phone.tap(barButton("数字"));
    EXPECT_EQ(shown().front(), "text 1") << "one came, one went";
    EXPECT_EQ(stored("content").size(), many);
}

/// Killed while it writes one state of the list after the other.
TEST_F(HistoryList, IsTheOldFileOrTheNewOneWheneverTheProcessIsKilled) {
    write(Texts(50, std::string(20'000, 'x')));
    const std::filesystem::path file = this->file();
    for (int round = 1; round <= 8; ++round) {
        tests::Phone killed({"--app", "notes", "--root", root.path()});
        killed.message(killed.message({{"class", "ClipboardTableViewController"}}, "new"), "view");
        std::string requests;
        for (int number = 0; number < 40; ++number) {
            const std::string text = std::to_string(round) + " " + std::to_string(number);
            requests += Json{{"do", "pasteboard"}, {"set", text}}.dump() + "\n";
        }
        killed.write(requests);
        for (int answers = 0; answers < 4 * round; ++answers) {
            killed.result({{"do", "screens"}}); // takes in the next answer, whosever it is
        }
        killed.signal(SIGKILL);
        EXPECT_EQ(killed.wait(), -SIGKILL);
        const Texts texts = stored("content");
        EXPECT_GE(texts.size(), 2U) << round;
        EXPECT_TRUE(texts.back().starts_with(std::to_string(round) + " ")) << texts.back();
    }
}

} // namespace
