// NSError.
#pragma once

#include "bindings/foundation/dictionary.hpp"

namespace ns {

struct Error : objc::Kind<Error, "NSError"> {
    using Kind::Kind;

    static Error with(String domain, long code, Dictionary userInfo = nullptr) {
        return sendClass<"errorWithDomain:code:userInfo:", Error>(domain, code, userInfo);
    }
    /// With a description for people, and nothing else.
    static Error withDescription(String domain, long code, String description) {
        using namespace literals;
        return with(domain, code,
                    Dictionary::withObject(description, u"NSLocalizedDescription"_ns));
    }
    [[nodiscard]] String domain() const { return send<"domain", String>(); }
    [[nodiscard]] long code() const { return send<"code", long>(); }
    [[nodiscard]] Dictionary userInfo() const { return send<"userInfo", Dictionary>(); }
    /// What a person reads about it.
    [[nodiscard]] String localizedDescription() const {
        return send<"localizedDescription", String>();
    }
};

} // namespace ns
