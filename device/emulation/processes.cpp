// Starting programs: what is to be done with files first is a pointer on the phone, and a structure
// under Linux.
#include "device/emulation/imports.hpp"
#include "device/emulation/refusal.hpp"

#include <spawn.h>

namespace emulation {
namespace {

using Actions = posix_spawn_file_actions_t;

int makeActions(Actions** actions) {
    *actions = new Actions;
    return posix_spawn_file_actions_init(*actions);
}
int destroyActions(Actions** actions) {
    const int result = posix_spawn_file_actions_destroy(*actions);
    delete *actions;
    return result;
}
int changeFolder(Actions** actions, const char* folder) {
    return posix_spawn_file_actions_addchdir_np(*actions, folder);
}

int spawn(pid_t* process, const char* path, Actions* const* actions, void* const* attributes,
          char* const* arguments, char* const* environment) {
    if (attributes != nullptr) {
        refuse("posix_spawn with attributes");
    }
    return posix_spawn(process, path, actions != nullptr ? *actions : nullptr, nullptr, arguments,
                       environment);
}

} // namespace

std::vector<Translation> processTranslations() {
    return {
        translation("_posix_spawn", &spawn),
        translation("_posix_spawn_file_actions_addchdir_np", &changeFolder),
        translation("_posix_spawn_file_actions_destroy", &destroyActions),
        translation("_posix_spawn_file_actions_init", &makeActions),
    };
}

} // namespace emulation
