// The bar over the film, and keeping the film.
#include "desktop/replaykit/preview_view_controller.hpp"

#include "bindings/uikit/bar_button_item.hpp"
#include "bindings/uikit/navigation_bar.hpp"
#include "desktop/replaykit/film_view.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/delegate_messages.hpp"
#include "desktop/uikit/photos/photo_library.hpp"

#include <fstream>
#include <iterator>

namespace desktop {
namespace {

using namespace ns::literals;

} // namespace

rp::PreviewViewController PreviewViewController::withFilm(const std::string& file,
                                                          const Image& poster) {
    const auto preview = rp::PreviewViewController::make();
    of(preview).file_ = file;
    of(preview).poster_ = poster;
    return preview;
}

void PreviewViewController::viewDidLoad() {
    super<"viewDidLoad">();
    constexpr double barHeight = 44;
    const ui::View view = self().view();
    view.setBackgroundColor(ui::Color::systemBackground());
    const UIEdgeInsets safe = ScreenGeometry::current().safeArea;
    const CGSize size = view.bounds().size;
    const double below = safe.top + barHeight;
    addBar(safe.top, barHeight);
    addFilm({{0, below}, {size.width, size.height - below - safe.bottom}});
}

void PreviewViewController::addBar(double top, double height) {
    const auto item = ui::NavigationItem::withTitle(u"录屏预览"_ns);
    item.setLeftBarButtonItem(ui::BarButtonItem::withTitle(
        u"取消"_ns, ui::BarButtonStyle::plain, self(), objc::selector<"cancelPressed">()));
    item.setRightBarButtonItem(ui::BarButtonItem::withTitle(
        u"存储"_ns, ui::BarButtonStyle::done, self(), objc::selector<"savePressed">()));
    const auto bar =
        ui::NavigationBar::withFrame({{0, top}, {self().view().bounds().size.width, height}});
    bar.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    const auto items = ns::MutableArray::make();
    items.add(item);
    bar.setItems(items);
    self().view().addSubview(bar);
}

void PreviewViewController::addFilm(CGRect frame) {
    const auto film = FilmViewKind::make<"initWithFrame:">(frame);
    film.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                             ui::ViewAutoresizing::flexibleHeight);
    FilmView::of(film).show(file_, *poster_);
    self().view().addSubview(film);
}

/// A film that cannot be kept stays where it was recorded.
void PreviewViewController::savePressed() {
    std::ifstream stream(file_, std::ios::binary);
    const std::vector<char> film{std::istreambuf_iterator<char>(stream), {}};
    photos::add(std::as_bytes(std::span(film)), ".webm");
    finish();
}

void PreviewViewController::finish() {
    tell<"previewControllerDidFinish:">(delegate_.strong(), self());
}

} // namespace desktop
