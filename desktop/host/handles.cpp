// The table of objects that have been handed out.
#include "desktop/host/handles.hpp"

namespace desktop::host {

std::uint64_t Handles::numberOf(objc::Object object) {
    const auto [place, isNew] = numbers_.try_emplace(object.raw(), objects_.size() + 1);
    if (isNew) {
        objects_.emplace_back(object);
    }
    return place->second;
}

objc::Object Handles::object(std::uint64_t number) const {
    return number == 0 || number > objects_.size()
               ? objc::Object()
               : static_cast<objc::Object>(objects_[number - 1]);
}

} // namespace desktop::host
