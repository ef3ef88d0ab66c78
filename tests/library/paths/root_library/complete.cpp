// A library with all five path operations, each recognisable by what it answers.
#include <cstdio>
#include <cstdlib>

namespace {

char* join(const char* prefix, const char* path, char* buffer) {
    constexpr std::size_t capacity = 1024;
    if (buffer == nullptr) {
        buffer = static_cast<char*>(std::malloc(capacity));
    }
    std::snprintf(buffer, capacity, "%s%s", prefix, path);
    return buffer;
}

} // namespace

extern "C" {

const char* libroot_get_root_prefix();
const char* libroot_get_jbroot_prefix();
const char* libroot_get_boot_uuid();
char* libroot_jbrootpath(const char* path, char* buffer);
char* libroot_rootfspath(const char* path, char* buffer);

const char* libroot_get_root_prefix() { return "/its-root"; }

const char* libroot_get_jbroot_prefix() { return "/its-jbroot"; }

const char* libroot_get_boot_uuid() { return "11111111-2222-3333-4444-555555555555"; }

char* libroot_jbrootpath(const char* path, char* buffer) {
    return join("/its-jbroot-of", path, buffer);
}

char* libroot_rootfspath(const char* path, char* buffer) {
    return join("/its-root-of", path, buffer);
}
}
