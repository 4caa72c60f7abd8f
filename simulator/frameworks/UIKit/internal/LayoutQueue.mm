#import "UIKit/internal/LayoutQueue.h"

#import "UIKit/UIApplication.h"
#import "UIKit/UIWindow.h"
#import "UIKit/internal/ViewState.h"
#include "device/threads.h"

namespace simulator {

namespace {

bool layoutIsScheduled = false; // main thread only

} // namespace

void scheduleLayout() {
    if (layoutIsScheduled) return;
    layoutIsScheduled = true;
    performOnMainThread(layoutWindows);
}

void layoutWindows() {
    layoutIsScheduled = false;
    [[[UIApplication sharedApplication] keyWindow] layoutTree];
}

} // namespace simulator
