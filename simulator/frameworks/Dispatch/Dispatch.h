// The part of Grand Central Dispatch that the device's frameworks need: the main queue on the main run loop,
// serial queues on threads of their own.
#pragma once

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct dispatch_queue_s* dispatch_queue_t;
typedef void (^dispatch_block_t)(void);
typedef struct dispatch_queue_attr_s* dispatch_queue_attr_t;

extern struct dispatch_queue_s _dispatch_main_q;
static inline dispatch_queue_t dispatch_get_main_queue(void) { return &_dispatch_main_q; }

#define DISPATCH_QUEUE_SERIAL ((dispatch_queue_attr_t)0)

// Queues are serial and live as long as the process.
dispatch_queue_t dispatch_queue_create(const char* label, dispatch_queue_attr_t attributes);

void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
// Runs the block on the queue and waits; on the main queue only from other threads, as on the device.
void dispatch_sync(dispatch_queue_t queue, dispatch_block_t block);

// In nanoseconds of the clock that the timers follow.
typedef uint64_t dispatch_time_t;
#define DISPATCH_TIME_NOW ((dispatch_time_t)0)
#define NSEC_PER_SEC 1000000000ull

dispatch_time_t dispatch_time(dispatch_time_t base, int64_t nanoseconds);
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);

#ifdef __cplusplus
}
#endif
