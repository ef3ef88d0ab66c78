// The network's thread.
#include "desktop/network/transfers.hpp"

#include "desktop/network/transfer.hpp"
#include "desktop/services/loopback_names.hpp"

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>
#include <thread>

namespace desktop::network {
namespace {

/// The platform's own number for a phone.
constexpr long mostConnectionsToAHost = 4;
/// How often transfers look whether they have been quiet for too long.
constexpr int lookMilliseconds = 100;

} // namespace

class Transfers::Engine {
public:
    Engine() {
        services::authorityCertificate(); // before libcurl, to be the first who sets OpenSSL up
        curl_global_init(CURL_GLOBAL_DEFAULT);
        multi_ = curl_multi_init();
        curl_multi_setopt(multi_, CURLMOPT_MAX_HOST_CONNECTIONS, mostConnectionsToAHost);
    }

    /// From any thread: `command` runs on the network's.
    void perform(std::function<void(Engine&)> command) {
        {
            const std::scoped_lock lock(mutex_);
            commands_.push_back(std::move(command));
        }
        curl_multi_wakeup(multi_);
    }

    [[noreturn]] void run() {
        for (;;) {
            runCommands();
            int running = 0;
            curl_multi_perform(multi_, &running);
            takeResults();
            curl_multi_poll(multi_, nullptr, 0, transfers_.empty() ? longSleep : lookMilliseconds,
                            nullptr);
        }
    }

    void add(Ticket ticket, HttpRequest request, std::shared_ptr<HttpListener> listener) {
        auto transfer = std::make_unique<Transfer>(std::move(request), std::move(listener));
        Transfer& added = *transfer;
        transfers_.emplace(ticket, std::move(transfer));
        send(ticket, added);
    }

    void cancel(Ticket ticket) {
        if (const auto found = transfers_.find(ticket); found != transfers_.end()) {
            curl_multi_remove_handle(multi_, found->second->handle());
            const auto transfer = std::move(transfers_.extract(found).mapped());
            transfer->end(LoadFailure::cancelled);
        }
    }

private:
    static constexpr int longSleep = 60'000;

    void runCommands() {
        std::vector<std::function<void(Engine&)>> commands;
        {
            const std::scoped_lock lock(mutex_);
            commands.swap(commands_);
        }
        for (const auto& command : commands) {
            command(*this);
        }
    }

    void send(Ticket ticket, Transfer& transfer) {
        if (const auto failure = transfer.prepare()) {
            transfer.end(failure);
            transfers_.erase(ticket);
            return;
        }
        curl_multi_add_handle(multi_, transfer.handle());
    }

    void takeResults() {
        int left = 0;
        while (const CURLMsg* message = curl_multi_info_read(multi_, &left)) {
            CURL* const handle = message->easy_handle;
            const CURLcode result = message->data.result; // gone with the handle
            curl_multi_remove_handle(multi_, handle);
            takeResult(handle, result);
        }
    }

    void takeResult(CURL* handle, CURLcode result) {
        const auto found = std::ranges::find_if(
            transfers_, [handle](const auto& entry) { return entry.second->handle() == handle; });
        if (found->second->finish(result)) {
            send(found->first, *found->second);
        } else {
            transfers_.erase(found);
        }
    }

    CURLM* multi_;
    std::map<Ticket, std::unique_ptr<Transfer>> transfers_;
    std::mutex mutex_;
    std::vector<std::function<void(Engine&)>> commands_;
};

Transfers::Transfers() : engine_(new Engine) {
    std::thread([engine = engine_] { engine->run(); }).detach();
}

Transfers& Transfers::shared() {
    static auto* transfers = new Transfers; // its thread runs until the process ends
    return *transfers;
}

Transfers::Ticket Transfers::start(HttpRequest request, std::shared_ptr<HttpListener> listener) {
    static std::atomic<Ticket> last{0};
    const Ticket ticket = ++last;
    engine_->perform([ticket, request = std::move(request),
                      listener = std::move(listener)](Engine& engine) mutable {
        engine.add(ticket, std::move(request), std::move(listener));
    });
    return ticket;
}

void Transfers::cancel(Ticket ticket) {
    engine_->perform([ticket](Engine& engine) { engine.cancel(ticket); });
}

} // namespace desktop::network
