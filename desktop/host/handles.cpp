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

std::uint64_t Handles::addAllocated(objc::Object object) {
    objects_.emplace_back();
    allocated_.emplace(objects_.size(), object);
    return objects_.size();
}

objc::Object Handles::allocated(std::uint64_t number) const {
    const auto found = allocated_.find(number);
    return found == allocated_.end() ? objc::Object() : found->second;
}

objc::Object Handles::releaseAllocated(std::uint64_t number) {
    const auto entry = allocated_.extract(number);
    return entry ? entry.mapped() : objc::Object();
}

void Handles::setInitialised(std::uint64_t number, objc::Object object) {
    if (object) {
        objects_[number - 1] = object;
        numbers_.try_emplace(object.raw(), number);
    }
}

} // namespace desktop::host
