// What the page says to the phone, read from the text that it sends.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace desktop::viewer {

enum class FingerPhase { began, moved, ended, cancelled };

/// A finger at a point of the screen, in points; the page numbers its fingers.
struct Finger {
    std::int64_t id;
    double x;
    double y;
};

struct Fingers {
    FingerPhase phase;
    std::vector<Finger> fingers;
};

/// The wheel or two fingers on a trackpad, over a point: the content is to move by that many
/// points.
struct Wheel {
    double x;
    double y;
    double byX;
    double byY;
};

/// The page wants pictures with that many pixels a point.
struct Look {
    double scale;
};

/// The page has drawn this picture and all before it.
struct Seen {
    std::uint32_t picture;
};

/// Text from the keyboard.
struct Insert {
    std::string text;
};

/// The text that an input method is composing, which replaces what it composed before; empty: it
/// has given up.
struct Compose {
    std::string text;
};

enum class Key { deleteBackward, enter };

struct Press {
    Key key;
};

/// A picture for the pasteboard: a file of any format that phones read, in Base64.
struct Paste {
    std::string picture;
};

/// A request of the automation protocol, one line.
struct Ask {
    std::string request;
};

/// The page wants to be the one that has the phone in hand.
struct TakeHand {};

/// Starts the application of that name anew in place of the one that runs.
struct Launch {
    std::string application;
};

using PageMessage =
    std::variant<Fingers, Wheel, Look, Seen, Insert, Compose, Press, Paste, Ask, TakeHand, Launch>;

/// Why a message is refused.
struct MessageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Reads a JSON object with a "type". Throws MessageError for anything that is not exactly one of
/// the messages above; numbers are finite and within what a screen or a picture can have, fingers
/// at most ten and each only once.
[[nodiscard]] PageMessage parsePageMessage(std::string_view text);

} // namespace desktop::viewer
