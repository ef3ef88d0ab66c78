// A size or its default.
#include "library/toolbox/stored_size.hpp"

#include <cmath>

namespace wentra::toolbox {

double storedSize(const preferences::Preferences& preferences, const preferences::Number& key,
                  double standard) {
    const double stored = preferences.number(key);
    return stored == 0 || !std::isfinite(stored) ? standard : stored;
}

} // namespace wentra::toolbox
