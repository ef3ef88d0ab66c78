// UIEvent: what happened to all fingers at one moment, or to the whole phone.
#pragma once

#include "bindings/uikit/event.hpp"

#include "desktop/class.hpp"

namespace desktop {

class Event : public PlatformClass<Event, ui::Event> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"type", &Event::type_>(),
            objc::method<"subtype", &Event::subtype_>(),
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

    /// Of a phone that is shaken.
    static ui::Event withShake(double timestamp) {
        const auto event = ui::Event::make();
        of(event).type_ = motion;
        of(event).subtype_ = shake;
        of(event).timestamp_ = timestamp;
        return event;
    }
    // The platform's numbers: of a type and of a subtype.
    static constexpr long motion = 1;
    static constexpr long shake = 1;

private:
    long type_ = 0; ///< touches
    long subtype_ = 0;
    objc::Strong<ns::SetOf<ui::Touch>> touches_;
    double timestamp_ = 0;
};

} // namespace desktop
