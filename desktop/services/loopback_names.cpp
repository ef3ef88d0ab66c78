// The table of services, and starting what they lead to.
#include "desktop/services/loopback_names.hpp"

#include "desktop/services/authority.hpp"
#include "desktop/services/files/files.hpp"
#include "desktop/services/https_server.hpp"
#include "desktop/services/links/links.hpp"
#include "desktop/services/translation/translation.hpp"

#include <algorithm>
#include <array>
#include <iterator>
#include <mutex>
#include <utility>

namespace desktop::services {
namespace {

struct Service {
    std::string_view name;
    std::string_view hostName;
    Answer (*handler)(std::string_view target);
    std::uint16_t port; ///< 0 until the service runs
    AnswerChange change;
};

/// Services answer until the process is gone.
auto& services = *new std::array{
    Service{"translation", translation::hostName, &translation::answerTo, 0, {}},
    Service{"links", links::hostName, &links::answerTo, 0, {}},
    Service{"files", files::hostName, &files::answerTo, 0, {}},
};

/// Held while ports and changes are looked at: services answer on threads of their own.
std::mutex mutex;

AnswerChange changeOf(const Service& service) {
    const std::scoped_lock lock(mutex);
    return service.change;
}

const Authority& authority() {
    static const auto* const made = new Authority;
    return *made;
}

} // namespace

std::optional<std::uint16_t> portOf(std::string_view hostName) {
    const std::scoped_lock lock(mutex);
    const auto service = std::ranges::find(services, hostName, &Service::hostName);
    if (service == services.end()) {
        return std::nullopt;
    }
    if (service->port == 0) {
        service->port = serveHttps(authority().identityFor(std::string(hostName)),
                                   [&service = *service](std::string_view target) {
                                       return changeOf(service).appliedTo(service.handler(target));
                                   });
    }
    return service->port;
}

bool changeAnswers(std::string_view name, AnswerChange change) {
    const std::scoped_lock lock(mutex);
    const auto service = std::ranges::find(services, name, &Service::name);
    if (service == services.end()) {
        return false;
    }
    service->change = std::move(change);
    return true;
}

std::vector<std::string_view> serviceNames() {
    std::vector<std::string_view> names;
    std::ranges::transform(services, std::back_inserter(names), &Service::name);
    return names;
}

const std::string& authorityCertificate() { return authority().certificate(); }

} // namespace desktop::services
