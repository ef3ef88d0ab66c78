// Which addresses are blocked where.
#include "library/blocking/block_rules.hpp"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>

namespace wentra::blocking {
namespace {

using preferences::Preferences;

/// A file with one text.
Preferences with(const std::string& key, const std::string& text) {
    return Preferences::parse("<plist><dict><key>" + key + "</key><string>" + text +
                              "</string></dict></plist>");
}
std::string keyOf(EntryPoint point) {
    return std::string(preferences::keys.blockedHosts.at(static_cast<std::size_t>(point)).name());
}

constexpr std::array allPoints{
    EntryPoint::newUrl,          EntryPoint::protocol,
    EntryPoint::initialisedUrl,  EntryPoint::dataTask,
    EntryPoint::urlOfRequest,    EntryPoint::webView,
    EntryPoint::connection,      EntryPoint::dataTaskOfSessionClass,
    EntryPoint::handledDataTask,
};

TEST(BlockRules, EachPointHasItsOwnWords) {
    const std::vector<std::pair<std::u16string, std::vector<EntryPoint>>> blockedAt{
        {u"https://a/mp/getappmsgad?", {EntryPoint::newUrl}},
        {u"https://a/mp/masonryfeed", {EntryPoint::newUrl}},
        {u"https://a/mp/relatedarticle", {EntryPoint::newUrl}},
        {u"https://changhewh.example", {EntryPoint::newUrl}},
        {u"https://a/snscosdownload", {EntryPoint::newUrl}},
        {u"https://hsld240.example", {EntryPoint::newUrl}},
        {u"https://a/ad_data", {EntryPoint::newUrl}},
        {u"https://a/haoka", {EntryPoint::initialisedUrl}},
        {u"https://a/zxxjyz", {EntryPoint::initialisedUrl}},
        {u"https://pgdt.example", {EntryPoint::initialisedUrl}},
        {u"https://a/189xxl", {EntryPoint::dataTaskOfSessionClass, EntryPoint::handledDataTask}},
        {u"https://a/zhangjiakou",
         {EntryPoint::dataTaskOfSessionClass, EntryPoint::handledDataTask}},
        {u"https://a/youkazhushou",
         {EntryPoint::dataTaskOfSessionClass, EntryPoint::handledDataTask}},
        {u"https://a/business-ad",
         {EntryPoint::initialisedUrl, EntryPoint::dataTaskOfSessionClass,
          EntryPoint::handledDataTask}},
        {u"https://a/forceffort",
         {EntryPoint::newUrl, EntryPoint::initialisedUrl, EntryPoint::dataTaskOfSessionClass,
          EntryPoint::handledDataTask}},
        {u"https://a/bjmantis",
         {EntryPoint::newUrl, EntryPoint::protocol, EntryPoint::initialisedUrl,
          EntryPoint::dataTaskOfSessionClass, EntryPoint::handledDataTask}},
        {u"https://wxsnsdythumb.example",
         {EntryPoint::newUrl, EntryPoint::protocol, EntryPoint::initialisedUrl,
          EntryPoint::dataTaskOfSessionClass, EntryPoint::handledDataTask}},
        {u"wxsnsdythumb.wxs.qq.com", {allPoints.begin(), allPoints.end()}},
        {u"https://A/HAOKA", {}},
        {u"https://example.com/", {}},
        {u"", {}},
    };
    const BlockRules rules(Preferences::parse(""));
    for (const auto& [address, points] : blockedAt) {
        for (const EntryPoint point : allPoints) {
            EXPECT_EQ(rules.blocks(point, address),
                      std::ranges::find(points, point) != points.end())
                << std::string(address.begin(), address.end()) << " at " << static_cast<int>(point);
        }
    }
}

TEST(BlockRules, TheUsersWordsAreForOnePointEach) {
    for (const EntryPoint point : allPoints) {
        const BlockRules rules(with(keyOf(point), "mine.example,"));
        for (const EntryPoint asked : allPoints) {
            EXPECT_EQ(rules.blocks(asked, u"mine.example"), asked == point);
            EXPECT_FALSE(rules.blocks(asked, u"other.example"));
            EXPECT_EQ(rules.blocks(asked, u"wxsnsdythumb.wxs.qq.com"), true) << "ours still count";
        }
    }
}

TEST(BlockRules, TheFirstPointReadsItsTextDifferently) {
    const std::string text = "foo, bar#x,last";
    const BlockRules first(with(keyOf(EntryPoint::newUrl), text));
    EXPECT_TRUE(first.blocks(EntryPoint::newUrl, u"a foo"));
    EXPECT_TRUE(first.blocks(EntryPoint::newUrl, u"ax"));
    EXPECT_FALSE(first.blocks(EntryPoint::newUrl, u"a last")) << "no comma ends it";
    EXPECT_FALSE(first.blocks(EntryPoint::newUrl, u" bar")) << "nothing before a # counts";
    const BlockRules other(with(keyOf(EntryPoint::initialisedUrl), text));
    EXPECT_TRUE(other.blocks(EntryPoint::initialisedUrl, u"a last"));
    EXPECT_TRUE(other.blocks(EntryPoint::initialisedUrl, u"a bar#x"));
    EXPECT_FALSE(other.blocks(EntryPoint::initialisedUrl, u"abar#x")) << "blanks count";
}

TEST(BlockRules, AHostIsNeverAPartOfAnother) {
    const BlockRules rules(Preferences::parse(""));
    for (const EntryPoint point : {EntryPoint::dataTask, EntryPoint::urlOfRequest,
                                   EntryPoint::webView, EntryPoint::connection}) {
        EXPECT_FALSE(rules.blocks(point, u"x.wxsnsdythumb.wxs.qq.com"));
        EXPECT_FALSE(rules.blocks(point, u"wxs.qq.com"));
        EXPECT_FALSE(rules.blocks(point, u"WXSNSDYTHUMB.WXS.QQ.COM"));
    }
}

TEST(BlockRules, TenMegabytesOfWordsAreTaken) {
    std::string text;
    constexpr std::size_t size = 10U << 20U;
    for (int word = 0; text.size() < size; ++word) {
        text += "w" + std::to_string(word) + ".example,";
    }
    const BlockRules rules(with(keyOf(EntryPoint::newUrl), text));
    EXPECT_TRUE(rules.blocks(EntryPoint::newUrl, u"https://w77777.example/"));
    EXPECT_FALSE(rules.blocks(EntryPoint::newUrl, u"https://w77777.exampl"));
    const BlockRules one(with(keyOf(EntryPoint::protocol), std::string(size, 'a')));
    EXPECT_FALSE(one.blocks(EntryPoint::protocol, std::u16string(1000, u'a')));
}

TEST(BlockRules, AreMadeOnceForTheSameBytes) {
    const Preferences preferences = with(keyOf(EntryPoint::newUrl), "one,");
    const auto rules = blockRules(preferences);
    EXPECT_EQ(blockRules(preferences), rules);
    const auto others = blockRules(with(keyOf(EntryPoint::newUrl), "two,"));
    EXPECT_NE(others, rules);
    EXPECT_TRUE(others->blocks(EntryPoint::newUrl, u"two"));
    EXPECT_TRUE(rules->blocks(EntryPoint::newUrl, u"one")) << "who holds them may go on";
}

TEST(BlockRules, ThreadsGetTheRulesOfWhatTheyRead) {
    constexpr int threadCount = 16;
    constexpr int rounds = 300;
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int number = 0; number < threadCount; ++number) {
        threads.emplace_back([number, &wrong] {
            const std::string own = "word" + std::to_string(number) + "x";
            for (int round = 0; round < rounds; ++round) {
                const auto rules = blockRules(with(keyOf(EntryPoint::protocol), own));
                const std::u16string address(own.begin(), own.end());
                wrong += rules->blocks(EntryPoint::protocol, address) ? 0 : 1;
                wrong += rules->blocks(EntryPoint::protocol, u"word99x") ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong, 0);
}

} // namespace
} // namespace wentra::blocking
