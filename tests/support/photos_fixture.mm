#import "support/photos_fixture.h"

#import "AppSupport/AppSupport.h"
#import "device/json_objects.h"

#include <algorithm>
#include <future>
#include <sstream>
#include <utility>

bool operator==(CGRect a, CGRect b) { return CGRectEqualToRect(a, b); }

void PrintTo(CGRect rect, std::ostream* out) {
    *out << "(" << rect.origin.x << ", " << rect.origin.y << ", " << rect.size.width << ", "
         << rect.size.height << ")";
}

static NSString* const markName = @"mark";

@interface RequestRecorder : NSObject {
  @public
    std::vector<nlohmann::json> requests;
    bool isMarked;
}
@end

@implementation RequestRecorder

- (NSDictionary*)takeMessageNamed:(NSString*)name withUserInfo:(NSDictionary*)info {
    if ([name isEqualToString:markName])
        isMarked = true;
    else
        requests.push_back(simulator::jsonFromObject(info));
    return nil;
}

@end

namespace simulator::test {

namespace {

CPDistributedMessagingCenter* fileWritingCentre() {
    return [CPDistributedMessagingCenter centerNamed:@"com.nrv.rollkeeper"];
}

} // namespace

std::string outline(UIView* view) {
    if (view == nil) return "none";
    std::ostringstream out;
    const CGRect frame = [view frame];
    out << text(NSStringFromClass([view class])) << ' ' << frame.origin.x << ' ' << frame.origin.y << ' '
        << frame.size.width << ' ' << frame.size.height;
    const bool isOpaqueToTests = [view isKindOfClass:[UIVisualEffectView class]];
    if (isOpaqueToTests || [[view subviews] count] == 0) return out.str();
    std::string separator = " {";
    for (UIView* subview in [view subviews]) {
        out << separator << outline(subview);
        separator = "; ";
    }
    return out.str() + "}";
}

PhotosTest::~PhotosTest() { [m_recorder release]; }

PUAlbumListViewController* PhotosTest::openAlbumList(const json& preferences, const Texts& locked) {
    if (!preferences.is_null()) writePreferences(preferences);
    if (!locked.empty()) lockAlbums(locked);
    start(host::photos);
    return photos::openAlbumList();
}

void PhotosTest::recordRequests() {
    m_recorder = [[RequestRecorder alloc] init];
    [[fileWritingCentre() retain] runServerOnCurrentThread]; // as long as the process
    for (NSString* name in @[ @"savearray", markName ])
        [fileWritingCentre() registerForMessageName:name
                                             target:m_recorder
                                           selector:@selector(takeMessageNamed:withUserInfo:)];
}

// The mark comes behind every request. It is refused while the library has not opened the centre for the
// application, without which no request is sent.
std::vector<json> PhotosTest::takeRequests() {
    settle();
    m_recorder->isMarked = ![fileWritingCentre() sendMessageName:markName userInfo:nil];
    waitFor([&] { return m_recorder->isMarked; });
    return std::exchange(m_recorder->requests, {});
}

std::vector<json> PhotosTest::takeSavedLists() {
    std::vector<json> lists;
    for (const json& request : takeRequests()) {
        lists.push_back(request.value("array", json()));
        json expected = {{"id", "com.apple.mobileslideshow"}, {"path", file::lockedAlbums}};
        if (!lists.back().is_null()) expected["array"] = lists.back();
        EXPECT_EQ(request, expected);
    }
    return lists;
}

void PhotosTest::setPassword(const std::optional<std::string>& password) {
    if (password)
        device().writeFile(file::password, *password);
    else
        device().remove(file::password);
}

void PhotosTest::setUnreadable(const char* path) {
    change([&](Conditions& conditions) {
        conditions.faults.unreadable.clear();
        if (path != nullptr) conditions.faults.unreadable.push_back(path);
    });
}

void PhotosTest::reload() {
    [photos::albumList() reloadContentView];
    layOutScreen();
}

PUAlbumListCellContentView* PhotosTest::contentView(const std::string& title) {
    return [photos::albumCell(photos::albumList(), title) albumListCellContentView];
}

PUAlbumListCellContentView* PhotosTest::configure(Class cellClass, NSIndexPath* path) {
    PUAlbumListViewController* list = photos::albumList();
    UICollectionView* view = [list mainCollectionView];
    [view registerClass:cellClass forCellWithReuseIdentifier:@"album"];
    auto cell = static_cast<PUAlbumListCell*>([list collectionView:view cellForItemAtIndexPath:path]);
    EXPECT_TRUE([cell isKindOfClass:cellClass]);
    return [cell albumListCellContentView];
}

void PhotosTest::tapButton(const std::string& title, NSInteger tag) {
    UIView* view = button(title, tag);
    ASSERT_TRUE(view != nil) << title << " has no button " << tag;
    EXPECT_TRUE(tap(view) == view) << "the button cannot be touched";
}

bool PhotosTest::lists(const std::string& title) {
    PUAlbumListViewController* list = photos::albumList();
    for (NSInteger item = 0; item < [[list mainCollectionView] numberOfItemsInSection:0]; ++item) {
        PHCollection* album = [list collectionAtIndexPath:[NSIndexPath indexPathForItem:item inSection:0]];
        if (text([album localizedTitle]) == title) return true;
    }
    return false;
}

UIView* PhotosTest::rootView() {
    return [[[[UIApplication sharedApplication] keyWindow] rootViewController] view];
}

bool PhotosTest::hasOpenedAlbum() {
    UIViewController* top = [[photos::library() selectedNavigationController] topViewController];
    return [top isKindOfClass:[PUPhotosAlbumViewController class]];
}

std::string PhotosTest::alertTitle() { return text([frontAlert() title]); }

Texts PhotosTest::shownAlert() {
    UIAlertController* alert = frontAlert();
    const bool isSheet = [alert preferredStyle] == UIAlertControllerStyleActionSheet;
    EXPECT_TRUE([[alert popoverPresentationController] sourceView] == nil);
    Texts shown = {isSheet ? "sheet" : "alert", text([alert title]), text([alert message])};
    for (UITextField* field in [alert textFields]) {
        EXPECT_EQ(text([field text]), "");
        shown.push_back("[" + text([field placeholder]) + ([field isSecureTextEntry] ? "*]" : "]"));
    }
    for (UIAlertAction* action in [alert actions]) {
        const bool isCancel = [action style] == UIAlertActionStyleCancel;
        EXPECT_TRUE(isCancel || [action style] == UIAlertActionStyleDefault);
        shown.push_back(text([action title]) + (isCancel ? " (cancel)" : ""));
    }
    return shown;
}

UIView* PhotosTest::anchor() {
    UIPopoverPresentationController* popover = [frontAlert() popoverPresentationController];
    EXPECT_EQ([frontAlert() modalPresentationStyle], UIModalPresentationPopover);
    EXPECT_EQ([popover sourceRect], [[popover sourceView] bounds]);
    return [popover sourceView];
}

void PhotosTest::answerPassword(const std::string& text) {
    typeText(0, text);
    tapAlertAction("OK");
}

void PhotosTest::goBack() {
    if (frontAlert()) tapAlertAction("Cancel");
    [[photos::library() selectedNavigationController] popToRootViewControllerAnimated:NO];
    layOutScreen();
}

std::vector<UIView*> PhotosTest::banners() {
    std::vector<UIView*> found;
    for (UIView* view in [rootView() subviews])
        if ([view tag] == tag::statusBanner) found.push_back(view);
    return found;
}

Texts PhotosTest::bannerTexts() {
    Texts texts;
    for (UIView* banner : banners())
        texts.push_back(text([static_cast<UILabel*>([[banner subviews] firstObject]) text]));
    return texts;
}

std::size_t PhotosTest::hapticTicks() {
    std::size_t ticks = 0;
    for (NSNumber* feedback in [[[UIDevice currentDevice] _tapticEngine] actuatedFeedback])
        if ([feedback integerValue] == 1001) ++ticks;
    return ticks;
}

std::string PhotosTest::identifier(std::size_t number) {
    return library().assets({.includeHidden = true}).at(number).identifier;
}

void PhotosTest::hide(const Numbers& numbers) {
    for (const std::size_t number : numbers)
        library().setHidden(identifier(number), true);
}

void PhotosTest::hideOnly(const Numbers& numbers) {
    for (const Asset& each : library().assets({.includeHidden = true}))
        library().setHidden(each.identifier, false);
    hide(numbers);
}

Numbers PhotosTest::hiddenNumbers() {
    Numbers numbers;
    const Assets all = library().assets({.includeHidden = true});
    for (std::size_t number = 0; number < all.size(); ++number)
        if (all[number].hidden) numbers.push_back(number);
    return numbers;
}

Numbers PhotosTest::numbersIn(const std::string& albumTitle) {
    const auto album = library().albumTitled(albumTitle);
    if (!album) return {};
    const Assets held = library().assetsIn(*album, {.includeHidden = true});
    const Assets all = library().assets({.includeHidden = true});
    Numbers numbers;
    for (std::size_t number = 0; number < all.size(); ++number)
        if (std::ranges::find(held, all[number].identifier, &Asset::identifier) != held.end())
            numbers.push_back(number);
    return numbers;
}

void PhotosTest::whileLibraryIsBusy(const std::function<void()>& work) {
    std::promise<void> goOn;
    const auto signal = goOn.get_future().share();
    void (^wait)() = ^{
        signal.wait();
    };
    [[PHPhotoLibrary sharedPhotoLibrary] performChanges:wait completionHandler:nil];
    work();
    goOn.set_value();
    settle();
}

} // namespace simulator::test
