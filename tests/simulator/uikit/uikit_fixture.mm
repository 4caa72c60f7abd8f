#include "simulator/uikit/uikit_fixture.h"

@implementation Listener

- (instancetype)init {
    self = [super init];
    notes = new std::vector<std::string>;
    return self;
}

- (void)dealloc {
    delete notes;
    [super dealloc];
}

- (void)note:(NSString*)text {
    notes->emplace_back([text UTF8String]);
}

- (void)pressed:(UIGestureRecognizer*)recognizer {
    notes->push_back("state " + std::to_string([recognizer state]));
}

@end

namespace simulator::test {

UIKitTest::UIKitTest(const std::function<void(Conditions&)>& edit) : m_listener([[Listener alloc] init]) {
    change(edit);
    start(host::plain);
    [window() setRootViewController:[[[UIViewController alloc] init] autorelease]];
}

UIKitTest::~UIKitTest() { [m_listener release]; }

UIView* UIKitTest::addView(CGRect frame, UIView* superview) {
    UIView* view = [[[UIView alloc] initWithFrame:frame] autorelease];
    [superview != nil ? superview : screen() addSubview:view];
    return view;
}

std::string exceptionOf(const std::function<void()>& work) {
    @try {
        work();
    } @catch (NSException* exception) {
        return [[exception name] UTF8String];
    }
    return "";
}

} // namespace simulator::test
