// A view with a film in it, of which the phone itself shows the last picture.
#pragma once

#include "bindings/uikit/view.hpp"
#include "desktop/class.hpp"
#include "desktop/drawing/image.hpp"

#include <optional>
#include <string>
#include <vector>

namespace desktop {

struct FilmViewKind : objc::Kind<FilmViewKind, "ReplayFilmView", ui::View> {
    using Kind::Kind;
};

/// Playing is left to whoever watches the phone: see `liveFilms`.
class FilmView : public PlatformClass<FilmView, FilmViewKind> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"drawRect:", &FilmView::drawRect>()};
    }

    FilmView();
    ~FilmView();

    /// Shows the film of that file on the device.
    void show(const std::string& file, const Image& poster);

private:
    friend std::vector<struct LiveFilm> liveFilms();

    void drawRect(CGRect) const;

    std::string file_;
    std::optional<Image> poster_;
};

/// A film in a window.
struct LiveFilm {
    ui::View view;
    /// In the window, in points.
    CGRect frame;
    std::string file;
};

/// The films whose views are in a window, in the order in which the views were made. Main thread.
std::vector<LiveFilm> liveFilms();

} // namespace desktop
