// From views and constraints to a linear problem, and from its solution to frames.
#include "desktop/uikit/constraints/layout_engine.hpp"

#include "bindings/objc/pool.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/layout_constraint.hpp"
#include "bindings/uikit/layout_guide.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/constraints/layout_constraint.hpp"
#include "desktop/uikit/constraints/layout_guide.hpp"
#include "desktop/uikit/constraints/view_constraints.hpp"
#include "desktop/uikit/views/view.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace desktop::layout_engine {
namespace {

unsigned long state = 1; // grows with every change

constexpr double beyondRequired = 1001; // that no side is negative comes before everything

LinearExpression number(double value) { return {{}, value}; }

bool isEdge(LayoutAttribute attribute) {
    return attribute != LayoutAttribute::width && attribute != LayoutAttribute::height;
}

bool isMargin(LayoutAttribute attribute) { return attribute >= LayoutAttribute::leftMargin; }

/// The tree below a view, in coordinates whose origin is that view's corner.
class Problem {
public:
    enum class Root { fixed, free };

    Problem(ui::View root, Root kind) : root_(root) {
        if (kind == Root::fixed) {
            const CGSize size = root.bounds().size;
            boxes_[root.raw()] = {number(0), number(0), number(size.width), number(size.height)};
        } else {
            boxes_[root.raw()] = {number(0), number(0), variable(0), variable(0)};
            addNaturalSize(root);
        }
        gather(root);
    }

    void solve() {
        std::vector<LinearConstraint> all = own_;
        for (const auto& constraint : constraints_) {
            all.push_back(linear(LayoutConstraint::of(constraint)));
        }
        const LinearSolution solution = desktop::solve(values_, all);
        values_ = solution.values;
        for (std::size_t index = 0; index < constraints_.size(); ++index) {
            LayoutConstraint& peer = LayoutConstraint::of(constraints_[index]);
            peer.noteBroken(!solution.holds[own_.size() + index] &&
                            peer.priority() >= layout_priority::required);
        }
    }

    /// Text that is broken into lines is as high as its width makes it: whether any is not yet.
    bool refineHeights() {
        bool refined = false;
        for (const auto& [view, place] : wrapping_) {
            const double width = valueOf(boxes_[view.raw()].width);
            const double height = view.sizeThatFits({width, 0}).height;
            for (const std::size_t index : {place, place + 1}) {
                refined = refined || own_[index].expression.constant != -height;
                own_[index].expression.constant = -height;
            }
        }
        return refined;
    }

    /// Whether the problem is another one when views have moved: the safe area is where it is.
    [[nodiscard]] bool dependsOnPlaces() const { return dependsOnPlaces_; }

    /// Superviews come before what is in them. Whether a view was moved.
    bool apply() {
        bool moved = false;
        for (const ui::View view : constrained_) {
            const ui::View parent = view.superview();
            const CGRect frame = frameIn(parent, boxes_[view.raw()]);
            if (std::exchange(ViewConstraints::of(view).solvedFrame, frame) == frame) {
                continue; // whoever moved it since then has moved it
            }
            const CGRect bounds{view.bounds().origin, frame.size};
            const CGPoint centre{frame.origin.x + frame.size.width / 2,
                                 frame.origin.y + frame.size.height / 2};
            if (view.bounds() != bounds) {
                view.setBounds(bounds);
                moved = true;
            }
            if (view.center() != centre) {
                view.setCenter(centre);
                moved = true;
            }
        }
        for (const auto& guide : guides_) {
            LayoutGuide& peer = LayoutGuide::of(guide);
            peer.setFrame(frameIn(peer.owner(), boxes_[guide.raw()]));
        }
        for (const auto& [raw, box] : contents_) {
            objc::wrap<ui::ScrollView>(raw).setContentSize(
                {rounded(valueOf(box.width)), rounded(valueOf(box.height))});
        }
        return moved;
    }

    [[nodiscard]] CGSize rootSize() {
        const LayoutBox& box = boxes_[root_.raw()];
        return {valueOf(box.width), valueOf(box.height)};
    }

    void require(LinearExpression expression, Relation relation, double priority) {
        own_.push_back({std::move(expression), relation, priority});
    }
    [[nodiscard]] const LayoutBox& rootBox() { return boxes_[root_.raw()]; }

private:
    LinearExpression variable(double initial) {
        values_.push_back(initial);
        return {{{values_.size() - 1, 1}}, 0};
    }

    [[nodiscard]] double valueOf(const LinearExpression& expression) const {
        double value = expression.constant;
        for (const auto& [index, coefficient] : expression.terms) {
            value += coefficient * values_[index];
        }
        return value;
    }

    /// Where the coordinates of what is in a view begin; a scroll view's go with its content.
    static CGPoint originOf(ui::View parent) {
        return parent.as<ui::ScrollView>() ? CGPoint() : parent.bounds().origin;
    }

    LayoutBox freeBox(CGRect frame) {
        LayoutBox box{variable(frame.origin.x), variable(frame.origin.y),
                      variable(frame.size.width), variable(frame.size.height)};
        require(box.width, Relation::greaterOrEqual, beyondRequired);
        require(box.height, Relation::greaterOrEqual, beyondRequired);
        return box;
    }

    /// A rectangle of `parent` in the problem's coordinates, as they are now.
    CGRect placed(ui::View parent, CGRect frame) {
        const LayoutBox& outer = boxes_[parent.raw()];
        const CGPoint origin = originOf(parent);
        return {{valueOf(outer.left) + frame.origin.x - origin.x,
                 valueOf(outer.top) + frame.origin.y - origin.y},
                frame.size};
    }

    LayoutBox fixedBox(ui::View parent, CGRect frame) {
        const CGPoint origin = originOf(parent);
        LayoutBox box = boxes_[parent.raw()];
        box.left.constant += frame.origin.x - origin.x;
        box.top.constant += frame.origin.y - origin.y;
        box.width = number(frame.size.width);
        box.height = number(frame.size.height);
        return box;
    }

    void gather(ui::View view) {
        const ViewConstraints& own = ViewConstraints::of(view);
        constraints_.insert(constraints_.end(), own.active().begin(), own.active().end());
        for (const auto& guide : own.guides()) {
            boxes_[guide.raw()] = freeBox(placed(view, LayoutGuide::of(guide).frame()));
            guides_.push_back(guide);
        }
        for (const auto& child : View::of(view).children()) {
            const CGRect frame = child.frame();
            if (ViewConstraints::of(child).isConstrained()) {
                boxes_[child.raw()] = freeBox(placed(view, frame));
                constrained_.push_back(child);
                addNaturalSize(child);
            } else {
                boxes_[child.raw()] = fixedBox(view, frame);
            }
            gather(child);
        }
    }

    /// A view clings to the size of what it shows.
    void addNaturalSize(ui::View view) {
        const ViewConstraints& own = ViewConstraints::of(view);
        const LayoutBox& box = boxes_[view.raw()];
        const CGSize natural = view.intrinsicContentSize();
        const auto cling = [&](LinearExpression side, double length, std::size_t axis) {
            if (std::isfinite(length) && length >= 0) {
                side.constant -= length;
                require(side, Relation::lessOrEqual, static_cast<double>(own.hugging(axis)));
                require(side, Relation::greaterOrEqual, static_cast<double>(own.compression(axis)));
            }
        };
        cling(box.width, natural.width, 0);
        const auto label = view.as<ui::Label>();
        if (label && label.send<"numberOfLines", long>() != 1 && natural.height >= 0) {
            wrapping_.emplace_back(view, own_.size());
        }
        cling(box.height, natural.height, 1);
    }

    /// The box that an attribute of an item refers to, seen from the other item.
    LayoutBox boxOf(objc::Object item, LayoutAttribute attribute, objc::Object other) {
        if (const auto view = item.as<ui::View>(); view) {
            if (isMargin(attribute)) {
                return boxes_[view.raw()].inset(ViewConstraints::of(view).margins());
            }
            const ui::View from = other ? viewOf(other) : ui::View();
            const bool fromInside = from && from != view && from.isDescendantOf(view);
            return fromInside && view.as<ui::ScrollView>() && isEdge(attribute)
                       ? contentBox(view)
                       : boxes_[view.raw()];
        }
        return guideBox(item.assume<ui::LayoutGuide>());
    }

    LayoutBox guideBox(ui::LayoutGuide guide) {
        const LayoutGuide& peer = LayoutGuide::of(guide);
        const ui::View owner = peer.owner();
        const LayoutBox outer = boxes_[owner.raw()];
        dependsOnPlaces_ = dependsOnPlaces_ || owner != root_;
        switch (peer.role()) {
        case GuideRole::safeArea:
            return outer.inset(owner.safeAreaInsets());
        case GuideRole::margins:
            return outer.inset(owner.safeAreaInsets())
                .inset(owner.send<"layoutMargins", UIEdgeInsets>());
        case GuideRole::content:
            return contentBox(owner);
        case GuideRole::frame:
            return outer;
        case GuideRole::constrained:
            break;
        }
        return boxes_[guide.raw()];
    }

    LayoutBox contentBox(ui::View scrollView) {
        const auto [found, isNew] = contents_.try_emplace(scrollView.raw());
        if (isNew) {
            const CGSize size = objc::wrap<ui::ScrollView>(scrollView.raw()).contentSize();
            const LayoutBox& outer = boxes_[scrollView.raw()];
            found->second = {outer.left, outer.top, variable(size.width), variable(size.height)};
        }
        return found->second;
    }

    /// From the box's edge to the line of text, for views that show text.
    static double baselineShift(objc::Object item, LayoutAttribute attribute) {
        const auto label = item.as<ui::Label>();
        if (!label || !label.font()) {
            return 0;
        }
        return attribute == LayoutAttribute::firstBaseline ? label.font().send<"ascender", double>()
               : attribute == LayoutAttribute::lastBaseline
                   ? label.font().send<"descender", double>()
                   : 0;
    }

    LinearExpression side(objc::Object item, LayoutAttribute attribute, objc::Object other) {
        LinearExpression value = boxOf(item, attribute, other).value(attribute);
        value.constant += baselineShift(item, attribute);
        return value;
    }

    LinearConstraint linear(const LayoutConstraint& constraint) {
        const ConstraintTerms& terms = constraint.terms();
        LinearExpression expression = side(terms.first, terms.firstAttribute, terms.second);
        if (terms.second) {
            expression.add(side(terms.second, terms.secondAttribute, terms.first),
                           -terms.multiplier);
        }
        // Beyond any screen; so that infinite constants do not become NaN.
        constexpr double farthest = 1e6;
        expression.constant -= std::clamp(terms.constant, -farthest, farthest);
        return {std::move(expression), terms.relation, static_cast<double>(constraint.priority())};
    }

    static double rounded(double points) {
        const double scale = ScreenGeometry::current().scale;
        return std::round(points * scale) / scale;
    }

    /// In the superview's coordinates, on whole pixels.
    CGRect frameIn(ui::View parent, const LayoutBox& box) {
        const LayoutBox& outer = boxes_[parent.raw()];
        const CGPoint origin = originOf(parent);
        const double left = valueOf(box.left) - valueOf(outer.left) + origin.x;
        const double top = valueOf(box.top) - valueOf(outer.top) + origin.y;
        const double right = rounded(left + valueOf(box.width));
        const double bottom = rounded(top + valueOf(box.height));
        return {{rounded(left), rounded(top)}, {right - rounded(left), bottom - rounded(top)}};
    }

    ui::View root_;
    bool dependsOnPlaces_ = false;
    std::vector<double> values_;
    std::map<id, LayoutBox> boxes_;
    std::map<id, LayoutBox> contents_; // of scroll views
    std::vector<ui::View> constrained_;
    std::vector<ui::LayoutGuide> guides_;
    std::vector<LinearConstraint> own_; // that no NSLayoutConstraint stands for
    std::vector<ui::LayoutConstraint> constraints_;
    std::vector<std::pair<ui::View, std::size_t>> wrapping_; // and the place of their heights
};

ui::View rootOf(ui::View view) {
    while (const ui::View superview = view.superview()) {
        view = superview;
    }
    return view;
}

} // namespace

void invalidate() { ++state; }

bool update(ui::View view) {
    if (!ViewConstraints::areThereAny()) {
        return false;
    }
    const objc::Pool pool;
    const ui::View root = rootOf(view);
    if (ViewConstraints::of(root).solvedState == state) {
        return false;
    }
    constexpr int rounds = 3;
    for (int round = 0; round < rounds; ++round) {
        Problem problem(root, Problem::Root::fixed);
        problem.solve();
        if (problem.refineHeights()) {
            problem.solve();
        }
        if (!problem.apply() || !problem.dependsOnPlaces()) {
            break;
        }
    }
    ViewConstraints::of(root).solvedState = state; // what was moved just now counts as known
    return true;
}

CGSize fittingSize(ui::View view, CGSize target) {
    const objc::Pool pool;
    Problem problem(view, Problem::Root::free);
    LinearExpression width = problem.rootBox().width;
    LinearExpression height = problem.rootBox().height;
    width.constant -= target.width;
    height.constant -= target.height;
    problem.require(width, Relation::equal, static_cast<double>(layout_priority::fittingSize));
    problem.require(height, Relation::equal, static_cast<double>(layout_priority::fittingSize));
    problem.solve();
    if (problem.refineHeights()) {
        problem.solve();
    }
    return problem.rootSize();
}

} // namespace desktop::layout_engine
