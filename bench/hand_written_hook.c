#include "hand_written_hook.h"

#include <stdbool.h>

unsigned char handWrittenSwitches[2];
HandWrittenMethod handWrittenOriginal;

unsigned char plainDenyHook(void* self, void* command) {
    if (handWrittenSwitches[0] && !handWrittenSwitches[1]) return 0;
    return handWrittenOriginal(self, command);
}

unsigned char plainAllowHook(void* self, void* command) {
    if (handWrittenSwitches[0] && handWrittenSwitches[1]) return 1;
    return handWrittenOriginal(self, command);
}

static bool isOn(int number) { return __atomic_load_n(&handWrittenSwitches[number], __ATOMIC_RELAXED); }
static HandWrittenMethod original(void) { return __atomic_load_n(&handWrittenOriginal, __ATOMIC_RELAXED); }

unsigned char sharedDenyHook(void* self, void* command) {
    if (isOn(0) && !isOn(1)) return 0;
    return original()(self, command);
}

unsigned char sharedAllowHook(void* self, void* command) {
    if (isOn(0) && isOn(1)) return 1;
    return original()(self, command);
}
