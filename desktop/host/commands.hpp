// The commands of the protocol.
#pragma once

#include "desktop/host/values.hpp"
#include "desktop/replaykit/screen_film.hpp"
#include "desktop/runtime/event_log.hpp"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace desktop::host {

/// A film of the screen that is being made, and its file.
struct Film {
    std::unique_ptr<ScreenFilm> film;
    std::string file;
};

/// What commands share while the host is driven.
struct Session {
    Values& values;
    bool quits = false;
    std::optional<Film> film{};
};

/// Carries a request out and gives its result. Throws RequestError for arguments that will not do;
/// what the application throws passes through.
using Command = Json (*)(Session& session, const Json& request);

/// Null when there is no such command.
[[nodiscard]] Command commandNamed(std::string_view name);

// Objects and views.
[[nodiscard]] Json send(Session& session, const Json& request);
[[nodiscard]] Json make(Session& session, const Json& request);
[[nodiscard]] Json tree(Session& session, const Json& request);
[[nodiscard]] Json find(Session& session, const Json& request);
[[nodiscard]] Json at(Session& session, const Json& request);
// Fingers on the screen.
[[nodiscard]] Json tap(Session& session, const Json& request);
[[nodiscard]] Json press(Session& session, const Json& request);
[[nodiscard]] Json slide(Session& session, const Json& request);
[[nodiscard]] Json pinch(Session& session, const Json& request);
[[nodiscard]] Json touch(Session& session, const Json& request);
[[nodiscard]] Json wheel(Session& session, const Json& request);
[[nodiscard]] Json swipe(Session& session, const Json& request);
// The controllers that are shown.
[[nodiscard]] Json alert(Session& session, const Json& request);
[[nodiscard]] Json mail(Session& session, const Json& request);
[[nodiscard]] Json screens(Session& session, const Json& request);
// The keyboard and the edit menu.
[[nodiscard]] Json type(Session& session, const Json& request);
[[nodiscard]] Json key(Session& session, const Json& request);
Json keyboard(Session& session, const Json& request);
[[nodiscard]] Json menu(Session& session, const Json& request);
[[nodiscard]] Json context(Session& session, const Json& request);
// What the device keeps.
[[nodiscard]] Json file(Session& session, const Json& request);
[[nodiscard]] Json pasteboard(Session& session, const Json& request);
[[nodiscard]] Json preferences(Session& session, const Json& request);
[[nodiscard]] Json defaults(Session& session, const Json& request);
[[nodiscard]] Json documents(Session& session, const Json& request);
// What the outside world answers.
[[nodiscard]] Json serve(Session& session, const Json& request);
// What is recorded, and what is heard.
[[nodiscard]] Json recorder(Session& session, const Json& request);
[[nodiscard]] Json recognizer(Session& session, const Json& request);
[[nodiscard]] Json film(Session& session, const Json& request);
// The model of phone, how it is held, its buttons, and its appearance.
[[nodiscard]] Json appearance(Session& session, const Json& request);
[[nodiscard]] Json rotate(Session& session, const Json& request);
[[nodiscard]] Json textSize(Session& session, const Json& request);
[[nodiscard]] Json home(Session& session, const Json& request);
[[nodiscard]] Json lock(Session& session, const Json& request);
[[nodiscard]] Json shake(Session& session, const Json& request);
[[nodiscard]] Json device(Session& session, const Json& request);
// Time and events.
[[nodiscard]] Json advance(Session& session, const Json& request);
[[nodiscard]] Json wait(Session& session, const Json& request);
[[nodiscard]] Json events(Session& session, const Json& request);
/// An event as the protocol tells it.
[[nodiscard]] Json toJson(Values& values, const LoggedEvent& event);

} // namespace desktop::host
