#include "frameworks/ObjectiveC/ObjectiveC.h"

#import "UIKit/UIKit.h"
#include "device/threads.h"
#include "simulator/device/device_test.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

static int aliveCount;

@interface Counted : NSObject
@end
@implementation Counted
- (instancetype)init {
    self = [super init];
    ++aliveCount;
    return self;
}
- (void)dealloc {
    --aliveCount;
    [super dealloc];
}
@end

@interface Forwarder : NSObject
@end
@implementation Forwarder
- (NSMethodSignature*)methodSignatureForSelector:(SEL)selector {
    return [@"target" methodSignatureForSelector:selector];
}
- (void)forwardInvocation:(NSInvocation*)invocation {
    [invocation invokeWithTarget:@"target"];
}
@end

namespace simulator::test {
namespace {

class Runtime : public DeviceTest {};

TEST_F(Runtime, weak_reference_reads_as_nil_once_the_object_is_gone) {
    id weak = nil;
    id object = [[Counted alloc] init];
    objc_initWeak(&weak, object);
    id loaded = objc_loadWeakRetained(&weak);
    EXPECT_EQ(loaded, object);
    [loaded release];
    [object release];
    EXPECT_EQ(aliveCount, 0);
    EXPECT_EQ(objc_loadWeakRetained(&weak), nil);
    objc_destroyWeak(&weak);
}

TEST_F(Runtime, weak_reference_follows_the_last_store) {
    id first = [[Counted alloc] init];
    id second = [[Counted alloc] init];
    id weak = nil;
    id other = nil;
    objc_storeWeak(&weak, first);
    objc_storeWeak(&other, first);
    objc_storeWeak(&weak, second);
    [first release];
    EXPECT_EQ(other, nil);
    EXPECT_EQ(weak, second);
    objc_destroyWeak(&weak);
    [second release];
    EXPECT_EQ(aliveCount, 0);
}

// A load must hand out an object that is alive or nothing, whichever thread lets the object go.
TEST_F(Runtime, weak_reference_is_read_while_another_thread_releases) {
    for (int round = 0; round < 300; ++round) {
        id weak = nil;
        id object = [[NSMutableArray alloc] initWithObjects:@"element", nil];
        objc_initWeak(&weak, object);
        std::atomic<bool> started = false;
        std::thread releasing([&] {
            registerThread();
            while (!started) {
            }
            [object release];
        });
        started = true;
        bool gone = false;
        while (!gone) {
            id loaded = objc_loadWeakRetained(&weak);
            gone = loaded == nil;
            if (!gone) EXPECT_EQ([loaded count], 1u);
            [loaded release];
        }
        releasing.join();
        objc_destroyWeak(&weak);
    }
}

TEST_F(Runtime, autorelease_pool_releases_when_popped) {
    void* outer = objc_autoreleasePoolPush();
    [[[Counted alloc] init] autorelease];
    void* inner = objc_autoreleasePoolPush();
    [[[Counted alloc] init] autorelease];
    objc_autoreleasePoolPop(inner);
    EXPECT_EQ(aliveCount, 1);
    objc_autoreleasePoolPop(outer);
    EXPECT_EQ(aliveCount, 0);
}

TEST_F(Runtime, unknown_message_raises_naming_class_and_selector) {
    id object = [[[Counted alloc] init] autorelease];
    const SEL unknown = sel_registerName("noSuchMethod:");
    using testing::HasSubstr;
    EXPECT_THAT(
        exceptionOf([&] { objc_msgLookup(object, unknown); }),
        HasSubstr(
            "NSInvalidArgumentException: -[Counted noSuchMethod:]: unrecognized selector sent to instance"));
    EXPECT_THAT(exceptionOf([&] { objc_msgLookup([Counted class], unknown); }),
                HasSubstr("+[Counted noSuchMethod:]: unrecognized selector sent to class"));
    EXPECT_THAT(exceptionOf([&] { [object performSelector:unknown]; }),
                HasSubstr("-[Counted noSuchMethod:]"));
}

TEST_F(Runtime, unknown_message_is_forwarded_where_the_object_forwards) {
    id object = [[[Forwarder alloc] init] autorelease];
    const SEL length = @selector(length);
    const auto method = reinterpret_cast<NSUInteger (*)(id, SEL)>(objc_msgLookup(object, length));
    EXPECT_EQ(method(object, length), 6u);
}

TEST_F(Runtime, message_to_what_belongs_to_the_main_thread_raises_on_another) {
    struct {
        id receiver;
        SEL selector;
        const char* raises;
    } const messages[] = {
        {[[UILabel new] autorelease], @selector(frame), "-[UILabel frame]"},
        {[UIView class],
         @selector(animateWithDuration:animations:),
         "+[UIView animateWithDuration:animations:]"},
        {[[UIViewController new] autorelease], @selector(view), "-[UIViewController view]"},
        {[UIApplication class], @selector(sharedApplication), "+[UIApplication sharedApplication]"},
        {[[UITapGestureRecognizer new] autorelease], @selector(view), "-[UITapGestureRecognizer view]"},
        {[[UIBarButtonItem new] autorelease], @selector(title), "-[UIBarButtonItem title]"},
        {[[UINavigationItem new] autorelease], @selector(title), "-[UINavigationItem title]"},
        {[[UILabel new] autorelease], @selector(retain), nullptr},
        {[UIColor class], @selector(blackColor), nullptr},
        {[UIFont class], @selector(systemFontOfSize:), nullptr},
        {[UIImage class], @selector(imageWithData:), nullptr},
    };
    for (const auto& message : messages) {
        const auto lookUp = [&] { objc_msgLookup(message.receiver, message.selector); };
        EXPECT_EQ(exceptionOf(lookUp), "");
        std::string raised;
        std::thread([&] {
            registerThread();
            @autoreleasepool {
                raised = exceptionOf(lookUp);
            }
        }).join();
        EXPECT_EQ(raised, message.raises == nullptr
                              ? std::string()
                              : std::string("NSInternalInconsistencyException: ") + message.raises +
                                    " must be used from the main thread only");
    }
}

TEST_F(Runtime, class_made_at_run_time_inherits) {
    EXPECT_EQ(object_getClass(nil), Nil);
    EXPECT_EQ(object_getIvar(nil, nullptr), nil);
    Class made = objc_allocateClassPair([Counted class], "CountedMadeAtRunTime", 0);
    ASSERT_TRUE(made != Nil);
    objc_registerClassPair(made);
    id object = [[made alloc] init];
    EXPECT_STREQ(object_getClassName(object), "CountedMadeAtRunTime");
    EXPECT_TRUE([object isKindOfClass:[Counted class]]);
    [object release];
    EXPECT_EQ(aliveCount, 0);
}

} // namespace
} // namespace simulator::test
