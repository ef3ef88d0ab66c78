// Waiting for whichever comes first: the end, or the end of patience.
#include "desktop/host/forced_end.hpp"

#include "desktop/runtime/stop_request.hpp"

#include <array>
#include <cstdlib>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace desktop::host {
namespace {

constexpr int forEver = -1;
constexpr int patienceInMilliseconds = 150;

} // namespace

ForcedEnd::ForcedEnd(std::function<int()> leave)
    : leave_(std::move(leave)), over_(eventfd(0, EFD_CLOEXEC)), thread_([this] { watch(); }) {}

ForcedEnd::~ForcedEnd() {
    eventfd_write(over_, 1);
    thread_.join();
    close(over_);
}

void ForcedEnd::watch() const {
    std::array<pollfd, 2> watched{{{over_, POLLIN, 0}, {stop_request::descriptor(), POLLIN, 0}}};
    while (poll(watched.data(), watched.size(), forEver) < 0) { // a signal's handler ran here
    }
    int ended = 0;
    while ((ended = poll(watched.data(), 1, patienceInMilliseconds)) < 0) {
    }
    if (ended == 0) {
        std::_Exit(leave_());
    }
}

} // namespace desktop::host
