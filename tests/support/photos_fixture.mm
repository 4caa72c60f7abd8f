#import "support/photos_fixture.h"

#import "AppSupport/AppSupport.h"
#import "device/json_objects.h"

#include <algorithm>

bool operator==(CGRect a, CGRect b) { return CGRectEqualToRect(a, b); }

void PrintTo(CGRect rect, std::ostream* out) {
    *out << "(" << rect.origin.x << ", " << rect.origin.y << ", " << rect.size.width << ", "
         << rect.size.height << ")";
}

@implementation FakePress

- (UIGestureRecognizerState)state {
    return fakeState;
}

- (UIView*)view {
    return pressedView;
}

@end

static NSString* const markName = @"mark";

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

std::ostream& operator<<(std::ostream& out, Asked asked) {
    constexpr const char* names[] = {"asked nothing", "asked for the password", "carried on"};
    return out << names[static_cast<std::size_t>(asked)];
}

namespace {

CPDistributedMessagingCenter* fileWritingCentre() {
    return [CPDistributedMessagingCenter centerNamed:@"com.nrv.rollkeeper"];
}

} // namespace

PUAlbumListViewController* PhotosTest::openAlbumList(const nlohmann::json& preferences,
                                                     const std::vector<std::string>& locked) {
    if (!preferences.is_null()) writePreferences(preferences);
    if (!locked.empty()) lockAlbums(locked);
    start(host::photos);
    return photos::openAlbumList();
}

RequestRecorder* PhotosTest::recordRequests() {
    RequestRecorder* recorder = [[[RequestRecorder alloc] init] autorelease];
    [fileWritingCentre() runServerOnCurrentThread];
    for (NSString* name in @[ @"savearray", markName ])
        [fileWritingCentre() registerForMessageName:name
                                             target:recorder
                                           selector:@selector(takeMessageNamed:withUserInfo:)];
    return recorder;
}

// The centre, which the library opens for the application before it sends, refuses the mark while nothing was
// sent.
void PhotosTest::waitForRequests(RequestRecorder* recorder, std::size_t count) {
    host().runUntil([&] { return recorder->requests.size() >= count; });
    settle();
    recorder->isMarked = ![fileWritingCentre() sendMessageName:markName userInfo:nil];
    waitFor([&] { return recorder->isMarked; });
    EXPECT_EQ(recorder->requests.size(), count);
}

void PhotosTest::reload() {
    [photos::albumList() reloadContentView];
    layOutScreen();
}

void PhotosTest::setPassword(const std::optional<std::string>& password) {
    if (password) {
        device().writeFile(file::password, *password);
    } else {
        device().remove(file::password);
    }
}

PUAlbumListCellContentView* PhotosTest::contentView(const std::string& title) {
    return [photos::albumCell(photos::albumList(), title) albumListCellContentView];
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

std::vector<std::string> PhotosTest::bannerTexts() {
    std::vector<std::string> texts;
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

bool PhotosTest::isHidden(std::size_t number) {
    return library().assets({.includeHidden = true}).at(number).hidden;
}

void PhotosTest::hide(const std::vector<std::size_t>& numbers) {
    for (const std::size_t number : numbers)
        library().setHidden(identifier(number), true);
}

std::vector<std::size_t> PhotosTest::numbersIn(const std::string& albumTitle) {
    const auto album = library().albumTitled(albumTitle);
    if (!album) return {};
    const Assets held = library().assetsIn(*album, {.includeHidden = true});
    const Assets all = library().assets({.includeHidden = true});
    std::vector<std::size_t> numbers;
    for (std::size_t number = 0; number < all.size(); ++number)
        if (std::ranges::find(held, all[number].identifier, &Asset::identifier) != held.end())
            numbers.push_back(number);
    return numbers;
}

} // namespace simulator::test
