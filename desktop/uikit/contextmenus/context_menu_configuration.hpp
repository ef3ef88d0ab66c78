// UIContextMenuConfiguration: what a context menu shows.
#pragma once

#include "bindings/uikit/context_menu_configuration.hpp"

#include "desktop/class.hpp"

#include <array>

namespace desktop {

class ContextMenuConfiguration
    : public PlatformClass<ContextMenuConfiguration, ui::ContextMenuConfiguration> {
public:
    static constexpr auto methods() {
        using Self = ContextMenuConfiguration;
        return std::array{
            objc::classMethod<"configurationWithIdentifier:previewProvider:actionProvider:",
                              &Self::with>(),
            objc::method<"identifier", &Self::identifier>(),
        };
    }
    /// What the providers give; nil without one.
    [[nodiscard]] ui::Menu menu() const;
    [[nodiscard]] ui::ViewController preview() const;

private:
    static ui::ContextMenuConfiguration with(Class cls, objc::Object identifier,
                                             ui::ContextMenuConfiguration::PreviewProvider preview,
                                             ui::ContextMenuConfiguration::ActionProvider actions);
    [[nodiscard]] objc::Object identifier() const { return identifier_; }

    objc::Copied<objc::Object> identifier_;
    objc::Copied<ui::ContextMenuConfiguration::PreviewProvider> preview_;
    objc::Copied<ui::ContextMenuConfiguration::ActionProvider> actions_;
};

} // namespace desktop
