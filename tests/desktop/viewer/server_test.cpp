// Visits by plain sockets: a descriptor short, an impatient visitor, an address cut short.
#include "desktop/viewer/listener.hpp"
#include "desktop/viewer/server.hpp"

#include <gtest/gtest.h>

#include <array>
#include <condition_variable>
#include <ctime>
#include <mutex>
#include <netinet/in.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using namespace desktop::viewer;

const std::string token = "0123456789abcdef0123456789abcdef";

/// A visitor who has not come yet.
class Visitor {
public:
    Visitor() : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {}
    Visitor(const Visitor&) = delete;
    Visitor& operator=(const Visitor&) = delete;
    ~Visitor() { leave(); }

    void ask(const Listener& listener, const std::string& path,
             const std::string& headers = "Connection: close\r\n") const {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(listener.port());
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        ASSERT_EQ(connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        askOn(path, headers);
    }
    /// Without waiting for what was asked before.
    void askOn(const std::string& path,
               const std::string& headers = "Connection: close\r\n") const {
        say("GET " + path + " HTTP/1.1\r\nHost: 127.0.0.1\r\n" + headers + "\r\n");
    }
    /// As a page does that shows the phone.
    void connectPage(const Listener& listener) const {
        ask(listener, "/" + token + "/socket",
            "Origin: http://127.0.0.1\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
            "Sec-WebSocket-Version: 13\r\nSec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n");
        EXPECT_TRUE(isAnswered(10'000)); // nothing may be said before
    }
    /// A short text, masked by zeros.
    void sayAsPage(const std::string& text) const {
        say("\x81" + std::string(1, static_cast<char>(0x80U | text.size())) + std::string(4, '\0') +
            text);
    }
    /// Whether there is an answer within that time.
    [[nodiscard]] bool isAnswered(int milliseconds) const {
        pollfd watched{socket_, POLLIN, 0};
        return poll(&watched, 1, milliseconds) == 1;
    }
    /// All that comes until the connection ends.
    [[nodiscard]] std::string answer() const {
        std::string text;
        std::array<char, 4096> part{};
        for (ssize_t count = 0; (count = read(socket_, part.data(), part.size())) > 0;) {
            text.append(part.data(), static_cast<std::size_t>(count));
        }
        return text;
    }
    void leave() {
        if (socket_ >= 0) {
            close(std::exchange(socket_, -1));
        }
    }
    [[nodiscard]] int socket() const { return socket_; }

private:
    void say(const std::string& bytes) const {
        ASSERT_EQ(write(socket_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }

    int socket_;
};

/// A server that makes nothing by itself, and what it was asked for.
class Desk {
public:
    /// The number of the next fetch that is told.
    FetchNumber nextFetch() {
        std::unique_lock lock(mutex_);
        told_.wait(lock, [this] { return !fetches_.empty(); });
        const FetchNumber fetch = fetches_.back();
        fetches_.clear();
        return fetch;
    }
    /// What pages have said, once there is so much.
    std::vector<std::string> said(std::size_t count) {
        std::unique_lock lock(mutex_);
        told_.wait(lock, [this, count] { return said_.size() >= count; });
        return said_;
    }
    Server& server() { return server_; }
    [[nodiscard]] const Listener& listener() const { return listener_; }

private:
    void fetched(FetchNumber fetch) {
        const std::lock_guard lock(mutex_);
        fetches_.push_back(fetch);
        told_.notify_one();
    }

    void heard(const std::string& text) {
        const std::lock_guard lock(mutex_);
        said_.push_back(text);
        told_.notify_one();
    }

    std::mutex mutex_;
    std::condition_variable told_;
    std::vector<FetchNumber> fetches_;
    std::vector<std::string> said_;
    Listener listener_{0};
    Server server_{dup(listener_.socket()),
                   token,
                   {[](PageNumber) {}, [this](PageNumber, const std::string& text) { heard(text); },
                    [](PageNumber) {},
                    [this](FetchNumber fetch, const std::string&) { fetched(fetch); }}};
};

TEST(Server, TheAddressWithoutItsLastSlashLeadsToThePage) {
    Desk desk;
    const Visitor visitor;
    visitor.ask(desk.listener(), "/" + token);
    const std::string answer = visitor.answer();
    EXPECT_TRUE(answer.starts_with("HTTP/1.1 308 ")) << answer;
    EXPECT_NE(answer.find("\r\nLocation: /" + token + "/\r\n"), std::string::npos) << answer;
}

TEST(Server, KnowsWhoWaitsNoMore) {
    Desk desk;
    Visitor impatient;
    impatient.ask(desk.listener(), "/" + token + "/screenshot.png");
    const FetchNumber unwanted = desk.nextFetch();
    EXPECT_TRUE(desk.server().isAwaited(unwanted));
    impatient.leave();
    const Visitor patient;
    patient.ask(desk.listener(), "/" + token + "/screenshot.png");
    const FetchNumber wanted = desk.nextFetch(); // after the news of the other's end
    EXPECT_FALSE(desk.server().isAwaited(unwanted));
    EXPECT_TRUE(desk.server().isAwaited(wanted));
    desk.server().answer(unwanted, {200, "text/plain", "late"});
    desk.server().answer(wanted, {200, "text/plain", "here"});
    EXPECT_TRUE(patient.answer().ends_with("\r\n\r\nhere"));
    EXPECT_FALSE(desk.server().isAwaited(wanted));
}

TEST(Server, AVisitorWhoAsksOnStillWaits) {
    Desk desk;
    const Visitor eager;
    eager.ask(desk.listener(), "/" + token + "/screenshot.png");
    const FetchNumber first = desk.nextFetch();
    eager.askOn("/" + token);
    const Visitor other;
    other.ask(desk.listener(), "/" + token + "/pasteboard.png");
    static_cast<void>(desk.nextFetch()); // after the news that there is more to read
    EXPECT_TRUE(desk.server().isAwaited(first));
    desk.server().answer(first, {200, "text/plain", "here"});
    EXPECT_TRUE(eager.answer().ends_with("\r\n\r\nhere"));
}

TEST(Server, TakesInSixtyFourMessagesUntilSomeAreHandled) {
    Desk desk;
    const Visitor page;
    page.connectPage(desk.listener());
    for (int number = 1; number <= 70; ++number) {
        page.sayAsPage(std::to_string(number));
    }
    EXPECT_EQ(desk.said(64).back(), "64");
    const Visitor other;
    other.ask(desk.listener(), "/" + token + "/screenshot.png");
    static_cast<void>(desk.nextFetch()); // behind what the page has said before
    EXPECT_EQ(desk.said(64).size(), 64U);
    desk.server().handled(1);
    EXPECT_EQ(desk.said(65).back(), "65");
}

/// Allows no further descriptor for as long as it lives.
class NoDescriptors {
public:
    NoDescriptors() {
        getrlimit(RLIMIT_NOFILE, &before_);
        const int next = dup(0); // the lowest that is free
        close(next);
        rlimit none = before_;
        none.rlim_cur = static_cast<rlim_t>(next);
        setrlimit(RLIMIT_NOFILE, &none);
    }
    NoDescriptors(const NoDescriptors&) = delete;
    NoDescriptors& operator=(const NoDescriptors&) = delete;
    ~NoDescriptors() { setrlimit(RLIMIT_NOFILE, &before_); }

private:
    rlimit before_{};
};

TEST(Server, SleepsWhileThereAreNoDescriptors) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizers need descriptors themselves";
#endif
    Desk desk;
    const Visitor visitor;
    {
        const NoDescriptors none;
        visitor.ask(desk.listener(), "/" + token);
        const std::clock_t before = std::clock();
        EXPECT_FALSE(visitor.isAnswered(500));
        const double seconds = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
        EXPECT_LT(seconds, 0.1) << "of the processor's time in half a second";
    }
    EXPECT_TRUE(visitor.answer().starts_with("HTTP/1.1 308 ")) << "as soon as there are some";
}

} // namespace
