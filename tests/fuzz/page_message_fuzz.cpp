// Feeds arbitrary texts to the reader of the page's messages; whatever it accepts must be in
// bounds.
#include "desktop/viewer/page_message.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <set>

namespace {

using namespace desktop::viewer;

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

bool isOnAnyScreen(double coordinate) { return std::abs(coordinate) <= 100'000; }

struct Check {
    void operator()(const Fingers& message) const {
        require(!message.fingers.empty() && message.fingers.size() <= 10);
        std::set<std::int64_t> ids;
        for (const Finger& finger : message.fingers) {
            require(isOnAnyScreen(finger.x) && isOnAnyScreen(finger.y));
            require(finger.id >= 0 && ids.insert(finger.id).second);
        }
    }
    void operator()(const Wheel& message) const {
        for (const double part : {message.x, message.y, message.byX, message.byY}) {
            require(isOnAnyScreen(part));
        }
    }
    void operator()(const Look& message) const {
        require(message.scale >= 0.5 && message.scale <= 3);
    }
    void operator()(const Ask& message) const {
        require(message.request.starts_with('{') && message.request.ends_with('}'));
        require(message.request.find('\n') == std::string::npos);
    }
    template <class Message>
    void operator()(const Message&) const {}
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    try {
        std::visit(Check{}, parsePageMessage({reinterpret_cast<const char*>(bytes), size}));
    } catch (const MessageError&) {
        return 0;
    }
    return 0;
}
