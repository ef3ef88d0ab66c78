// Keeping the list of films, and drawing the last picture.
#include "desktop/replaykit/film_view.hpp"

#include "bindings/uikit/window.hpp"
#include "desktop/coregraphics/graphics_context.hpp"

#include <algorithm>

namespace desktop {
namespace {

std::vector<FilmView*>& films() {
    static auto* all = new std::vector<FilmView*>; // views may die when the process ends
    return *all;
}

/// In the middle of the box, as large as fits.
Rectangle fitted(Size size, const Rectangle& box) {
    const double scale = std::min(box.width / size.width, box.height / size.height);
    const double width = size.width * scale;
    const double height = size.height * scale;
    return {box.x + (box.width - width) / 2, box.y + (box.height - height) / 2, width, height};
}

} // namespace

FilmView::FilmView() { films().push_back(this); }

FilmView::~FilmView() { std::erase(films(), this); }

void FilmView::show(const std::string& file, const Image& poster) {
    file_ = file;
    poster_ = poster;
    self().setNeedsDisplay();
}

void FilmView::drawRect(CGRect) const {
    if (Canvas* canvas = currentCanvas(); canvas != nullptr && poster_) {
        canvas->draw(*poster_, fitted(poster_->size(), rectangle(self().bounds())));
    }
}

std::vector<LiveFilm> liveFilms() {
    std::vector<LiveFilm> live;
    for (const FilmView* film : films()) {
        const ui::View view = film->self();
        if (const ui::Window window = view.window(); window && !film->file_.empty()) {
            live.push_back({view, view.convertRect(view.bounds(), window), film->file_});
        }
    }
    return live;
}

} // namespace desktop
