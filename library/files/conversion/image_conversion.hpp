// Images in the other format.
#pragma once

#include "bindings/foundation/data.hpp"
#include "bindings/uikit/image.hpp"
#include "library/files/browser/panes.hpp"

namespace wentra::files {

/// What is made lies beside the image that it is made of.
class ImageConversion : public objc::Part<UmaCollectionViewController> {
public:
    ImageConversion(UmaCollectionViewController whole, Panes& panes) : Part(whole), panes_(panes) {}
    static ImageConversion& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"convertImageAtPath:tableView:targetExtension:",
                         &ImageConversion::convert>(),
        };
    }

    /// To "png" or "jpg".
    void convert(ns::IndexPath row, ui::TableView table, ns::String extension);

    /// How images of a kind are named and made.
    struct Target {
        const char* ending;
        ns::Data (*encode)(ui::Image image);
    };

private:
    void write(const std::string& source, const Target& target) const;
    void tell(ns::String title, ns::String message) const;

    Panes& panes_;
};

} // namespace wentra::files
