// Names of the entries that a change makes for itself and nobody else has to do with.
#pragma once

#include <string>
#include <string_view>

namespace wentra::files {

/// A name that nothing else has, for as long as a change is at work. What is left of one that was
/// killed has such a name too, and is an entry like any other.
class PassingName {
public:
    PassingName();
    PassingName(const PassingName&) = delete;
    PassingName& operator=(const PassingName&) = delete;
    ~PassingName();

    /// Its path in the folder that the entry lies in.
    [[nodiscard]] std::string beside(const std::string& entry) const;

private:
    std::string name_;
};

/// Whether a change of this process is at work under the name. Any thread.
[[nodiscard]] bool isPassing(std::string_view name);

} // namespace wentra::files
