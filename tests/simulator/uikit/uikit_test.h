// A device of its own for each test, and on it a running application with one window.
#pragma once

#import "UIKit/UIKit.h"
#import "UIKit/ViewTree.h"

#include "device/clock.h"
#include "device/device.h"
#include "hosts/host.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

bool operator==(CGPoint a, CGPoint b);
bool operator==(CGSize a, CGSize b);
bool operator==(CGRect a, CGRect b);
void PrintTo(CGPoint point, std::ostream* out);
void PrintTo(CGSize size, std::ostream* out);
void PrintTo(CGRect rect, std::ostream* out);

// Notes what it is told, in order.
@interface Listener : NSObject {
  @public
    std::vector<std::string>* notes;
    id lastSender;
}

- (void)note:(NSString*)text;
- (void)tapped:(id)sender;
- (void)pressed:(UIGestureRecognizer*)recognizer;

@end

// Notes each appearance and layout as "NAME will appear" and the like.
@interface NotingController : UIViewController {
  @public
    Listener* listener;
}

+ (NotingController*)controllerNamed:(NSString*)name listener:(Listener*)listener;

@end

namespace simulator::test {

class UIKitTest : public testing::Test {
  protected:
    explicit UIKitTest(const std::function<void(Conditions&)>& change = nullptr);
    ~UIKitTest() override;

    UIWindow* window() { return m_window; }
    // The window's root controller and its view, as large as the screen.
    UIViewController* root() { return m_root; }
    UIView* screen() { return [m_root view]; }
    Listener* listener() { return m_listener; }
    std::vector<std::string>& notes() { return *m_listener->notes; }
    const Device& device() { return m_device; }
    Host& host() { return *m_host; }

    // A plain view in another, or on the screen.
    UIView* addView(CGRect frame, UIView* superview = nil);

  private:
    NSAutoreleasePool* m_pool;
    std::filesystem::path m_folder;
    Device m_device;
    std::unique_ptr<Host> m_host;
    UIWindow* m_window;
    UIViewController* m_root;
    Listener* m_listener;
};

// A device whose clock the test moves.
class UIKitClockTest : public UIKitTest {
  protected:
    UIKitClockTest();
};

class UIKitPadTest : public UIKitTest {
  protected:
    UIKitPadTest();
};

// The name of the exception that `work` raises; empty when it raises none.
std::string exceptionOf(const std::function<void()>& work);
// What the C++ exception says that `work` throws; empty when it throws none. Objective-C++ code on Linux
// cannot catch those itself.
std::string errorOf(const std::function<void()>& work);
// "name: reason" of the exception that `work` raises on a thread other than the main thread.
std::string exceptionElsewhere(const std::function<void()>& work);

} // namespace simulator::test
