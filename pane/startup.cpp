// Makes the pane's classes when Settings loads it: there is no Objective-C in this project that would.

#include "albums_page.h"
#include "first_page.h"
#include "locking_page.h"
#include "objc/autorelease_pool.h"
#include "page.h"
#include "status_page.h"

namespace rollkeeper::pane {

namespace {

constexpr PageMethod plainPageMethods[] = {
    {"specifiers", addition<"@@:", specifiers<rowsFromPropertyList>>()}};
constexpr PageMethod albumsPageMethods[] = {{"specifiers", addition<"@@:", specifiers<albumsPageRows>>()}};

// The names stand in the pane's property lists, too.
[[gnu::constructor]] void registerPages() {
    const AutoreleasePool pool;
    registerPage("RollkeeperFirstPage", firstPageMethods());
    registerPage("RollkeeperPage", plainPageMethods);
    registerPage("RollkeeperAlbumsPage", albumsPageMethods);
    registerPage("RollkeeperLockingPage", lockingPageMethods());
    registerPage("RollkeeperStatusPage", statusPageMethods());
}

} // namespace
} // namespace rollkeeper::pane
