// The pages of the text viewer: what it shows of a long text, and what comes when its end is
// reached.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/objc/part.hpp"
#include "library/files/viewers/file_content_view_controller.hpp"

#include <mutex>
#include <vector>

namespace wentra::files {

/// Pages are put together on a background queue, in the order in which they were asked for.
class TextPaging : public objc::Part<FileContentViewController> {
public:
    using Part::Part;
    static TextPaging& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"pages", &TextPaging::pages_>(),
            objc::property<"loadedPages", &TextPaging::loadedPages_>(),
            objc::property<"currentLoadedPage", &TextPaging::currentLoadedPage_>(),
            objc::method<"pagesWithContent:pageSize:", &TextPaging::pagesWithContent>(),
            objc::method<"loadPage:", &TextPaging::loadPage>(),
            objc::method<"scrollViewDidEndDecelerating:", &TextPaging::cameToRest>(),
        };
    }

    /// Cuts the controller's content; the text of the first page.
    ns::String begin();

private:
    using Strings = ns::ArrayOf<ns::String>;

    [[nodiscard]] Strings pagesWithContent(ns::String content, unsigned long size) const;
    void loadPage(long index);
    void cameToRest(ui::ScrollView view);
    void appendWanted();

    objc::Strong<Strings> pages_;
    objc::Strong<ns::MutableArray> loadedPages_; // guarded, as is what is still wanted
    std::vector<objc::Strong<ns::String>> wanted_;
    std::mutex mutex_;
    long currentLoadedPage_ = 0;
};

} // namespace wentra::files
