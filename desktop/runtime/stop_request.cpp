// A flag, and a descriptor for those who sleep.
#include "desktop/runtime/stop_request.hpp"

#include <atomic>
#include <csignal>
#include <sys/eventfd.h>

namespace desktop::stop_request {
namespace {

std::atomic<bool> made{false};
std::atomic<int> received{0};
std::atomic<int> sleepers{-1};

void receive(int signal) {
    received = signal;
    make();
}

} // namespace

void watchSignals() {
    sleepers = eventfd(made ? 1 : 0, EFD_CLOEXEC | EFD_NONBLOCK);
    struct sigaction action {};
    action.sa_handler = &receive;
    action.sa_flags = SA_RESTART; // sleepers in `poll` wake all the same
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        sigaction(signal, &action, nullptr);
    }
}

void make() {
    made = true;
    eventfd_write(sleepers, 1); // allowed in a signal's handler
}

bool isMade() { return made; }

int signal() { return received; }

int descriptor() { return sleepers; }

} // namespace desktop::stop_request
