// How the phone's recognition of speech behaves, for whoever drives the phone.
#pragma once

#include <string>

namespace desktop {

/// Of the whole phone. Main thread.
struct RecognitionSettings {
    /// What a person answers when an application asks to listen.
    bool authorized = true;
    bool available = true;
    /// Why every recognition fails (UTF-8); none does when it is empty.
    std::string error;

    /// Those that hold now.
    static const RecognitionSettings& shared();
    /// These hold from now on; the recognizers' delegates are told when `available` is another.
    void apply() const;
};

} // namespace desktop
