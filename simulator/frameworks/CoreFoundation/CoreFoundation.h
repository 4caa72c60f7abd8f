// Core Foundation as far as the device's applications reach for it: the Darwin notification centre and the
// version.
#pragma once

#import <Foundation/Foundation.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef const void* CFTypeRef;
typedef const struct __CFString* CFStringRef;         // is an NSString
typedef const struct __CFDictionary* CFDictionaryRef; // is an NSDictionary
typedef struct __CFNotificationCenter* CFNotificationCenterRef;
typedef long CFIndex;
typedef unsigned char Boolean;

enum { CFNotificationSuspensionBehaviorDeliverImmediately = 4 };
typedef CFIndex CFNotificationSuspensionBehavior;

typedef void (*CFNotificationCallback)(CFNotificationCenterRef center, void* observer, CFStringRef name,
                                       const void* object, CFDictionaryRef userInfo);

extern double kCFCoreFoundationVersionNumber;

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void);
// The callback runs on the main run loop; object and userInfo are always NULL for the Darwin centre.
void CFNotificationCenterAddObserver(CFNotificationCenterRef center, const void* observer,
                                     CFNotificationCallback callback, CFStringRef name, const void* object,
                                     CFNotificationSuspensionBehavior behavior);
void CFNotificationCenterRemoveObserver(CFNotificationCenterRef center, const void* observer,
                                        CFStringRef name, const void* object);
// Reaches every process of the device, this one included.
void CFNotificationCenterPostNotification(CFNotificationCenterRef center, CFStringRef name,
                                          const void* object, CFDictionaryRef userInfo,
                                          Boolean deliverImmediately);

#ifdef __cplusplus
}
#endif
