// UIEvent: what happened to all fingers at one moment.
#pragma once

#include "bindings/uikit/event.hpp"

#include "desktop/class.hpp"

namespace desktop {

class Event : public PlatformClass<Event, ui::Event> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"type", &Event::type>(),
            objc::method<"timestamp", &Event::timestamp_>(),
            objc::method<"allTouches", &Event::touches_>(),
        };
    }

    static ui::Event with(ns::SetOf<ui::Touch> touches, double timestamp) {
        const auto event = ui::Event::make();
        of(event).touches_ = touches;
        of(event).timestamp_ = timestamp;
        return event;
    }

private:
    /// 0: touches.
    [[nodiscard]] long type() const { return 0; }

    objc::Strong<ns::SetOf<ui::Touch>> touches_;
    double timestamp_ = 0;
};

} // namespace desktop
