// UIView's part in constraints: those that it keeps, its guides, and how it clings to its own size.
#pragma once

#include "bindings/uikit/layout_constraint.hpp"
#include "bindings/uikit/layout_guide.hpp"

#include "desktop/uikit/constraints/layout_constraint.hpp"
#include "desktop/uikit/constraints/layout_guide.hpp"

#include <array>
#include <map>
#include <optional>
#include <vector>

namespace desktop {

class ViewConstraints {
public:
    static constexpr objc::Boundary border = objc::Boundary::propagates;
    static std::vector<objc::MethodRow> methods();
    /// What scroll views have in addition.
    static std::vector<objc::MethodRow> scrollViewMethods();

    /// Of that view; made when it is first asked for.
    static ViewConstraints& of(objc::Object view);

    explicit ViewConstraints(ui::View view);
    ViewConstraints(const ViewConstraints&) = delete;
    ViewConstraints& operator=(const ViewConstraints&) = delete;
    ~ViewConstraints();

    /// Whether any constraint is active in the whole process: most applications have none.
    [[nodiscard]] static bool areThereAny();
    /// The nearest view around both, or one of them; nil when they are in different trees.
    [[nodiscard]] static ui::View commonAncestor(ui::View one, ui::View other);
    /// Lets constraints go between what is in that view and what is not: it leaves its superview.
    static void dropAcross(ui::View leaving);

    void add(ui::LayoutConstraint constraint);
    void remove(ui::LayoutConstraint constraint);
    [[nodiscard]] const std::vector<objc::Strong<ui::LayoutConstraint>>& active() const {
        return active_;
    }
    [[nodiscard]] const std::vector<objc::Strong<ui::LayoutGuide>>& guides() const {
        return guides_;
    }
    /// Whether constraints decide its frame, and not the frame that was set.
    [[nodiscard]] bool isConstrained() const { return !translatesMask_; }
    [[nodiscard]] float hugging(std::size_t axis) const { return hugging_[axis]; }
    [[nodiscard]] float compression(std::size_t axis) const { return compression_[axis]; }
    [[nodiscard]] UIEdgeInsets margins() const { return margins_; }

    /// The state of the tree that its layout was last solved for; see the engine.
    unsigned long solvedState = 0;
    /// Where constraints have put the view last.
    std::optional<CGRect> solvedFrame;

private:
    [[nodiscard]] bool translatesMask() const { return translatesMask_; }
    void setTranslatesMask(bool translates);
    [[nodiscard]] ns::Array constraints() const;
    void addAll(ns::ArrayOf<ui::LayoutConstraint> constraints);
    void removeAll(ns::ArrayOf<ui::LayoutConstraint> constraints);
    void activate(ui::LayoutConstraint constraint);
    template <GuideRole Role>
    [[nodiscard]] ui::LayoutGuide guide();
    [[nodiscard]] ns::Array layoutGuides() const;
    void addLayoutGuide(ui::LayoutGuide guide);
    void removeLayoutGuide(ui::LayoutGuide guide);
    [[nodiscard]] float huggingFor(long axis) const;
    void setHugging(float priority, long axis);
    [[nodiscard]] float compressionFor(long axis) const;
    void setCompression(float priority, long axis);
    void setMargins(UIEdgeInsets margins);
    void changed() const { view_.setNeedsLayout(); }
    [[nodiscard]] CGSize fittingSize(CGSize target) const;
    void updateConstraints() {}

    ui::View view_;
    bool translatesMask_ = true;
    std::vector<objc::Strong<ui::LayoutConstraint>> active_;
    std::vector<objc::Strong<ui::LayoutGuide>> guides_; // that were added
    std::map<GuideRole, objc::Strong<ui::LayoutGuide>> ownGuides_;
    std::array<float, 2> hugging_{layout_priority::hugging, layout_priority::hugging};
    std::array<float, 2> compression_{layout_priority::compressionResistance,
                                      layout_priority::compressionResistance};
    UIEdgeInsets margins_{8, 8, 8, 8};
};

} // namespace desktop
