// What passes through the hooks on requests.
#include "library/blocking/request_hooks.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/foundation/url_connection.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/deviceroot/deviceroot.hpp"
#include "desktop/foundation/foundation.hpp"
#include "tests/support/own_process.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <thread>
#include <vector>

namespace wentra::blocking {
namespace {

using namespace ns::literals;

objc::Object asked;
objc::Object told;

objc::Object note(objc::Next<objc::Object(objc::Object, objc::Object)>, objc::Object,
                  objc::Object request, objc::Object delegate) {
    asked = request;
    told = delegate;
    return u"connection"_ns;
}

TEST(RequestHooks, AConnectionIsMadeOfItsRequestAndItsDelegate) {
    const objc::Pool pool;
    objc::install(objc::classHook<"NSURLConnection", "connectionWithRequest:delegate:", &note>());
    for (const objc::Change& change : requestHooks()) {
        objc::install(change);
    }
    const auto connection =
        ns::UrlConnection::sendClass<"connectionWithRequest:delegate:", objc::Object>(
            u"request"_ns, u"delegate"_ns);
    EXPECT_TRUE(connection && connection.isEqual(u"connection"_ns));
    EXPECT_TRUE(asked && asked.isEqual(u"request"_ns));
    EXPECT_TRUE(told && told.isEqual(u"delegate"_ns));
}

std::string preferencesBlocking(const std::string& words) {
    return "<plist><dict><key>开启广告屏蔽</key><true/><key>Host过滤屏蔽</key><string>" + words +
           ",</string></dict></plist>";
}

/// Makes URLs until told to stop; counts those that are not as either state of the file has it.
void makeUrls(const std::atomic<bool>& stops, std::atomic<int>& wrong, std::atomic<int>& made) {
    while (!stops) {
        const objc::Pool pool;
        const bool isOneBlocked = !ns::Url::withString(u"https://always.example/one"_ns);
        const bool isOther = static_cast<bool>(ns::Url::withString(u"https://example.com"_ns));
        wrong += isOneBlocked && isOther ? 0 : 1;
        static_cast<void>(ns::Url::withString(u"https://changing.example"_ns));
        ++made;
    }
}

TEST(RequestHooks, SixteenThreadsMakeUrlsWhileTheFileChanges) {
    tests::inProcessOfItsOwn([] {
        const support::TemporaryFolder root;
        const std::string folder = "var/mobile/Library/Preferences/";
        const std::string name = "cn.zerk.hovtanprefs.plist";
        root.write(folder + name, preferencesBlocking("always"));
        deviceroot_set(root.path().c_str());
        desktop::foundation::install("test.requests");
        resolvePreferencePath();
        for (const objc::Change& change : requestHooks()) {
            objc::install(change);
        }
        std::atomic<bool> stops = false;
        std::atomic<int> wrong = 0;
        std::atomic<int> made = 0;
        std::vector<std::thread> threads;
        constexpr int threadCount = 16;
        for (int i = 0; i < threadCount; ++i) {
            threads.emplace_back([&] { makeUrls(stops, wrong, made); });
        }
        constexpr int changes = 500;
        for (int change = 0; change < changes || made < changes; ++change) {
            const std::string other = root.write(
                folder + "new", preferencesBlocking("always,changing" + std::to_string(change)));
            std::filesystem::rename(other, root.path() / (folder + name));
        }
        stops = true;
        for (std::thread& thread : threads) {
            thread.join();
        }
        EXPECT_EQ(wrong, 0);
    });
}

} // namespace
} // namespace wentra::blocking
