// Reading the page's messages; nothing that it can send is trusted.
#include "desktop/viewer/page_message.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace desktop::viewer {
namespace {

using Json = nlohmann::json;

const Json& member(const Json& message, const char* name) {
    const auto found = message.find(name);
    if (found == message.end()) {
        throw MessageError(std::string(name) + " is missing");
    }
    return *found;
}

std::string text(const Json& message, const char* name) {
    const Json& value = member(message, name);
    if (!value.is_string()) {
        throw MessageError(std::string(name) + " is no text");
    }
    return value.get<std::string>();
}

double number(const Json& value, double least, double most) {
    const double read = value.is_number() ? value.get<double>() : least - 1;
    if (!(read >= least && read <= most)) {
        throw MessageError("not a number from " + std::to_string(least) + " to " +
                           std::to_string(most));
    }
    return read;
}

/// Far beyond any screen, so that fingers may leave it.
double coordinate(const Json& value) {
    constexpr double farthest = 100'000;
    return number(value, -farthest, farthest);
}

template <class Value, std::size_t Count>
Value choice(const std::string& word,
             const std::array<std::pair<std::string_view, Value>, Count>& choices) {
    const auto* found =
        std::ranges::find(choices, word, &std::pair<std::string_view, Value>::first);
    if (found == choices.end()) {
        throw MessageError("unknown: " + word);
    }
    return found->second;
}

PageMessage fingers(const Json& message) {
    constexpr std::size_t most = 10;
    constexpr std::array<std::pair<std::string_view, FingerPhase>, 4> phases{
        {{"began", FingerPhase::began},
         {"moved", FingerPhase::moved},
         {"ended", FingerPhase::ended},
         {"cancelled", FingerPhase::cancelled}}};
    Fingers read{choice(text(message, "phase"), phases), {}};
    const Json& points = member(message, "points");
    if (!points.is_array() || points.empty() || points.size() > most) {
        throw MessageError("points are one to ten fingers");
    }
    for (const Json& point : points) {
        constexpr std::int64_t largestId = 1'000'000;
        if (!point.is_array() || point.size() != 3 || !point[0].is_number_unsigned() ||
            point[0].get<std::uint64_t>() > largestId) {
            throw MessageError("a finger is [id, x, y]");
        }
        const Finger finger{point[0].get<std::int64_t>(), coordinate(point[1]),
                            coordinate(point[2])};
        if (std::ranges::find(read.fingers, finger.id, &Finger::id) != read.fingers.end()) {
            throw MessageError("a finger is there twice");
        }
        read.fingers.push_back(finger);
    }
    return read;
}

PageMessage wheel(const Json& message) {
    return Wheel{coordinate(member(message, "x")), coordinate(member(message, "y")),
                 coordinate(member(message, "byX")), coordinate(member(message, "byY"))};
}

PageMessage look(const Json& message) {
    constexpr double smallest = 0.5;
    constexpr double largest = 3;
    return Look{number(member(message, "scale"), smallest, largest)};
}

PageMessage seen(const Json& message) {
    const Json& picture = member(message, "picture");
    if (!picture.is_number_unsigned() ||
        picture.get<std::uint64_t>() > std::numeric_limits<std::uint32_t>::max()) {
        throw MessageError("picture is no number of a picture");
    }
    return Seen{picture.get<std::uint32_t>()};
}

PageMessage insert(const Json& message) { return Insert{text(message, "text")}; }
PageMessage compose(const Json& message) { return Compose{text(message, "text")}; }

PageMessage press(const Json& message) {
    constexpr std::array<std::pair<std::string_view, Key>, 2> keys{
        {{"deleteBackward", Key::deleteBackward}, {"enter", Key::enter}}};
    return Press{choice(text(message, "key"), keys)};
}

PageMessage paste(const Json& message) { return Paste{text(message, "picture")}; }

PageMessage ask(const Json& message) {
    const Json& request = member(message, "request");
    if (!request.is_object()) {
        throw MessageError("request is no object");
    }
    return Ask{request.dump()};
}

PageMessage takeHand(const Json&) { return TakeHand{}; }

PageMessage launch(const Json& message) { return Launch{text(message, "application")}; }

using Reader = PageMessage (*)(const Json& message);
constexpr std::array<std::pair<std::string_view, Reader>, 11> readers{{{"fingers", &fingers},
                                                                       {"wheel", &wheel},
                                                                       {"look", &look},
                                                                       {"seen", &seen},
                                                                       {"insert", &insert},
                                                                       {"compose", &compose},
                                                                       {"press", &press},
                                                                       {"paste", &paste},
                                                                       {"ask", &ask},
                                                                       {"takeHand", &takeHand},
                                                                       {"launch", &launch}}};

/// Deeper values are refused while they are read: each level takes a stack frame later.
Json parse(std::string_view text) {
    constexpr int deepest = 200;
    bool tooDeep = false;
    Json message = Json::parse(
        text,
        [&tooDeep](int depth, Json::parse_event_t, const Json&) {
            tooDeep = tooDeep || depth > deepest;
            return depth <= deepest;
        },
        false);
    if (tooDeep || !message.is_object()) {
        throw MessageError(tooDeep ? "nested too deeply" : "not a JSON object");
    }
    return message;
}

} // namespace

PageMessage parsePageMessage(std::string_view received) {
    const Json message = parse(received);
    return choice(text(message, "type"), readers)(message);
}

} // namespace desktop::viewer
