// Makes the pane's classes when Settings loads it: there is no Objective-C in this project that would.

#include "albums_page.h"
#include "locking_page.h"
#include "objc/autorelease_pool.h"
#include "page.h"

namespace rollkeeper::pane {

namespace {

constexpr PageMethod plainPageMethods[] = {
    {"specifiers", addition<"@@:", specifiers<rowsFromPropertyList>>()}};
constexpr PageMethod albumsPageMethods[] = {{"specifiers", addition<"@@:", specifiers<albumsPageRows>>()}};

// The names stand in the pane's property lists, too.
[[gnu::constructor]] void registerPages() {
    const AutoreleasePool pool;
    registerPage("RollkeeperPage", plainPageMethods);
    registerPage("RollkeeperAlbumsPage", albumsPageMethods);
    registerPage("RollkeeperLockingPage", lockingPageMethods());
}

} // namespace
} // namespace rollkeeper::pane
