// The lists, and how they are searched: names only count where one ends with its kind.
#include "library/analysis/system_libraries.hpp"

#include <algorithm>
#include <array>
#include <span>

namespace wentra::analysis {
namespace {

using Names = std::span<const std::u16string_view>;

/// Ordered by their last units, for `endsWithOneOf`.
template <std::size_t Count>
constexpr std::array<std::u16string_view, Count>
byLastUnit(const std::u16string_view (&names)[Count]) {
    std::array<std::u16string_view, Count> ordered = std::to_array(names);
    std::ranges::sort(ordered, {}, [](std::u16string_view name) { return name.back(); });
    return ordered;
}

/// `.dylib` stands behind each.
constexpr auto libraries = byLastUnit<37>({
    u"libAXSpeechManager",
    u"libEmbeddedSystemAUs",
    u"libFontParser",
    u"libGSFont",
    u"libboringssl",
    u"libc++.1",
    u"libc++abi",
    u"libcommonCrypto",
    u"libcopyfile",
    u"libcorecrypto",
    u"libdispatch",
    u"libicucore.A",
    u"libnetwork",
    u"libobjc.A",
    u"libremovefile",
    u"libsqlite3",
    u"libswiftCore",
    u"libswiftDarwin",
    u"libswiftDispatch",
    u"libswiftFoundation",
    u"libswiftObjectiveC",
    u"libswiftUIKit",
    u"libsystem_blocks",
    u"libsystem_c",
    u"libsystem_info",
    u"libsystem_kernel",
    u"libsystem_m",
    u"libsystem_malloc",
    u"libsystem_notify",
    u"libsystem_platform",
    u"libsystem_pthread",
    u"libsystem_trace",
    u"libunwind",
    u"libusrtcp",
    u"libxpc",
    u"libz.1",
    u"systemhook",
});

/// Libraries that only the analysis of reports counts as the system's.
constexpr auto furtherLibraries = byLastUnit<2>({
    u"libdns_services",
    u"libsystem_darwin",
});

/// `.framework` stands behind each.
constexpr auto frameworks = byLastUnit<79>({
    u"AccessibilityUIShared",
    u"AdSupport",
    u"AppPredictionClient",
    u"AppSupport",
    u"AudioSession",
    u"AudioToolbox",
    u"BaseBoard",
    u"BiomeStorage",
    u"BiomeStreams",
    u"BoardServices",
    u"CFNetwork",
    u"CacheDelete",
    u"CallKit",
    u"CommonUtilities",
    u"CoreData",
    u"CoreFoundation",
    u"CoreGraphics",
    u"CoreMaterial",
    u"CoreMedia",
    u"CoreMotion",
    u"CoreServices",
    u"CoreServicesInternal",
    u"CoreServicesStore",
    u"CoreSpotlight",
    u"CoreText",
    u"CoreVideo",
    u"CoreWiFi",
    u"DoNotDisturb",
    u"DoNotDisturbKit",
    u"Focus",
    u"FocusUI",
    u"FontServices",
    u"Foundation",
    u"FrontBoard",
    u"FrontBoardServices",
    u"GraphicsServices",
    u"IDS",
    u"IOKit",
    u"IOSurface",
    u"IconServices",
    u"ImageIO",
    u"Intents",
    u"JavaScriptCore",
    u"KeyboardArbiter",
    u"MaterialKit",
    u"MediaControls",
    u"MediaRemote",
    u"MetalKit",
    u"MetricKit",
    u"Pasteboard",
    u"PhotoLibraryServices",
    u"PlugInKit",
    u"PowerLog",
    u"Preferences",
    u"QuartzCore",
    u"RTTUtilities",
    u"RunningBoardServices",
    u"Security",
    u"SiriActivation",
    u"SplashBoard",
    u"SpotlightUI",
    u"SpringBoard",
    u"SpringBoardFoundation",
    u"SpringBoardHome",
    u"SyncedDefaults",
    u"TCC",
    u"TelephonyUtilities",
    u"UIFoundation",
    u"UIKitCore",
    u"UniformTypeIdentifiers",
    u"UserNotifications",
    u"UserNotificationsServer",
    u"UserNotificationsUIKit",
    u"VideoToolbox",
    u"WebCore",
    u"WebKit",
    u"WiFiKit",
    u"Widgets",
    u"WirelessProximity",
});

struct ByLastUnit {
    bool operator()(std::u16string_view name, char16_t unit) const { return name.back() < unit; }
    bool operator()(char16_t unit, std::u16string_view name) const { return unit < name.back(); }
};

bool endsWithOneOf(std::u16string_view text, Names names) {
    if (text.empty()) {
        return false;
    }
    const auto [first, last] =
        std::equal_range(names.begin(), names.end(), text.back(), ByLastUnit{});
    return std::any_of(first, last,
                       [text](std::u16string_view name) { return text.ends_with(name); });
}

/// Whether the text names one of the list's libraries or frameworks at that dot, the name before
/// it and its kind behind it.
bool isNamedAt(std::u16string_view text, std::size_t dot, SystemList list) {
    const std::u16string_view name = text.substr(0, dot);
    const std::u16string_view kind = text.substr(dot);
    if (kind.starts_with(u".dylib")) {
        return endsWithOneOf(name, libraries) ||
               (list == SystemList::reports && endsWithOneOf(name, furtherLibraries));
    }
    return kind.starts_with(u".framework") && endsWithOneOf(name, frameworks);
}

constexpr std::u16string_view systemFolder = u"/System/Library/";

bool isFrameworkPath(std::u16string_view path) {
    path.remove_prefix(systemFolder.size());
    return path.starts_with(u"PrivateFrameworks") || path.starts_with(u"Frameworks");
}

/// Whether what is sought stands somewhere between those bounds as it has to.
template <class Accept>
bool standsIn(SearchAhead& sought, std::size_t start, std::size_t end, Accept accept) {
    for (sought.skipTo(start); sought.place() < end; sought.skipTo(sought.place() + 1)) {
        if (accept(sought.place())) {
            return true;
        }
    }
    return false;
}

} // namespace

SystemNames::SystemNames(std::u16string_view text, SystemList list)
    : text_(text), list_(list), dots_(text, u"."), paths_(text, systemFolder) {}

bool SystemNames::standIn(std::size_t start, std::size_t end) {
    return standsIn(dots_, start, end,
                    [this](std::size_t dot) { return isNamedAt(text_, dot, list_); }) ||
           standsIn(paths_, start, end,
                    [this](std::size_t path) { return isFrameworkPath(text_.substr(path)); });
}

bool isSystemLine(std::u16string_view line, SystemList list) {
    return SystemNames(line, list).standIn(0, line.size());
}

} // namespace wentra::analysis
