// Unpacking Debian packages.
#pragma once

#include "library/files/browser/browser.hpp"

#include "bindings/objc/part.hpp"

namespace wentra::files {

/// No menu leads here; scripts and other add-ons may.
class PackageExtraction : public objc::Part<UmaCollectionViewController> {
public:
    using Part::Part;
    static PackageExtraction& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"extractDeb:toPath:", &PackageExtraction::extract>(),
        };
    }

private:
    void extract(ns::String package, ns::String folder) const;
};

} // namespace wentra::files
