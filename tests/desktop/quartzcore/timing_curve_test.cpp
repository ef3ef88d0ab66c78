// Curves of progress, and what lies between two values of a layer.
#include "desktop/quartzcore/animation/timing_curve.hpp"
#include "desktop/quartzcore/layer_values.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace desktop;

TEST(TimingCurve, NamedCurvesEaseWhereTheySay) {
    struct Case {
        TimingCurve curve;
        double quarter;
        double half;
    };
    for (const auto& [curve, quarter, half] : {
             Case{TimingCurve::linear(), 0.25, 0.5},
             Case{TimingCurve::easeIn(), 0.0935, 0.3154},
             Case{TimingCurve::easeOut(), 0.3781, 0.6846},
             Case{TimingCurve::easeInOut(), 0.1292, 0.5},
         }) {
        EXPECT_EQ(curve.progress(-1), 0);
        EXPECT_EQ(curve.progress(std::nan("")), 0);
        EXPECT_NEAR(curve.progress(0.25), quarter, 1e-3);
        EXPECT_NEAR(curve.progress(0.5), half, 1e-3);
        EXPECT_EQ(curve.progress(2), 1);
    }
}

TEST(TimingCurve, SpringsSwingBelowCriticalDampingAndComeToRest) {
    for (const auto& [damping, swings] :
         {std::pair{0.3, true}, {0.7, true}, {1.0, false}, {7.0, false}, {std::nan(""), false}}) {
        const auto spring = TimingCurve::spring(damping, 0);
        double highest = 0;
        for (double fraction = 0; fraction < 1; fraction += 0.01) {
            highest = std::max(highest, spring.progress(fraction));
        }
        EXPECT_EQ(highest > 1.001, swings) << damping;
        EXPECT_NEAR(spring.progress(0.999), 1, 0.01) << damping;
    }
    EXPECT_GT(TimingCurve::spring(0.7, 10).progress(0.05),
              TimingCurve::spring(0.7, 0).progress(0.05));
}

TEST(LayerValues, ATurnGoesRoundAndNotThroughTheMiddle) {
    const CGAffineTransform quarter = blended(CGAffineTransform(), {0, 1, -1, 0, 0, 0}, 0.5);
    EXPECT_NEAR(quarter.a, std::sqrt(0.5), 1e-9);
    EXPECT_NEAR(quarter.b, std::sqrt(0.5), 1e-9);
    EXPECT_NEAR(quarter.d, std::sqrt(0.5), 1e-9);
    const CGAffineTransform skewed{2, 0.5, -0.25, 3, 7, 8};
    const CGAffineTransform arrived = blended(CGAffineTransform(), skewed, 1);
    EXPECT_NEAR(arrived.a, 2, 1e-9);
    EXPECT_NEAR(arrived.b, 0.5, 1e-9);
    EXPECT_NEAR(arrived.c, -0.25, 1e-9);
    EXPECT_NEAR(arrived.d, 3, 1e-9);
    EXPECT_NEAR(blended(CGAffineTransform(), {0, 0, 0, 0, 0, 0}, 0.5).a, 0.5, 1e-9) << "to nothing";
}

TEST(LayerValues, AColourFadesInItsOwnHue) {
    const Colour half = blended(Colour{0, 0, 0, 0}, Colour{1, 0, 0, 1}, 0.5);
    EXPECT_EQ(half, (Colour{1, 0, 0, 0.5}));
}

} // namespace
