#include "state/file_writing_service.h"

#include "objc/replacement.h"
#include "state/file_writing_message.h"

namespace rollkeeper {

void applicationDidFinishLaunching(NSObject springBoard, SEL command, UIApplication application) {
    original<applicationDidFinishLaunching>(springBoard, command, application);

    auto center = share(fileWriting::center());
    center->runServerOnCurrentThread();
    center->registerForMessage(fileWriting::messageName(), springBoard,
                               selector<"handleMessageNamed:withUserInfo:">());
    (void)center.leak(); // it serves as long as it lives
}

// Returns nil although its registered type returns nothing: message centres read a handler's result.
NSDictionary handleMessage(NSObject, SEL, NSString, NSDictionary userInfo) {
    const auto request = ifKindOf<NSDictionary>(userInfo);
    const NSObject content = request.objectForKey(fileWriting::arrayKey());
    const auto path = ifKindOf<NSString>(request.objectForKey(fileWriting::pathKey()));
    if (path && content.respondsTo<"writeToFile:atomically:">())
        cast<NSArray>(content).writeToFile(path, true);
    return NSDictionary();
}

} // namespace rollkeeper
