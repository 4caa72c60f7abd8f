// A host application with the library under test, in the test's process: what Photos' album list shows and
// what a user does there, and what becomes of the photos.
#pragma once

#include "support/library_fixture.h"

#import "UIKit/ViewTree.h"
#import "hosts/applications/common/screen.h"
#import "hosts/applications/photos/photos_app.h"

#include <ostream>

bool operator==(CGRect a, CGRect b);
void PrintTo(CGRect rect, std::ostream* out);

// Methods that the library adds.
@interface PUAlbumListViewController (Added)
- (void)handleLongPress:(UIGestureRecognizer*)recognizer;
- (void)handleHiddenPress:(UIGestureRecognizer*)recognizer;
- (void)unlockAuthorised:(int)purpose;
@end

@interface PUAlbumListCellContentView (Added)
- (void)createButtons;
- (void)askToMoveAlbum;
- (void)lockAlbum;
- (void)unlockAuthorised:(int)purpose;
@end

// A press whose state a test chooses.
@interface FakePress : UILongPressGestureRecognizer {
  @public
    UIGestureRecognizerState fakeState;
    UIView* pressedView; // not retained
}
@end

// Takes the requests to write state files in the place of the process that serves them.
@interface RequestRecorder : NSObject {
  @public
    std::vector<nlohmann::json> requests;
    bool isMarked; // by the message that was sent last
}
@end

namespace simulator::test {

namespace tag {
inline constexpr NSInteger lockOverlay = 200;
inline constexpr NSInteger statusBanner = 204;
inline constexpr NSInteger moveButton = 213;
inline constexpr NSInteger lockButton = 214;
} // namespace tag

// How a request for authorisation goes on.
enum class Asked { nothing, forPassword, carriedOn };
std::ostream& operator<<(std::ostream& out, Asked asked);

class PhotosTest : public LibraryTest {
  protected:
    // Starts Photos with its album list on the screen; without preferences there is no file of them.
    PUAlbumListViewController* openAlbumList(const nlohmann::json& preferences = {},
                                             const std::vector<std::string>& locked = {});
    RequestRecorder* recordRequests();
    // Waits until the recorder has that many requests, and all that were sent.
    void waitForRequests(RequestRecorder* recorder, std::size_t count);
    // Configures every visible cell anew.
    void reload();
    void setPassword(const std::optional<std::string>& password);

    // Of the first album of that title.
    PUAlbumListCellContentView* contentView(const std::string& title);
    UIView* overlay(const std::string& title) { return [contentView(title) viewWithTag:tag::lockOverlay]; }
    UIView* button(const std::string& title, NSInteger tag) { return [contentView(title) viewWithTag:tag]; }
    bool lists(const std::string& title);

    UIView* rootView();
    bool hasOpenedAlbum();
    std::string alertTitle();
    bool isAskedForPassword() { return alertTitle() == "Unlock album"; }
    // Types into the password alert and confirms.
    void answerPassword(const std::string& text);
    // Closes the alert and leaves the album that are on the screen, if any.
    void goBack();
    // The banners on the screen, oldest first, and their texts.
    std::vector<UIView*> banners();
    std::vector<std::string> bannerTexts();
    std::size_t hapticTicks();

    // The sample's photos by number, the oldest being 0.
    std::string identifier(std::size_t number);
    bool isHidden(std::size_t number);
    void hide(const std::vector<std::size_t>& numbers);
    std::vector<std::size_t> numbersIn(const std::string& albumTitle);
};

} // namespace simulator::test
