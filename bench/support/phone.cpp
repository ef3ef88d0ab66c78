// Setting up the phone that benchmarks run on.
#include "bench/support/phone.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/deviceroot/deviceroot.hpp"
#include "desktop/foundation/foundation.hpp"
#include "desktop/platform/platform.hpp"
#include "desktop/uikit/uikit.hpp"
#include "library/editing/menu_commands.hpp"
#include "library/labels/stored_rules.hpp"
#include "library/paths/root_path.hpp"
#include "library/preferences/key_table.hpp"
#include "library/preferences/preference_keys.hpp"
#include "tests/library/preferences/property_list/property_list_writer.hpp"
#include "tests/support/temporary_folder.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace bench {
namespace {

using namespace wentra;

bool isMenuSwitch(const preferences::Key& key) {
    return std::ranges::any_of(editing::menuCommands, [&key](const editing::MenuCommand& command) {
        return command.preference.name() == key.name();
    });
}

/// Every known key, and others up to 150; among the switches that are on are those of labels and
/// of the edit menu.
preferences::WrittenEntries entries() {
    constexpr std::size_t keyCount = 150;
    constexpr std::size_t labelKeys = 10;
    preferences::WrittenEntries entries;
    using Keys = std::array<preferences::Key, preferences::knownKeyCount>;
    for (const preferences::Key& key : std::bit_cast<Keys>(preferences::keys)) {
        entries.emplace_back(key.name(), entries.size() < labelKeys || isMenuSwitch(key));
    }
    while (entries.size() < keyCount) {
        entries.emplace_back("otherKey" + std::to_string(entries.size()), true);
    }
    return entries;
}

const support::TemporaryFolder& deviceRoot() {
    static const support::TemporaryFolder folder;
    return folder;
}

void storeRules() {
    constexpr int textRules = 1000;
    constexpr int otherRules = 100;
    labels::RuleSet rules;
    for (const labels::RuleKind kind : labels::storingOrder) {
        const int count = kind == labels::RuleKind::text ? textRules : otherRules;
        for (int rule = 0; rule < count; ++rule) {
            const std::string number = std::to_string(rule);
            rules[kind].assign(u"label " + std::u16string(number.begin(), number.end()), u"16");
        }
    }
    labels::storeRuleSet(rules);
}

/// The last word of a mapping's first line: its file, or what else it is.
std::string nameOf(const std::string& mapping) { return mapping.substr(mapping.rfind(' ') + 1); }

/// Of all mappings, or of those of a file alone: without the pages that the linker gave it beyond
/// its end.
std::size_t residentBytes(std::string_view file = {}) {
    constexpr std::string_view label = "Rss:";
    constexpr std::size_t kibibyte = 1024;
    std::ifstream mappings("/proc/self/smaps");
    std::size_t resident = 0;
    bool counts = false;
    for (std::string line; std::getline(mappings, line);) {
        if (line.starts_with(label)) {
            resident += counts ? std::stoul(line.substr(label.size())) * kibibyte : 0;
        } else if (line.find('-') < line.find(' ')) {
            counts = file.empty() || nameOf(line) == file;
        }
    }
    return resident;
}

const std::string& preferencePath() {
    static const std::string path = [] {
        // The rootless layout, as on most phones.
        std::filesystem::create_directories(deviceRoot().path() /
                                            "var/jb/var/mobile/Library/Preferences");
        deviceroot_set(deviceRoot().path().c_str());
        return paths::preferencePath();
    }();
    return path;
}

const std::string& write(const preferences::WrittenEntries& entries, PlistForm form) {
    std::ofstream(preferencePath(), std::ios::binary)
        << (form == PlistForm::xml ? preferences::xmlPropertyList(entries)
                                   : preferences::binaryPropertyList(entries));
    return preferencePath();
}

/// Hosts and paths such as people collect.
std::string blockedWords() {
    constexpr int wordCount = 1000;
    constexpr std::array<const char*, 5> forms{"ads%d.example.com,", "track%d,", "/banner/%d/,",
                                               "www.shop%d.cn,", "cdn%d-stat.net,"};
    std::string words;
    for (int word = 0; word < wordCount; ++word) {
        std::array<char, 64> text{};
        std::snprintf(text.data(), text.size(), forms.at(static_cast<std::size_t>(word) % 5), word);
        words += text.data();
    }
    return words;
}

} // namespace

const std::string& preferenceFile(PlistForm form) { return write(entries(), form); }

const std::string& blockingFile(PlistForm form, bool blocks) {
    preferences::WrittenEntries written = entries();
    for (auto& [key, value] : written) {
        if (key == preferences::keys.blockRequests.name()) {
            value = blocks;
        } else if (key == preferences::keys.blockedHosts.front().name()) {
            value = blockedWords();
        }
    }
    return write(written, form);
}

void startPlatform() {
    static const bool started = [] {
        preferenceFile(PlistForm::xml);
        static const objc::Pool pool; // for as long as the process measures
        desktop::foundation::install("com.example.bench");
        desktop::registerPlatform();
        desktop::uikit::startApplication(desktop::usualDevice());
        storeRules();
        return true;
    }();
    static_cast<void>(started);
}

Loading loadLibrary() {
    using namespace std::chrono;
    const std::size_t before = residentBytes();
    const auto start = steady_clock::now();
    if (dlopen(WENTRA_PATH, RTLD_NOW | RTLD_LOCAL) == nullptr) {
        std::fprintf(stderr, "cannot load the library: %s\n", dlerror());
        std::exit(EXIT_FAILURE);
    }
    const duration<double, std::milli> taken = steady_clock::now() - start;
    const std::size_t own = residentBytes(std::filesystem::canonical(WENTRA_PATH).native());
    return {.milliseconds = taken.count(),
            .ownResidentBytes = own,
            .otherResidentBytes = residentBytes() - before - own,
            .fileBytes = static_cast<std::size_t>(std::filesystem::file_size(WENTRA_PATH))};
}

void startPhone() {
    static const bool loaded = [] {
        startPlatform();
        loadLibrary();
        return true;
    }();
    static_cast<void>(loaded);
}

} // namespace bench
