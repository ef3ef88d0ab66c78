// Opening them.
#include "desktop/program/standard_descriptors.hpp"

#include <fcntl.h>
#include <unistd.h>

namespace desktop {

void openStandardDescriptors() {
    int lowest = 0;
    do {
        lowest = open("/dev/null", O_RDWR);
    } while (lowest >= 0 && lowest <= STDERR_FILENO);
    close(lowest);
}

} // namespace desktop
