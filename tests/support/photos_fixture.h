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
- (void)reloadCameraRollWithMove:(BOOL)move;
- (void)unlockAuthorised:(int)purpose;
@end

@interface PUAlbumListCellContentView (Added)
- (void)createButtons;
- (void)lockAlbum;
- (void)unlockAuthorised:(int)purpose;
@end

@class RequestRecorder;

namespace simulator::test {

using nlohmann::json;
using Numbers = std::vector<std::size_t>;
using Texts = std::vector<std::string>;

namespace tag {
inline constexpr NSInteger lockOverlay = 200;
inline constexpr NSInteger statusBanner = 204;
inline constexpr NSInteger moveButton = 213;
inline constexpr NSInteger lockButton = 214;
} // namespace tag

// "UIImageView 0 0 136 136 {UIVisualEffectView 0 0 136 136; UIImageView 43 43 50 50}"; "none" for nil.
std::string outline(UIView* view);

class PhotosTest : public LibraryTest {
  protected:
    ~PhotosTest() override;

    // Starts Photos with its album list on the screen; without preferences there is no file of them.
    PUAlbumListViewController* openAlbumList(const json& preferences = {}, const Texts& locked = {});
    // Takes the requests to write state files in the place of the process that serves them.
    void recordRequests();
    // Those since the last call, once all work is done.
    std::vector<json> takeRequests();
    // Of them the lists of locked albums, when there are no other requests.
    std::vector<json> takeSavedLists();
    void setPassword(const std::optional<std::string>& password);
    // Makes that file, or none, unreadable.
    void setUnreadable(const char* path);

    // Configures every visible cell anew.
    void reload();
    // Of the first album of that title.
    PUAlbumListCellContentView* contentView(const std::string& title);
    // The content of a cell of that class that is configured outside the screen.
    PUAlbumListCellContentView* configure(Class cellClass, NSIndexPath* path);
    UIView* overlay(const std::string& title) { return [contentView(title) viewWithTag:tag::lockOverlay]; }
    UIView* button(const std::string& title, NSInteger tag) { return [contentView(title) viewWithTag:tag]; }
    // With a finger: a failure of the test when the button is not there or is covered.
    void tapButton(const std::string& title, NSInteger tag);
    bool lists(const std::string& title);
    void useTallScreen() { // so that every album is on the screen at once
        change([](Conditions& conditions) { conditions.screen.height = 2000; });
    }
    void useManualClock() {
        change([](Conditions& conditions) { conditions.manualClock = true; });
    }

    UIView* rootView();
    bool hasOpenedAlbum();
    std::string alertTitle();
    // Style, title, message, fields and actions of what asks: {"sheet", "Title", "Message", "[Field]",
    // "[Secret*]", "Action", "Cancel (cancel)"}; on a phone it points at nothing.
    Texts shownAlert();
    // The view at which the sheet points on a pad, the whole of it.
    UIView* anchor();
    bool isAskedForPassword() { return alertTitle() == "Unlock album"; }
    // Types into the password alert and confirms.
    void answerPassword(const std::string& text);
    // Closes the alert and leaves the album that are on the screen, if any.
    void goBack();
    // The banners on the screen, oldest first, and their texts.
    std::vector<UIView*> banners();
    Texts bannerTexts();
    std::size_t hapticTicks();

    // The library's photos by number, the oldest being 0.
    std::string identifier(std::size_t number);
    void hide(const Numbers& numbers);
    void hideOnly(const Numbers& numbers); // and show all others
    Numbers hiddenNumbers();
    Numbers numbersIn(const std::string& albumTitle);
    // Does the work while every change of the library has to wait.
    void whileLibraryIsBusy(const std::function<void()>& work);

  private:
    RequestRecorder* m_recorder = nil; // owned
};

} // namespace simulator::test
