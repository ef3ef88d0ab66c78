// System sounds are not heard here; that they were played is recorded.
#include "bindings/audiotoolbox/system_sound.hpp"

#include "bindings/foundation/number.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/runtime/event_log.hpp"

extern "C" void AudioServicesPlaySystemSound(SystemSoundID sound) {
    using namespace ns::literals;
    const objc::Pool pool;
    const auto fields = ns::MutableDictionary::make();
    fields.set(ns::Number::from(static_cast<long long>(sound)), u"id"_ns);
    desktop::EventLog::shared().record("sound", fields);
}
