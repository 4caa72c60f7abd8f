/* The least that a replacement with two switches can be, written by hand in C: what the library's
 * replacements are measured against. */
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

typedef unsigned char (*HandWrittenMethod)(void* self, void* command);

/* The two tests that the measured replacements make before they pass a call through:
 * "deny" answers NO when the first switch is on and the second off, "allow" answers YES when both are on.
 *
 * "Shared" ones may run while another thread writes the switches and the slot, as every replacement in the
 * library may; the plain ones may not. */
unsigned char plainDenyHook(void* self, void* command);
unsigned char plainAllowHook(void* self, void* command);
unsigned char sharedDenyHook(void* self, void* command);
unsigned char sharedAllowHook(void* self, void* command);

/* Written by whoever installs a hook. */
extern unsigned char handWrittenSwitches[2];
extern HandWrittenMethod handWrittenOriginal;

#ifdef __cplusplus
}
#endif
