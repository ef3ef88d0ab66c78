// Two hundred lines translated at once by URL sessions, against the same requests by curl's own
// tool.
#include "bindings/foundation/url_session.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/foundation.hpp"
#include "desktop/services/loopback_names.hpp"
#include "desktop/services/translation/translation.hpp"

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <latch>
#include <unistd.h>

namespace {

using namespace desktop::services;

constexpr int lines = 200;

std::string addressOf(int line) {
    const std::string text = "line" + std::to_string(line);
    return "https://" + std::string(translation::hostName) + "/api/trans/vip/translate?q=" + text +
           "&from=auto&to=zh&appid=desktop&salt=1&sign=" +
           translation::signatureOf(translation::accountId, text, "1", translation::accountKey);
}

void sessions(benchmark::State& state) {
    static const bool once = [] {
        desktop::foundation::install("bench.network");
        return true;
    }();
    static_cast<void>(once);
    const auto session = ns::UrlSession::sharedSession();
    for (auto _ : state) {
        const objc::Pool pool;
        std::latch outstanding(lines);
        std::atomic<int> failures{0};
        for (int i = 0; i < lines; ++i) {
            session
                .dataTask(
                    ns::Url::withString(ns::String::fromUtf8(addressOf(i))),
                    ns::UrlSession::Handler::from([&](ns::Data data, ns::UrlResponse, ns::Error) {
                        failures += data.length() == 0 ? 1 : 0;
                        outstanding.count_down();
                    }))
                .resume();
        }
        outstanding.wait();
        if (failures != 0) {
            state.SkipWithError("requests failed");
        }
    }
}

/// What curl is told: the authority, where the service is, and all addresses.
class CurlFiles {
public:
    CurlFiles() {
        std::ofstream(folder_ + "/authority.pem") << authorityCertificate();
        std::ofstream config(folder_ + "/config");
        for (int i = 0; i < lines; ++i) {
            config << "url = \"" << addressOf(i) << "\"\noutput = /dev/null\n";
        }
    }
    CurlFiles(const CurlFiles&) = delete;
    CurlFiles& operator=(const CurlFiles&) = delete;
    ~CurlFiles() { static_cast<void>(std::system(("rm -r " + folder_).c_str())); }

    [[nodiscard]] std::string command() const {
        return "curl --silent --fail --noproxy '*' --parallel --cacert " + folder_ +
               "/authority.pem --connect-to ::127.0.0.1:" +
               std::to_string(*portOf(translation::hostName)) + " --config " + folder_ +
               "/config 2>/dev/null";
    }

private:
    static std::string freshFolder() {
        std::string name = "/tmp/wentra-bench-XXXXXX";
        return mkdtemp(name.data()) == nullptr ? "." : name;
    }
    std::string folder_ = freshFolder();
};

void curlTool(benchmark::State& state) {
    const CurlFiles files;
    const std::string command = files.command();
    for (auto _ : state) {
        if (std::system(command.c_str()) != 0) {
            state.SkipWithError("curl failed");
        }
    }
}

BENCHMARK(sessions)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(curlTool)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
