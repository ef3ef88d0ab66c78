// Views as pictures: by the view's hierarchy and by its layer.
#include "bindings/uikit/color.hpp"
#include "bindings/uikit/image_context.hpp"
#include "bindings/uikit/view.hpp"
#include "desktop/uikit/values/image.hpp"
#include "tests/desktop/uikit/uikit_fixture.hpp"

namespace {

using Bytes = std::vector<std::byte>;

class ViewDrawing : public tests::UIKitTest {
protected:
    ViewDrawing() {
        view.setBackgroundColor(ui::Color::white());
        const auto part = ui::View::withFrame({{5, 5}, {10, 10}});
        part.setBackgroundColor(ui::Color::red());
        view.addSubview(part);
    }
    /// The picture in which `draw` has drawn.
    template <class Draw>
    static Bytes picture(Draw draw) {
        const auto context = ui::ImageContext::opaque({40, 30}, 2);
        draw();
        return desktop::UIImage::valueOf(context.image())->png();
    }
    void render() const { view.layer().send<"renderInContext:">(UIGraphicsGetCurrentContext()); }

    const ui::View view = ui::View::withFrame({{100, 100}, {40, 30}});
};

TEST_F(ViewDrawing, TheLayerDrawsWhatTheHierarchyDraws) {
    const Bytes drawn = picture([this] { view.drawHierarchy({{}, {40, 30}}, true); });
    EXPECT_EQ(picture([this] { render(); }), drawn);
    EXPECT_NE(drawn, picture([] {})) << "there is something to be seen";
}

TEST_F(ViewDrawing, ALayerIsDrawnInItsOwnCoordinates) {
    const Bytes whole = picture([this] { render(); });
    view.setBounds({{5, 0}, {40, 30}});
    EXPECT_NE(picture([this] { render(); }), whole);
}

TEST_F(ViewDrawing, WithoutAContextOrAViewNothingIsDrawn) {
    EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr);
    render();
    EXPECT_EQ(
        picture([] { ca::Layer::make().send<"renderInContext:">(UIGraphicsGetCurrentContext()); }),
        picture([] {}));
}

TEST_F(ViewDrawing, ALayerOutlivesItsView) {
    objc::Strong<ca::Layer> layer;
    {
        const objc::Pool pool;
        layer = ui::View::withFrame({{}, {40, 30}}).layer();
    }
    EXPECT_EQ(picture([&] { layer.send<"renderInContext:">(UIGraphicsGetCurrentContext()); }),
              picture([] {}));
}

} // namespace
