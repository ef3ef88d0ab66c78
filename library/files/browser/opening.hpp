// What a tap on a row does: walks into folders, and shows texts and images.
#pragma once

#include "bindings/foundation/url.hpp"
#include "bindings/uikit/view_controller.hpp"
#include "library/files/browser/panes.hpp"

namespace wentra::files {

class Opening : public objc::Part<UmaCollectionViewController> {
public:
    Opening(UmaCollectionViewController whole, Panes& panes) : Part(whole), panes_(panes) {}
    static Opening& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"tableView:didSelectRowAtIndexPath:", &Opening::select>(),
            objc::method<"isImagePath:", &Opening::isImagePath>(),
            objc::method<"isTextFile:", &Opening::isTextFile>(),
            objc::method<"isDirectory:", &Opening::isDirectory>(),
            objc::method<"contentForFileAtURL:", &Opening::content>(),
        };
    }

private:
    void select(ui::TableView table, ns::IndexPath row);
    void showText(const std::string& path) const;
    void push(ui::ViewController viewer) const;
    void showImage(ui::TableView table, const std::string& path) const;
    [[nodiscard]] bool isImagePath(ns::String path) const;
    [[nodiscard]] bool isTextFile(ns::String path) const;
    [[nodiscard]] bool isDirectory(ns::String path) const;
    [[nodiscard]] ns::String content(ns::Url url) const;

    Panes& panes_;
};

} // namespace wentra::files
