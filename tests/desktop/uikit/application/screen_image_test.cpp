// The screen's picture: when it becomes stale, and what it redraws.
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/application/screen_image.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace {

using namespace ns::literals;
using desktop::PixelRectangle;
using desktop::ScreenImage;

class ScreenImageTest : public tests::UIKitTest {
protected:
    ScreenImageTest() {
        window.setBackgroundColor(ui::Color::white());
        window.makeKeyAndVisible();
    }
    ~ScreenImageTest() override { window.setHidden(true); }

    objc::Strong<ui::Window> window = ui::Window::withFrame(ui::Screen::mainScreen().bounds());
};

TEST_F(ScreenImageTest, TellsOnceThatItIsStale) {
    ScreenImage screen(1);
    int calls = 0;
    screen.whenStale([&calls] { ++calls; });
    EXPECT_EQ(screen.refresh(), (std::vector<PixelRectangle>{{0, 0, 390, 844}}));
    EXPECT_TRUE(screen.refresh().empty());
    const auto label = ui::Label::withFrame({{10, 100}, {100, 20}});
    window.addSubview(label);
    label.setText(u"新"_ns);
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(screen.isStale());
    EXPECT_FALSE(screen.refresh().empty());
    EXPECT_FALSE(screen.isStale());
    label.setText(u"newer"_ns);
    EXPECT_EQ(calls, 2);
}

TEST_F(ScreenImageTest, ShowsAPartOfAVeryLongLabel) {
    const auto label = ui::Label::withFrame({});
    label.setNumberOfLines(0);
    label.setText(ns::String::from(std::u16string(1'000'000, u'W')));
    const CGSize size = label.sizeThatFits({390, 0});
    label.setFrame({{0, -size.height / 2}, size});
    window.addSubview(label);
    ScreenImage screen(1);
    screen.refresh();
    const desktop::Image shown = screen.snapshot();
    const auto isInked = [&shown](int y) {
        for (int x = 0; x < shown.pixelWidth(); ++x) {
            if (shown.pixel(x, y).red < 0.5) {
                return true;
            }
        }
        return false;
    };
    int inked = 0;
    for (int y = 0; y < shown.pixelHeight(); ++y) {
        inked += isInked(y) ? 1 : 0;
    }
    EXPECT_GT(inked, shown.pixelHeight() / 3) << "lines from top to bottom";
}

TEST_F(ScreenImageTest, RedrawsOnlyWhatHasChanged) {
    const auto box = ui::View::withFrame({{10, 100}, {50, 20}});
    box.setBackgroundColor(ui::Color::black());
    const auto label = ui::Label::withFrame({{200, 300}, {100, 20}});
    window.addSubview(box);
    window.addSubview(label);
    ScreenImage screen(2);
    screen.refresh();

    using Areas = std::vector<PixelRectangle>;
    label.setText(u"新"_ns);
    EXPECT_EQ(screen.refresh(), (Areas{{400, 600, 200, 40}}));
    box.setCenter({45, 110});
    EXPECT_EQ(screen.refresh(), (Areas{{20, 200, 120, 40}})) << "where it was and where it is";
    box.setFrame(box.frame());
    box.setNeedsLayout();
    EXPECT_EQ(screen.refresh(), Areas());
    box.removeFromSuperview();
    label.setHidden(true);
    const Areas both = screen.refresh(); // in any order
    EXPECT_EQ(both.size(), 2U);
    EXPECT_EQ(std::ranges::count(both, PixelRectangle{40, 200, 100, 40}), 1);
    EXPECT_EQ(std::ranges::count(both, PixelRectangle{400, 600, 200, 40}), 1);
}

/// Every pixel of what a screen shows.
std::vector<unsigned char> pixelsOf(const ScreenImage& screen) {
    const auto bytes =
        static_cast<std::size_t>(screen.stride()) * static_cast<std::size_t>(screen.height());
    return {screen.pixels(), screen.pixels() + bytes};
}

/// Where two screens of one size differ, for people to read; empty when they do not.
std::string difference(const ScreenImage& one, const ScreenImage& other) {
    const auto a = pixelsOf(one);
    const auto b = pixelsOf(other);
    std::size_t count = 0;
    std::size_t first = 0;
    int largest = 0;
    for (std::size_t index = 0; index < a.size(); ++index) {
        if (const int distance = std::abs(a[index] - b[index]); distance != 0) {
            first = count++ == 0 ? index : first;
            largest = std::max(largest, distance);
        }
    }
    const auto stride = static_cast<std::size_t>(one.stride());
    return count == 0 ? ""
                      : std::to_string(count) + " bytes, by at most " + std::to_string(largest) +
                            ", first at " + std::to_string(first % stride / 4) + ", " +
                            std::to_string(first / stride);
}

/// How many pixels of the picture's edges are not of that colour.
int otherPixelsAtEdges(const desktop::Image& picture, const desktop::Colour& wanted) {
    const int right = picture.pixelWidth() - 1;
    const int bottom = picture.pixelHeight() - 1;
    int others = 0;
    for (int x = 0; x <= right; ++x) {
        others += picture.pixel(x, 0) == wanted ? 0 : 1;
        others += picture.pixel(x, bottom) == wanted ? 0 : 1;
    }
    for (int y = 0; y <= bottom; ++y) {
        others += picture.pixel(0, y) == wanted ? 0 : 1;
        others += picture.pixel(right, y) == wanted ? 0 : 1;
    }
    return others;
}

TEST_F(ScreenImageTest, AWindowFillsTheScreenAtEveryScale) {
    desktop::ScreenGeometry& geometry = desktop::ScreenGeometry::current();
    const desktop::ScreenGeometry before = geometry;
    for (const CGSize size : {CGSize{390, 844}, {844, 390}, {375, 667}, {393.5, 851.25}}) {
        geometry = desktop::ScreenGeometry::upright(desktop::deviceOfSize(size, 3));
        window.setFrame({{}, size});
        for (int step = 0; step < 33; ++step) {
            const double scale = 0.5 + 0.0771 * step;
            ScreenImage screen(scale);
            for (const auto& [colour, drawn] :
                 {std::pair{ui::Color::red(), desktop::Colour{1, 0, 0, 1}},
                  {ui::Color::white(), {1, 1, 1, 1}}}) {
                window.setBackgroundColor(colour);
                screen.refresh();
                EXPECT_EQ(otherPixelsAtEdges(screen.snapshot(), drawn), 0)
                    << size.width << " x " << size.height << " at " << scale;
            }
        }
    }
    geometry = before;
}

/// A tree of views, changed at random.
class RandomTree {
public:
    RandomTree(ui::View root, unsigned seed) : views_{root}, random_(seed) {
        constexpr int size = 30;
        for (int count = 0; count < size; ++count) {
            add();
        }
    }

    void change() {
        constexpr unsigned kinds = 14;
        const ui::View view = one(1);
        switch (below(kinds)) {
        case 0:
            return add();
        case 1:
            return remove();
        case 2:
            return views_[below(views_.size())].addSubview(view);
        case 3:
            return view.superview().send<"bringSubviewToFront:">(view);
        case 4:
            return view.setHidden(below(2) == 0);
        case 5:
            return view.setAlpha(number(0, 1.5));
        case 6:
            return view.setClipsToBounds(below(2) == 0);
        case 7:
            return view.layer().setCornerRadius(number(-5, 60));
        case 8:
            return view.layer().setBorderWidth(number(-1, 8));
        case 9:
            return view.setTransform(transform());
        case 10:
            return view.setBounds({{number(-9, 9), number(-9, 9)}, view.bounds().size});
        case 11:
            return view.setFrame(frame());
        default:
            return dress(view);
        }
    }

private:
    unsigned below(std::size_t end) {
        return std::uniform_int_distribution<unsigned>(0, static_cast<unsigned>(end) - 1)(random_);
    }
    double number(double from, double to) {
        return std::uniform_real_distribution(from, to)(random_);
    }
    /// Any view but the first so many.
    ui::View one(std::size_t first) { return views_[first + below(views_.size() - first)]; }

    CGRect frame() {
        constexpr unsigned unusual = 20;
        switch (below(unusual)) {
        case 0:
            return {{number(-50, 50), 0}, {0, 50}};
        case 1:
            return {{-1e9, -1e9}, {2e9, 2e9}};
        case 2:
            return {{0, 0}, {1e300, 20}};
        default:
            // On pixels or between them.
            const double step = below(2) == 0 ? 1 : 0.37;
            return {{step * std::round(number(-50, 350)), step * std::round(number(-50, 800))},
                    {std::round(number(-100, 200)), step * std::round(number(0, 300))}};
        }
    }

    CGAffineTransform transform() {
        constexpr double infinite = std::numeric_limits<double>::infinity();
        switch (below(5)) {
        case 0:
            return {number(-2, 2), 0, 0, number(-2, 2), number(-9, 9), 0};
        case 1: {
            const double angle = number(0, 6);
            return {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0};
        }
        case 2:
            return {0, 0, 0, 0, 0, 0}; // flattens
        case 3:
            return {infinite, 0, 0, 1, infinite, 0};
        default:
            return {};
        }
    }

    ui::Color color() {
        return ui::Color::withRed(number(0, 1), number(0, 1), number(0, 1),
                                  below(2) == 0 ? 1 : number(0, 1));
    }

    void dress(ui::View view) {
        view.setBackgroundColor(below(3) == 0 ? ui::Color() : color());
        if (const auto label = view.as<ui::Label>(); label) {
            label.setText(below(2) == 0 ? u"文字 Text"_ns : u"gjpqy 一二三四五六七"_ns);
            label.setTextColor(color());
        }
    }

    void add() {
        const ui::View view =
            below(2) == 0 ? ui::Label::withFrame(frame()) : ui::View::withFrame(frame());
        dress(view);
        views_[below(views_.size())].addSubview(view);
        views_.emplace_back(view);
    }

    void remove() {
        const std::size_t index = 1 + below(views_.size() - 1);
        if (views_.size() > 2) {
            views_[index].removeFromSuperview();
            views_.erase(views_.begin() + static_cast<std::ptrdiff_t>(index));
        }
    }

    std::vector<objc::Strong<ui::View>> views_;
    std::mt19937 random_;
};

TEST_F(ScreenImageTest, ShowsAfterAnyChangesWhatDrawingEverythingShows) {
    constexpr unsigned trees = 6;
    constexpr int turns = 25;
    for (unsigned seed = 1; seed < trees; ++seed) {
        const objc::Pool pool;
        const auto root = ui::View::withFrame({{0, 0}, {390, 844}});
        root.setBackgroundColor(ui::Color::white());
        window.addSubview(root);
        RandomTree tree(root, seed);
        ScreenImage screen(1 + seed % 2);
        for (int turn = 0; turn < turns; ++turn) {
            const auto areas = screen.refresh();
            ASSERT_LE(areas.size(), 8U);
            ScreenImage fresh(1 + seed % 2);
            fresh.refresh();
            EXPECT_EQ(difference(screen, fresh), "") << "seed " << seed << ", " << turn;
            for (int count = 0; count <= turn % 3; ++count) {
                try {
                    tree.change();
                } catch (...) { // the platform raises for a place that is no number
                }
            }
        }
        root.removeFromSuperview();
    }
}

} // namespace
