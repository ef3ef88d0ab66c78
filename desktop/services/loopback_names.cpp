// The table of names, and starting what they lead to.
#include "desktop/services/loopback_names.hpp"

#include "desktop/services/authority.hpp"
#include "desktop/services/https_server.hpp"
#include "desktop/services/translation/translation.hpp"

#include <openssl/crypto.h>

#include <algorithm>
#include <array>
#include <mutex>

namespace desktop::services {
namespace {

struct Name {
    std::string_view hostName;
    Answer (*handler)(std::string_view target);
    std::uint16_t port; ///< 0 until the service runs
};

std::array names{
    Name{translation::hostName, &translation::answerTo, 0},
};

const Authority& authority() {
    static const Authority* const made = [] {
        // The services' threads run until the process ends; the library must not be torn down
        // under them.
        OPENSSL_init_crypto(OPENSSL_INIT_NO_ATEXIT, nullptr);
        return new Authority;
    }();
    return *made;
}

} // namespace

std::optional<std::uint16_t> portOf(std::string_view hostName) {
    static std::mutex mutex;
    const std::scoped_lock lock(mutex);
    const auto name = std::ranges::find(names, hostName, &Name::hostName);
    if (name == names.end()) {
        return std::nullopt;
    }
    if (name->port == 0) {
        name->port =
            serveHttps(authority().identityFor(std::string(hostName)), Handler(name->handler));
    }
    return name->port;
}

const std::string& authorityCertificate() { return authority().certificate(); }

} // namespace desktop::services
