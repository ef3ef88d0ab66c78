// The host: a process in which an application runs on the desktop platform, with the library in it.
#include "desktop/host/app.hpp"
#include "desktop/host/automation.hpp"
#include "desktop/host/device_files.hpp"
#include "desktop/host/device_folder.hpp"
#include "desktop/host/event_recording.hpp"
#include "desktop/host/forced_end.hpp"
#include "desktop/host/hooked_methods.hpp"
#include "desktop/host/main_loop.hpp"
#include "desktop/host/options.hpp"
#include "desktop/host/settings_bundle.hpp"

#include "bindings/foundation/user_defaults.hpp"
#include "bindings/objc/boundary.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/bundle.hpp"
#include "desktop/foundation/foundation.hpp"
#include "desktop/platform/platform.hpp"
#include "desktop/program/standard_descriptors.hpp"
#include "desktop/runtime/process_end.hpp"
#include "desktop/runtime/stop_request.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"
#include "desktop/uikit/uikit.hpp"
#include "desktop/viewer/access.hpp"
#include "desktop/viewer/listener.hpp"
#include "desktop/viewer/phone.hpp"
#include "desktop/viewer/phone_settings.hpp"
#include "desktop/viewer/resting_phone.hpp"
#include "desktop/viewer/supervisor.hpp"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <functional>
#include <poll.h>
#include <unistd.h>

namespace {

using namespace desktop;
using namespace desktop::host;

constexpr int usageFailure = 2;

const App& chosenApp(const Options& options) {
    const App* app = appNamed(options.application);
    if (app == nullptr) {
        throw UsageError("unknown application: " + options.application);
    }
    return *app;
}

void readContent(const App& app, const Options& options) {
    if (!options.content) {
        return;
    }
    if (app.readContent == nullptr) {
        throw UsageError("--content: the texts of " + options.application + " are fixed");
    }
    app.readContent(*options.content);
}

void listApplications() {
    for (const App* app : apps()) {
        std::printf("%-10s %s\n", app->name, app->bundleIdentifier);
    }
}

void listDevices() {
    for (const Device& device : devices()) {
        std::printf("%-18s %gx%g@%g\n", std::string(device.name).c_str(), device.size.width,
                    device.size.height, device.scale);
    }
}

std::filesystem::path libraryFile(const Options& options) {
    return options.library.value_or(std::filesystem::read_symlink("/proc/self/exe").parent_path() /
                                    "../lib/Wentra.so");
}

void loadLibrary(const std::filesystem::path& file) {
    if (dlopen(std::filesystem::absolute(file).c_str(), RTLD_NOW | RTLD_LOCAL) == nullptr) {
        throw std::runtime_error(std::string("cannot load the library: ") + dlerror());
    }
}

void setClock(const Options& options) {
    Clock::shared().setMode(options.clockMode());
    if (options.date) {
        Clock::shared().setDate(*options.date);
    }
}

/// Brings the application up in the order of a phone: its classes exist before any library does.
void launch(const App& app, const Options& options) {
    const objc::Pool pool;
    app.registerClasses();
    rememberMethods();
    if (options.loadsLibrary) {
        loadLibrary(libraryFile(options));
    }
    uikit::startApplication(options.device);
    uikit::setAppearance(options.appearance);
    setScreenContentSize(options.textSize);
    app.launch();
}

/// Brings the device and the application up, lets `drive` run the main thread, and saves what is
/// to be saved. Gives the exit status.
int runDevice(const App& app, const Options& options, const std::function<void(Values&)>& drive) {
    const objc::Pool pool;
    try {
        setClock(options);
        foundation::install(options.bundle.value_or(app.bundleIdentifier));
        if (!app.describesUsage) {
            foundation::forgetUsageDescriptions();
        }
        recordEvents();
        registerPlatform();
        Values values; // before the library can change how its parts are made
        launch(app, options);
        drive(values);
        closePlatform();
        ns::UserDefaults::standardUserDefaults().synchronize();
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "host: %s\n", error.what());
        return EXIT_FAILURE;
    } catch (...) {
        const objc::ExceptionText text = objc::describeCurrentException();
        std::fprintf(stderr, "host: %s: %s\n", text.name.c_str(), text.reason.c_str());
        return EXIT_FAILURE;
    }
}

/// Gives the device the settings bundle's pictures and a used phone's files where they are wanted.
void furnish(const DeviceFolder& device, const Options& options) {
    if (options.settingsBundle || options.viewer) {
        addSettingsBundle(device.path());
    }
    if (options.deviceFiles || options.viewer) {
        addDeviceFiles(device.path());
    }
}

/// As the shell tells of a process that a signal has ended.
constexpr int signalStatus = 128;

/// The exit status of a run that gave `status`, and a line if it was cut short.
int ended(int status) {
    const int signal = stop_request::signal();
    if (signal == 0) {
        return status;
    }
    pollfd errors{STDERR_FILENO, POLLOUT, 0};
    if (poll(&errors, 1, 0) > 0) { // nobody may read them, and the end does not wait for it
        dprintf(STDERR_FILENO, "host: ended by SIG%s\n", sigabbrev_np(signal));
    }
    return signalStatus + signal;
}

/// What a signal cuts short leaves nothing behind either.
int leave(const DeviceFolder& device) {
    device.remove();
    return ended(EXIT_FAILURE);
}

int runForScript(const App& app, const Options& options) {
    Streams streams;
    const DeviceFolder device(options.root);
    const ForcedEnd end([&device] { return leave(device); });
    furnish(device, options);
    return ended(runDevice(app, options, [&](Values& values) { automate(streams, values); }));
}

int runAlone(const App& app, const Options& options) {
    const DeviceFolder device(options.root);
    const ForcedEnd end([&device] { return leave(device); });
    furnish(device, options);
    std::fprintf(stderr, "Wentra host %s: %s, device folder %s\n", WENTRA_VERSION, app.name,
                 device.path().c_str());
    return ended(runDevice(app, options, [](Values&) { runUntilStopped(); }));
}

/// Waits until a page starts an application, or the process is asked to stop.
int rest(const viewer::Door& door, const viewer::Start& start,
         const std::filesystem::path& folder) {
    const viewer::RestingPhone phone(door, start, folder);
    runUntilStopped();
    return EXIT_SUCCESS;
}

int runForPage(const App& app, const Options& options) {
    const viewer::Listener listener(options.port);
    const viewer::Door door{listener.socket(), viewer::freshToken()};
    const DeviceFolder device(options.root);
    furnish(device, options);
    std::printf("Wentra %s, data folder %s\nhttp://127.0.0.1:%u/%s/\n", WENTRA_VERSION,
                device.path().c_str(), unsigned{listener.port()}, door.token.c_str());
    return viewer::supervise(app.name, [&](const viewer::Start& start) {
        stop_request::watchSignals();
        if (start.rests) {
            return rest(door, start, device.path());
        }
        Options asked = options;
        if (start.application != app.name) {
            asked.bundle.reset(); // it was given for the first application
        }
        viewer::applySettings(start.settings, asked);
        return runDevice(*appNamed(start.application), asked, [&](Values& values) {
            const viewer::Phone phone(door, start, device.path(), values);
            runUntilStopped();
        });
    });
}

int run(const Options& options) {
    const App& app = chosenApp(options);
    readContent(app, options);
    if (options.automation) {
        return runForScript(app, options);
    }
    return options.viewer ? runForPage(app, options) : runAlone(app, options);
}

} // namespace

int main(int count, char** words) {
    openStandardDescriptors();
    stop_request::watchSignals();
    std::signal(SIGXFSZ, SIG_IGN); // a file that may not grow further is an error of writing it
    try {
        const Options options = parseOptions({words + 1, words + count});
        if (options.help) {
            std::fputs(usage, stdout);
            return EXIT_SUCCESS;
        }
        if (options.listsApplications) {
            listApplications();
            return EXIT_SUCCESS;
        }
        if (options.listsDevices) {
            listDevices();
            return EXIT_SUCCESS;
        }
        endProcess(run(options));
    } catch (const UsageError& error) {
        std::fprintf(stderr, "%shost: %s\n", usage, error.what());
        return usageFailure;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "host: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
