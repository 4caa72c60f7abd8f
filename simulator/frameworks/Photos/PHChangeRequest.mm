#import "Photos/Photos+Making.h"

#include <atomic>

using simulator::Change;

namespace {

/// For its lifetime, requests of the calling thread go into its change.
class Recording {
  public:
    Recording() { current = this; }
    ~Recording() { current = nullptr; }
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    static Recording& ofThisThread() {
        if (current == nullptr)
            simulator::raise(NSInternalInconsistencyException,
                             @"This method can only be called from inside of -[PHPhotoLibrary "
                             @"performChanges:completionHandler:] or -[PHPhotoLibrary "
                             @"performChangesAndWait:error:]");
        return *current;
    }

    // Unlike an address never used twice: a request that outlives its block must not pass for another's.
    const std::uint64_t number = ++lastNumber;
    Change change;

  private:
    inline static thread_local Recording* current = nullptr;
    inline static std::atomic<std::uint64_t> lastNumber = 0;
};

} // namespace

Change simulator::changeMadeBy(void (^block)(void)) {
    Recording recording;
    @autoreleasepool {
        block();
    }
    return std::move(recording.change);
}

@implementation PHChangeRequest

+ (Change&)currentChange {
    return Recording::ofThisThread().change;
}

+ (instancetype)requestForIdentifier:(NSString*)identifier {
    const std::uint64_t change = Recording::ofThisThread().number;
    if (identifier == nil) return nil;
    PHChangeRequest* request = [[[self alloc] init] autorelease];
    request->_identifier = [identifier copy];
    request->_change = change;
    return request;
}

- (void)dealloc {
    [_identifier release];
    [super dealloc];
}

- (Change&)change {
    Recording& recording = Recording::ofThisThread();
    if (recording.number != _change)
        simulator::raise(NSInternalInconsistencyException, @"a request of another change block");
    return recording.change;
}

- (std::string)identifier {
    return simulator::text(_identifier);
}

@end
