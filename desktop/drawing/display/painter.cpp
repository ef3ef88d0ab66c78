// Fills, contents and borders, within their groups.
#include "desktop/drawing/display/painter.hpp"

#include "desktop/drawing/display/coverage.hpp"

#include <algorithm>

namespace desktop {
namespace {

class Painter {
public:
    Painter(const DisplayList& list, cairo_surface_t* surface, ContentStore& contents,
            const ContentDrawer& draw)
        : list_(list), contents_(contents), draw_(draw), context_(cairo_create(surface)),
          canvas_(context_.get()) {}

    void paint(const PixelArea& area) {
        const std::vector<Region> regions = visibleRegions(list_, area);
        measureGroups(regions);
        for (std::size_t index = 0; index < regions.size(); ++index) {
            if (!isEmpty(regions[index])) {
                enter(list_.items[index].group);
                const DisplayItem& item = list_.items[index];
                within(item.group, regions[index],
                       [&](const Region& region) { paint(item, region); });
            }
        }
        enter(DisplayGroup::none);
    }

private:
    using Kind = DisplayGroup::Kind;
    using Pattern = Handle<cairo_pattern_t, cairo_pattern_destroy>;

    [[nodiscard]] const DisplayGroup& group(int index) const {
        return list_.groups[static_cast<std::size_t>(index)];
    }

    /// What of each group is going to be drawn.
    void measureGroups(const std::vector<Region>& regions) {
        drawn_.resize(list_.groups.size());
        for (std::size_t item = 0; item < regions.size(); ++item) {
            const PixelRectangle bounds = boundsOf(regions[item]);
            for (int index = list_.items[item].group; index != DisplayGroup::none;
                 index = group(index).parent) {
                auto& whole = drawn_[static_cast<std::size_t>(index)];
                whole = bounding(whole, bounds);
            }
        }
    }

    /// The innermost group with an opacity around `index`, or that group itself.
    [[nodiscard]] int opacityGroup(int index) const {
        while (index != DisplayGroup::none && group(index).kind != Kind::opacity) {
            index = group(index).parent;
        }
        return index;
    }

    /// Closes and opens groups until those around `target` are open.
    void enter(int target) {
        std::vector<int> wanted;
        for (int index = opacityGroup(target); index != DisplayGroup::none;
             index = opacityGroup(group(index).parent)) {
            wanted.insert(wanted.begin(), index);
        }
        const auto [open, want] = std::ranges::mismatch(open_, wanted);
        const auto kept = open - open_.begin();
        while (static_cast<std::ptrdiff_t>(open_.size()) > kept) {
            close();
        }
        for (auto next = wanted.begin() + kept; next != wanted.end(); ++next) {
            cairo_save(context_.get());
            clip(regionOf(drawn_[static_cast<std::size_t>(*next)]));
            canvas_.beginGroup();
            open_.push_back(*next);
        }
    }

    void close() {
        const int index = open_.back();
        open_.pop_back();
        const Pattern whole(cairo_pop_group(context_.get()));
        within(group(index).parent, regionOf(drawn_[static_cast<std::size_t>(index)]),
               [&](const Region& region) {
                   clipped(region, [&] {
                       cairo_set_source(context_.get(), whole.get());
                       cairo_paint_with_alpha(context_.get(), group(index).opacity);
                   });
               });
        cairo_restore(context_.get());
    }

    void clip(const Region& region) {
        for (int index = 0; index < cairo_region_num_rectangles(region.get()); ++index) {
            cairo_rectangle_int_t part;
            cairo_region_get_rectangle(region.get(), index, &part);
            cairo_rectangle(context_.get(), part.x, part.y, part.width, part.height);
        }
        cairo_clip(context_.get());
    }

    template <class Action>
    void clipped(const Region& region, Action action) {
        cairo_save(context_.get());
        clip(region);
        action();
        cairo_restore(context_.get());
    }

    /// Draws in a region, but only as far as the shapes of the clipping groups from `index` on
    /// outwards let it show. Their straight sides are in the extents already.
    void within(int index, const Region& region, const std::function<void(const Region&)>& draw) {
        if (index == DisplayGroup::none || group(index).kind == Kind::opacity) {
            draw(region);
            return;
        }
        const DisplayGroup& clip = group(index);
        Region straight(cairo_region_copy(region.get()));
        for (const PixelRectangle& part : curvedParts(clip.shape, 0, clip.extents)) {
            if (const Region curved = intersection(region, part); !isEmpty(curved)) {
                subtract(straight, part);
                clipped(curved, [&] {
                    canvas_.beginGroup();
                    within(clip.parent, curved, draw);
                    cairo_pop_group_to_source(context_.get());
                    maskWith(coverage(clip.shape, 0, part), part);
                });
            }
        }
        if (!isEmpty(straight)) {
            within(clip.parent, straight, draw);
        }
    }

    /// Paints the current source through a mask that lies on that part of the screen.
    void maskWith(const Surface& mask, const PixelRectangle& part) {
        cairo_mask_surface(context_.get(), mask.get(), part.x, part.y);
    }

    void paint(const DisplayItem& item, const Region& region) {
        if (item.kind == DisplayItem::Kind::content) {
            clipped(region, [&] { paintContent(item); });
        } else {
            paintBox(item, region);
        }
    }

    /// A fill or a border: curves through masks, the rest at once.
    void paintBox(const DisplayItem& item, const Region& region) {
        Region straight(cairo_region_copy(region.get()));
        for (const PixelRectangle& part : curvedParts(item.shape, item.lineWidth, item.extents)) {
            if (const Region curved = intersection(region, part); !isEmpty(curved)) {
                subtract(straight, part);
                clipped(curved, [&] {
                    canvas_.setColour(item.colour);
                    maskWith(coverage(item.shape, item.lineWidth, part), part);
                });
            }
        }
        if (isEmpty(straight)) {
            return;
        }
        clipped(straight, [&] {
            const Rectangle box = item.shape.bounds(); // upright: in pixels
            if (item.kind == DisplayItem::Kind::fill) {
                canvas_.fill(box, item.colour);
            } else {
                canvas_.stroke(box, item.colour, item.lineWidth);
            }
        });
    }

    void paintContent(const DisplayItem& item) {
        const auto [surface, x, y] = contents_.picture(item, draw_);
        if (surface) {
            cairo_set_source_surface(context_.get(), surface.get(), x, y);
            cairo_paint(context_.get());
        }
    }

    const DisplayList& list_;
    ContentStore& contents_;
    const ContentDrawer& draw_;
    Handle<cairo_t, cairo_destroy> context_;
    Canvas canvas_;
    std::vector<PixelRectangle> drawn_;
    std::vector<int> open_;
};

} // namespace

void paint(const DisplayList& list, const PixelArea& area, cairo_surface_t* surface,
           ContentStore& contents, const ContentDrawer& draw) {
    Painter(list, surface, contents, draw).paint(area);
}

} // namespace desktop
