// UISearchBar: a rounded field with a magnifier, which tells its delegate of every change.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/search_bar.hpp"
#include "bindings/uikit/text_field.hpp"

#include "desktop/class.hpp"

namespace desktop {

class SearchBar : public PlatformClass<SearchBar, ui::SearchBar> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithFrame:", &SearchBar::initWithFrame>(),
            objc::property<"text", &SearchBar::text, &SearchBar::setText>(),
            objc::property<"placeholder", &SearchBar::placeholder, &SearchBar::setPlaceholder>(),
            objc::property<"delegate", &SearchBar::delegate_>(),
            objc::method<"searchTextField", &SearchBar::searchTextField>(),
            objc::method<"layoutSubviews", &SearchBar::layoutSubviews>(),
            objc::method<"sizeThatFits:", &SearchBar::sizeThatFits>(),
            objc::method<"textFieldShouldReturn:", &SearchBar::pressedReturn>(),
            objc::method<"searchTextChanged", &SearchBar::changed>(),
        };
    }

private:
    ui::SearchBar initWithFrame(CGRect frame);
    [[nodiscard]] ui::TextField searchTextField() const { return field_; }
    [[nodiscard]] ns::String text() const { return field_.text(); }
    void setText(ns::String text) const { field_.setText(text); }
    [[nodiscard]] ns::String placeholder() const { return field_.placeholder(); }
    void setPlaceholder(ns::String text) const { field_.setPlaceholder(text); }
    void layoutSubviews() const;
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const;
    [[nodiscard]] bool pressedReturn(ui::TextField field) const;
    void changed() const;

    objc::Strong<ui::TextField> field_;
    objc::Weak<objc::Object> delegate_;
};

} // namespace desktop
