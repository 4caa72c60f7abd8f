#import "simulator/uikit/uikit_test.h"

#include <cstdlib>
#include <thread>

bool operator==(CGPoint a, CGPoint b) { return CGPointEqualToPoint(a, b); }
bool operator==(CGSize a, CGSize b) { return CGSizeEqualToSize(a, b); }
bool operator==(CGRect a, CGRect b) { return CGRectEqualToRect(a, b); }
void PrintTo(CGPoint point, std::ostream* out) { *out << "(" << point.x << ", " << point.y << ")"; }
void PrintTo(CGSize size, std::ostream* out) { *out << size.width << " x " << size.height; }
void PrintTo(CGRect rect, std::ostream* out) {
    PrintTo(rect.origin, out);
    *out << " ";
    PrintTo(rect.size, out);
}

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

- (void)tapped:(id)sender {
    lastSender = sender;
    notes->emplace_back("tapped");
}

- (void)pressed:(UIGestureRecognizer*)recognizer {
    lastSender = recognizer;
    notes->push_back("state " + std::to_string([recognizer state]));
}

@end

@implementation NotingController

+ (NotingController*)controllerNamed:(NSString*)name listener:(Listener*)listener {
    NotingController* controller = [[[self alloc] init] autorelease];
    [controller setTitle:name];
    controller->listener = listener;
    return controller;
}

- (void)note:(NSString*)event {
    [listener note:[[self title] stringByAppendingString:event]];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self note:@" will appear"];
}

- (void)viewDidAppear:(BOOL)animated {
    [super viewDidAppear:animated];
    [self note:@" did appear"];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
    [self note:@" will disappear"];
}

- (void)viewDidDisappear:(BOOL)animated {
    [super viewDidDisappear:animated];
    [self note:@" did disappear"];
}

- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    [self note:@" did lay out"];
}

@end

namespace simulator::test {

namespace {

std::filesystem::path makeFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "uikit-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
    return name;
}

} // namespace

UIKitTest::UIKitTest(const std::function<void(Conditions&)>& change)
    : m_pool([[NSAutoreleasePool alloc] init]), m_folder(makeFolder()), m_device(Device::create(m_folder)),
      m_listener([[Listener alloc] init]) {
    if (change) m_device.changeConditions(change);
    m_host = std::make_unique<Host>(
        HostOptions{.bundleIdentifier = "com.example.bare", .device = m_folder, .library = std::nullopt});
    [UIApplication startApplicationOfClass:[UIApplication class]];
    m_window = [[UIWindow alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
    m_root = [[UIViewController alloc] init];
    [m_window setRootViewController:m_root];
    [m_window makeKeyAndVisible];
}

UIKitTest::~UIKitTest() {
    [m_window release];
    [m_root release];
    [m_listener release];
    [m_pool drain];
    [[UIApplication sharedApplication] release];
    m_host.reset();
    std::filesystem::remove_all(m_folder);
}

UIView* UIKitTest::addView(CGRect frame, UIView* superview) {
    UIView* view = [[[UIView alloc] initWithFrame:frame] autorelease];
    [superview ? superview : screen() addSubview:view];
    return view;
}

UIKitClockTest::UIKitClockTest() : UIKitTest([](Conditions& conditions) { conditions.manualClock = true; }) {}

UIKitPadTest::UIKitPadTest()
    : UIKitTest([](Conditions& conditions) {
          conditions.idiom = Idiom::pad;
          conditions.screen = {.width = 768, .height = 1024, .scale = 2};
      }) {}

std::string exceptionOf(const std::function<void()>& work) {
    @try {
        work();
    } @catch (NSException* exception) {
        return [[exception name] UTF8String];
    }
    return "";
}

std::string exceptionElsewhere(const std::function<void()>& work) {
    std::string raised;
    std::thread([&] {
        NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
        @try {
            work();
        } @catch (NSException* exception) {
            raised = [[exception name] UTF8String] + std::string(": ") + [[exception reason] UTF8String];
        }
        [pool drain];
    }).join();
    return raised;
}

} // namespace simulator::test
