// A device of its own for each test, and on it a running application with one window.
#pragma once

#import "UIKit/UIKit.h"
#import "UIKit/ViewTree.h"

#include "device/clock.h"
#include "support/library_fixture.h"

// Notes what it is told, in order.
@interface Listener : NSObject {
  @public
    std::vector<std::string>* notes;
}

- (void)note:(NSString*)text;
- (void)pressed:(UIGestureRecognizer*)recognizer;

@end

namespace simulator::test {

class UIKitTest : public LibraryTest {
  protected:
    explicit UIKitTest(const std::function<void(Conditions&)>& edit = [](Conditions&) {});
    ~UIKitTest() override;

    UIWindow* window() { return [[UIApplication sharedApplication] keyWindow]; }
    // The window's root controller and its view, as large as the screen.
    UIViewController* root() { return [window() rootViewController]; }
    UIView* screen() { return [root() view]; }
    Listener* listener() { return m_listener; }
    std::vector<std::string>& notes() { return *m_listener->notes; }

    // A plain view in another, or on the screen.
    UIView* addView(CGRect frame, UIView* superview = nil);

  private:
    Listener* m_listener;
};

// A device whose clock the test moves.
class UIKitClockTest : public UIKitTest {
  protected:
    UIKitClockTest() : UIKitTest([](Conditions& conditions) { conditions.manualClock = true; }) {}
};

class UIKitPadTest : public UIKitTest {
  protected:
    UIKitPadTest() : UIKitTest([](Conditions& conditions) { conditions.idiom = Idiom::pad; }) {}
};

// The name of the exception that `work` raises; empty when it raises none.
std::string exceptionOf(const std::function<void()>& work);

} // namespace simulator::test
