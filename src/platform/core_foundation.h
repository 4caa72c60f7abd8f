// CoreFoundation: its version, which tells system releases apart, and the Darwin notification centre.
#pragma once

#include "platform/foundation.h"

extern "C" {
extern const double kCFCoreFoundationVersionNumber;

struct __CFNotificationCenter;
using CFNotificationCallback = void (*)(__CFNotificationCenter* center, void* observer, rollkeeper::id name,
                                        const void* object, rollkeeper::id userInfo);

__CFNotificationCenter* CFNotificationCenterGetDarwinNotifyCenter();
void CFNotificationCenterAddObserver(__CFNotificationCenter* center, const void* observer,
                                     CFNotificationCallback callback, rollkeeper::id name, const void* object,
                                     rollkeeper::NSInteger suspensionBehavior);
void CFNotificationCenterPostNotification(__CFNotificationCenter* center, rollkeeper::id name,
                                          const void* object, rollkeeper::id userInfo,
                                          unsigned char deliverImmediately);
} // extern "C"

namespace rollkeeper::coreFoundationVersion {

// Values of kCFCoreFoundationVersionNumber at which behaviour changes.
inline constexpr double ios9 = 1240.10;           // kCFCoreFoundationVersionNumber_iOS_9_0
inline constexpr double ios10 = 1300.0;           // any number between iOS 9 (1280.30) and 10 (1348.00)
inline constexpr double above10_2Anchor = 1348.0; // exceeded by 10.2 already
inline constexpr double above10_2 = 1349.0;       // exceeded from 10.3 on
inline constexpr double ios11 = 1443.0;
inline constexpr double ios12 = 1556.0;

} // namespace rollkeeper::coreFoundationVersion
