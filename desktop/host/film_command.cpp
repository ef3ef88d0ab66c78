// The command that films the screen for whoever drives the host; the application knows nothing of
// it.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"

#include <utility>

namespace desktop::host {
namespace {

/// The file on this machine that is asked for, or a new one on the device.
std::string fileFor(const Json& request) {
    return argument(request, "file") != nullptr ? stringArgument(request, "file")
                                                : freeFilmFile("film-");
}

Film begin(const std::string& file) {
    auto film = filmScreen(file);
    if (!film) {
        throw RequestError("cannot write " + file);
    }
    return {std::move(film), file};
}

void end(Film film) {
    if (!film.film->finish()) {
        throw RequestError("cannot write " + film.file);
    }
    const auto fields = ns::MutableDictionary::make();
    fields.set(ns::String::fromUtf8(film.file), ns::String::from(u"file"));
    EventLog::shared().record("film", fields);
}

} // namespace

Json film(Session& session, const Json& request) {
    Json file = session.film ? Json(session.film->file) : Json();
    if (argument(request, "films") != nullptr) {
        const bool films = flagArgument(request, "films");
        if (films == session.film.has_value()) {
            throw RequestError(films ? "the screen is being filmed" : "nothing is being filmed");
        }
        if (films) {
            session.film = begin(fileFor(request));
            file = session.film->file;
        } else {
            end(*std::exchange(session.film, std::nullopt));
        }
    }
    return {{"films", session.film.has_value()}, {"file", file}};
}

} // namespace desktop::host
