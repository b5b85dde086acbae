#include "htdrdd91/platform/thread_state.h"

#include "htdrdd91/platform/file_system.h"

namespace htdrdd {

Region& CurrentRegion() { return ThisThread().region; }

FileSystem& CurrentFileSystem() {
    FileSystem* const files = ThisThread().files;
    return files != nullptr ? *files : MachineFileSystem();
}

void UseFileSystem(FileSystem* files) { ThisThread().files = files; }

Desktop& CurrentDesktop() {
    static Desktop machine;
    Desktop* const desktop = ThisThread().desktop;
    return desktop != nullptr ? *desktop : machine;
}

void UseDesktop(Desktop* desktop) { ThisThread().desktop = desktop; }

} // namespace htdrdd
