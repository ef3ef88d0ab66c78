// The command line of the host.
#pragma once

#include "desktop/runtime/clock.hpp"
#include "desktop/uikit/application/device.hpp"
#include "desktop/uikit/traits/content_size.hpp"
#include "desktop/uikit/uikit.hpp"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>

namespace desktop::host {

struct Options {
    std::string application = "notes";
    /// Replaces the application's own bundle identifier.
    std::optional<std::string> bundle;
    /// The folder that plays the device's file system; none: a fresh one.
    std::optional<std::filesystem::path> root;
    /// The library to load; none: the one built together with the host.
    std::optional<std::filesystem::path> library;
    bool loadsLibrary = true;
    /// None: virtual under automation, else real.
    std::optional<Clock::Mode> clock;
    /// What the calendar shows at the start, in seconds since 1970; that of the machine if missing.
    std::optional<double> date;
    bool automation = false;
    /// Shows the phone in a browser page, at this port of the loopback address (0: a free one).
    bool viewer = false;
    std::uint16_t port = 0;
    /// Puts the settings bundle's pictures on the device, as for a page.
    bool settingsBundle = false;
    /// Puts a used phone's files on the device, as for a page.
    bool deviceFiles = false;
    Device device = usualDevice();
    uikit::Appearance appearance = uikit::Appearance::light;
    ContentSize textSize = ContentSize::large;
    /// The file with the screen's texts.
    std::optional<std::filesystem::path> content;
    bool listsApplications = false;
    bool listsDevices = false;
    bool help = false;

    [[nodiscard]] Clock::Mode clockMode() const {
        return clock.value_or(automation ? Clock::Mode::virtual_ : Clock::Mode::real);
    }
};

/// What is wrong with a command line or with a file that it names; tells the offending word.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Reads the words after the program's name. Throws UsageError.
[[nodiscard]] Options parseOptions(std::span<const char* const> words);

/// What `--help` prints.
extern const char* const usage;

} // namespace desktop::host
