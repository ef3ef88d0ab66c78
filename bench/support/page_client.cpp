// Reading, and writing what has gathered, as two conversations on one thread.
#include "bench/support/page_client.hpp"

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/websocket.hpp>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <spawn.h>
#include <stdexcept>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {
namespace {

namespace asio = boost::asio;
using asio::ip::tcp;
using nlohmann::json;

/// Starts the program with its output in a pipe, whose end to read from is the result.
std::unique_ptr<FILE, int (*)(FILE*)> spawn(pid_t& process, std::vector<std::string> words) {
    std::array<int, 2> ends{};
    posix_spawn_file_actions_t actions;
    if (pipe2(ends.data(), O_CLOEXEC) != 0 || posix_spawn_file_actions_init(&actions) != 0) {
        throw std::runtime_error("no pipe");
    }
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    const int failure =
        posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    if (failure != 0) {
        throw std::runtime_error(std::string("the host does not start: ") + std::strerror(failure));
    }
    return {fdopen(ends[0], "r"), fclose};
}

} // namespace

PageClient::PageClient(const Program& program) {
    connect(start(program));
    asio::co_spawn(context_, reading(), asio::detached);
}

PageClient::~PageClient() {
    kill(process_, SIGINT);
    waitpid(process_, nullptr, 0);
}

PageClient::Address PageClient::start(const Program& program) {
    const auto output = spawn(process_, {program.host, "--viewer", "--library", program.library,
                                         "--root", program.root, "--app", program.application});
    constexpr std::string_view start = "http://127.0.0.1:";
    std::array<char, 4096> buffer{};
    while (std::fgets(buffer.data(), buffer.size(), output.get()) != nullptr) {
        std::string_view line = buffer.data();
        if (line.starts_with(start)) {
            line.remove_prefix(start.size());
            const std::size_t path = line.find('/');
            return {static_cast<std::uint16_t>(std::stoul(std::string(line.substr(0, path)))),
                    std::string(line.substr(path, line.find('\n') - path))};
        }
    }
    throw std::runtime_error("the host tells no address");
}

void PageClient::connect(const Address& address) {
    using boost::beast::websocket::stream_base;
    const std::string host = "127.0.0.1:" + std::to_string(address.port);
    stream_.next_layer().connect({asio::ip::address_v4::loopback(), address.port});
    stream_.next_layer().set_option(tcp::no_delay(true));
    stream_.set_option(
        stream_base::decorator([&host](boost::beast::websocket::request_type& request) {
            request.set(boost::beast::http::field::origin, "http://" + host);
        }));
    stream_.read_message_max(std::size_t{256} << 20U);
    stream_.handshake(host, address.path + "socket");
}

void PageClient::say(const json& message) {
    outgoing_.push_back(message.dump());
    if (outgoing_.size() == 1) {
        asio::co_spawn(context_, writing(), asio::detached);
    }
}

asio::awaitable<void> PageClient::writing() {
    stream_.text(true);
    while (!outgoing_.empty()) {
        co_await stream_.async_write(asio::buffer(outgoing_.front()), asio::use_awaitable);
        outgoing_.pop_front();
    }
}

asio::awaitable<void> PageClient::reading() {
    std::vector<unsigned char> message;
    while (true) {
        message.clear();
        auto buffer = asio::dynamic_buffer(message);
        co_await stream_.async_read(buffer, asio::use_awaitable);
        received(message, stream_.got_text());
    }
}

void PageClient::received(const std::vector<unsigned char>& message, bool isText) {
    if (isText) {
        json told = json::parse(message, nullptr, false);
        if (told.is_object() && told.value("type", "") == "answer") {
            answer_ = std::move(told["response"]);
        }
        return;
    }
    std::uint32_t number = 0;
    std::memcpy(&number, message.data(), sizeof number);
    ++frames_;
    bytes_ += message.size();
    say({{"type", "seen"}, {"picture", number}});
}

json PageClient::ask(json request) {
    request["id"] = ++asked_;
    say({{"type", "ask"}, {"request", std::move(request)}});
    runUntil([this] { return answer_.is_object() && answer_.value("id", 0U) == asked_; });
    if (!answer_.value("ok", false)) {
        throw std::runtime_error(answer_.dump());
    }
    return answer_.value("result", json());
}

void PageClient::readFrame() {
    runUntil([this, before = frames_] { return frames_ > before; });
}

void PageClient::runUntil(const std::function<bool()>& isDone) {
    while (!isDone()) {
        if (context_.run_one_for(std::chrono::seconds(60)) == 0) {
            throw std::runtime_error("the host is silent");
        }
    }
}

void PageClient::read(std::chrono::duration<double> time) {
    context_.run_for(std::chrono::duration_cast<std::chrono::microseconds>(time));
}

void PageClient::sayEvery(std::chrono::microseconds interval, std::function<json()> next) {
    const bool isSaying = static_cast<bool>(next_);
    interval_ = interval;
    next_ = std::move(next);
    if (!isSaying && next_) {
        asio::co_spawn(context_, saying(), asio::detached);
    }
}

asio::awaitable<void> PageClient::saying() {
    asio::steady_timer timer(context_, asio::steady_timer::clock_type::now());
    while (next_) {
        say(next_());
        timer.expires_at(timer.expiry() + interval_);
        co_await timer.async_wait(asio::use_awaitable);
    }
}

} // namespace bench
