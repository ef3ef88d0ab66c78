// The labels that count text and symbols.
#pragma once

#include "bindings/uikit/label.hpp"
#include "library/toolbox/grid/selection.hpp"
#include "library/toolbox/grid/text_counts.hpp"

namespace wentra::toolbox {

/// Two labels for the whole text and two for what is picked of it.
class Statistics : public objc::Part<FloatingViewController> {
public:
    Statistics(FloatingViewController whole, const Tiles& tiles, const Selection& selection)
        : Part(whole), tiles_(tiles), selection_(selection) {}
    static Statistics& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"totalWordsLabel", &Statistics::totalWords_>(),
            objc::property<"totalSymbolsLabel", &Statistics::totalSymbols_>(),
            objc::property<"selectedWordsLabel", &Statistics::selectedWords_>(),
            objc::property<"selectedSymbolsLabel", &Statistics::selectedSymbols_>(),
            objc::method<"updateStatistics", &Statistics::update>(),
        };
    }

    /// Puts the labels, empty, into the controller's view: their tops in points.
    void add(double totalsTop, double selectionsTop);

    /// Counts the whole text and what is picked of it, and tells it in the labels, when the user
    /// wants to know; otherwise the labels stay as they are.
    void update();

private:
    [[nodiscard]] ui::Label added(CGPoint origin, double width) const;
    const TextCounts& totals();

    const Tiles& tiles_;
    const Selection& selection_;
    objc::Strong<ui::Label> totalWords_;
    objc::Strong<ui::Label> totalSymbols_;
    objc::Strong<ui::Label> selectedWords_;
    objc::Strong<ui::Label> selectedSymbols_;
    // The whole text stays the same while tiles are picked.
    objc::Strong<ns::Array> counted_;
    TextCounts totals_;
};

} // namespace wentra::toolbox
