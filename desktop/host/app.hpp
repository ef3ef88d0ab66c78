// What the host knows of an application that it can run.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

namespace desktop::host {

struct App {
    const char* name;
    const char* bundleIdentifier;
    /// Makes the classes known that the application's binary brings, before any library is loaded.
    void (*registerClasses)();
    /// Reads the texts to show instead of the built-in ones, before anything else is started; null
    /// when the application's texts are fixed. Throws UsageError.
    void (*readContent)(const std::filesystem::path& file);
    /// The application's own code: makes its window. Main thread.
    void (*launch)();
    /// Whether its Info dictionary says what it wants photos, microphone and speech for: without
    /// that, the system ends it when it asks for them.
    bool describesUsage = true;
};

extern const App notesApp;
extern const App settingsApp;
extern const App chatApp;
extern const App browserApp;
extern const App filesApp;
extern const App playgroundApp;
extern const App plainApp;

/// Every application, in the order in which they are listed.
[[nodiscard]] std::span<const App* const> apps();

/// Null when there is none of that name.
[[nodiscard]] const App* appNamed(std::string_view name);

} // namespace desktop::host
