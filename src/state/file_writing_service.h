// The server inside SpringBoard that writes the state files of all processes.
#pragma once

#include "platform/uikit.h"

namespace rollkeeper {

// -[SpringBoard applicationDidFinishLaunching:]: starts the server on the main thread.
void applicationDidFinishLaunching(NSObject springBoard, SEL command, UIApplication application);

// -[SpringBoard handleMessageNamed:withUserInfo:]: writes one file. Senders are not told of a failure.
NSDictionary handleMessage(NSObject springBoard, SEL command, NSString name, NSDictionary userInfo);

} // namespace rollkeeper
