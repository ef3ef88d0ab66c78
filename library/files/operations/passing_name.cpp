// Keeps the names that are in use.
#include "library/files/operations/passing_name.hpp"

#include "library/files/file_path.hpp"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <mutex>
#include <set>

namespace wentra::files {
namespace {

constexpr std::string_view prefix = ".wentra-";

struct NamesInUse {
    std::mutex mutex;
    std::set<std::string, std::less<>> names;
};

NamesInUse& namesInUse() {
    static auto* all = new NamesInUse; // outlives the last change
    return *all;
}

std::string freshName() {
    constexpr unsigned numbers = 1U << 31U;
    std::array<char, 17> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x%08x", arc4random_uniform(numbers),
                  arc4random_uniform(numbers));
    return std::string(prefix) + digits.data();
}

} // namespace

PassingName::PassingName() : name_(freshName()) {
    const std::scoped_lock lock(namesInUse().mutex);
    namesInUse().names.insert(name_);
}

PassingName::~PassingName() {
    const std::scoped_lock lock(namesInUse().mutex);
    namesInUse().names.erase(name_);
}

std::string PassingName::beside(const std::string& entry) const {
    return joined(parentOf(entry), name_);
}

bool isPassing(std::string_view name) {
    if (!name.starts_with(prefix)) {
        return false; // most names, without waiting for others
    }
    const std::scoped_lock lock(namesInUse().mutex);
    return namesInUse().names.contains(name);
}

} // namespace wentra::files
