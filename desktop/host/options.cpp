// Reading the command line.
#include "desktop/host/options.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <limits>

namespace desktop::host {

const char* const usage =
    "usage: host [--app NAME] [--bundle ID] [--root DIR] [--library FILE | --no-library]\n"
    "            [--clock virtual|real] [--date YYYY-MM-DDThh:mm:ss]\n"
    "            [--automation | --viewer [--port N]]\n"
    "            [--device NAME | --size WxH@S] [--content FILE] [--settings-bundle]\n"
    "            [--device-files] [--list-apps] [--list-devices] [--help]\n";

namespace {

/// The words of the command line, taken one after the other.
class Words {
public:
    explicit Words(std::span<const char* const> words) : rest_(words) {}

    [[nodiscard]] bool empty() const { return rest_.empty(); }
    std::string take() {
        std::string word = rest_.front();
        rest_ = rest_.subspan(1);
        return word;
    }
    std::string value(const std::string& option) {
        if (empty()) {
            throw UsageError(option + " needs a value");
        }
        return take();
    }

private:
    std::span<const char* const> rest_;
};

/// A number that ends at `end`, which must follow it (NUL: the end of the text).
double measure(const char*& at, char end, double largest) {
    char* stop = nullptr;
    const double value = std::strtod(at, &stop);
    const bool fits = stop != at && *stop == end && value >= 1 && value <= largest;
    at = stop + (*stop == '\0' ? 0 : 1);
    return fits ? value : std::nan("");
}

Device parseSize(const std::string& text) {
    constexpr double largestSide = 4096;
    constexpr double largestScale = 4;
    const char* at = text.c_str();
    const double width = measure(at, 'x', largestSide);
    const double height = measure(at, '@', largestSide);
    const double scale = measure(at, '\0', largestScale);
    if (std::isnan(width + height + scale)) {
        throw UsageError("--size " + text + ": not of the form 390x844@3");
    }
    return deviceOfSize({width, height}, scale);
}

Device parseDevice(const std::string& name) {
    const Device* device = deviceNamed(name);
    if (device == nullptr) {
        throw UsageError("--device " + name + ": unknown; --list-devices tells all");
    }
    return *device;
}

Clock::Mode parseClock(const std::string& text) {
    if (text == "virtual") {
        return Clock::Mode::virtual_;
    }
    if (text == "real") {
        return Clock::Mode::real;
    }
    throw UsageError("--clock " + text + ": neither virtual nor real");
}

/// By the calendar of the device's time zone.
double parseDate(const std::string& text) {
    std::tm parts{};
    parts.tm_isdst = -1; // as the zone has it on that day
    const char* const end = strptime(text.c_str(), "%Y-%m-%dT%H:%M:%S", &parts);
    if (end == nullptr || *end != '\0') {
        throw UsageError("--date " + text + ": not of the form 2024-12-30T12:00:00");
    }
    return static_cast<double>(std::mktime(&parts));
}

std::uint16_t parsePort(const std::string& text) {
    const char* at = text.c_str();
    const double port = measure(at, '\0', std::numeric_limits<std::uint16_t>::max());
    if (std::isnan(port) || port != std::floor(port)) {
        throw UsageError("--port " + text + ": not a number from 1 to 65535");
    }
    return static_cast<std::uint16_t>(port);
}

struct Option {
    const char* name;
    void (*read)(Options& options, Words& words);
};

constexpr std::array<Option, 19> table{{
    {"--app", [](Options& o, Words& w) { o.application = w.value("--app"); }},
    {"--bundle", [](Options& o, Words& w) { o.bundle = w.value("--bundle"); }},
    {"--root", [](Options& o, Words& w) { o.root = w.value("--root"); }},
    {"--library", [](Options& o, Words& w) { o.library = w.value("--library"); }},
    {"--no-library", [](Options& o, Words&) { o.loadsLibrary = false; }},
    {"--clock", [](Options& o, Words& w) { o.clock = parseClock(w.value("--clock")); }},
    {"--date", [](Options& o, Words& w) { o.date = parseDate(w.value("--date")); }},
    {"--automation", [](Options& o, Words&) { o.automation = true; }},
    {"--viewer", [](Options& o, Words&) { o.viewer = true; }},
    {"--port", [](Options& o, Words& w) { o.port = parsePort(w.value("--port")); }},
    {"--device", [](Options& o, Words& w) { o.device = parseDevice(w.value("--device")); }},
    {"--size", [](Options& o, Words& w) { o.device = parseSize(w.value("--size")); }},
    {"--content", [](Options& o, Words& w) { o.content = w.value("--content"); }},
    {"--settings-bundle", [](Options& o, Words&) { o.settingsBundle = true; }},
    {"--device-files", [](Options& o, Words&) { o.deviceFiles = true; }},
    {"--list-apps", [](Options& o, Words&) { o.listsApplications = true; }},
    {"--list-devices", [](Options& o, Words&) { o.listsDevices = true; }},
    {"--help", [](Options& o, Words&) { o.help = true; }},
    {"-h", [](Options& o, Words&) { o.help = true; }},
}};

} // namespace

Options parseOptions(std::span<const char* const> words) {
    Options options;
    Words rest(words);
    while (!rest.empty()) {
        const std::string word = rest.take();
        const auto* option = std::ranges::find(table, word, &Option::name);
        if (option == table.end()) {
            throw UsageError("unknown option: " + word);
        }
        option->read(options, rest);
    }
    if (options.library && !options.loadsLibrary) {
        throw UsageError("--no-library contradicts --library");
    }
    if (options.viewer && options.automation) {
        throw UsageError("--viewer contradicts --automation");
    }
    if (options.port != 0 && !options.viewer) {
        throw UsageError("--port is for --viewer");
    }
    return options;
}

} // namespace desktop::host
