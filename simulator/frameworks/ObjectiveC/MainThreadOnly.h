// The families of classes that only the main thread may use: views, controllers, alerts and what belongs to
// them.
#pragma once

#import <Foundation/Foundation.h>

// A message of the library under test, sent on another thread to such a class or an object of it, raises
// NSInternalInconsistencyException naming the method. What NSObject itself answers (retain, class, ...) is
// allowed on any thread.
@interface NSObject (MainThreadOnly)
+ (BOOL)isMainThreadOnly; // no, unless a class or its superclass says otherwise
@end
