// Whatever the kind of hooking framework, the library does its work, and other extensions that replace the
// same methods, before it loads or after, are still called.
#import "Hooking/Hooking.h"

#include "hosts/applications/photos/photos_app.h"
#include "support/photos_fixture.h"

namespace simulator::test {
namespace {

// Another extension's replacement: notes that it was called, and passes the call on.
enum class Loaded { before, after };

std::vector<Loaded> noted;

void PrintTo(Loaded loaded, std::ostream* out) { *out << (loaded == Loaded::before ? "before" : "after"); }

template <Loaded loaded, typename Function> struct Neighbour;

template <Loaded loaded, typename Result, typename... Arguments>
struct Neighbour<loaded, Result (*)(id, SEL, Arguments...)> {
    static inline IMP original = nullptr;

    static Result replacement(id self, SEL command, Arguments... arguments) {
        noted.push_back(loaded);
        return reinterpret_cast<Result (*)(id, SEL, Arguments...)>(original)(self, command, arguments...);
    }
    static void install(Class target, SEL selector) {
        MSHookMessageEx(target, selector, reinterpret_cast<IMP>(&replacement), &original);
        if (original == nullptr) throw std::runtime_error("the neighbour has nothing to pass calls on to");
    }
};

using Answering = BOOL (*)(id, SEL);
using Turning = void (*)(id, SEL, CGSize, id);
using Fetching = id (*)(id, SEL, id, id);
using Reading = id (*)(id, SEL);

template <Loaded loaded> void installNeighbour() {
    Neighbour<loaded, Answering>::install([PUAlbumListViewController class], @selector(showPeople));
    Neighbour<loaded, Turning>::install([PUAlbumListViewController class],
                                        @selector(viewWillTransitionToSize:withTransitionCoordinator:));
    Neighbour<loaded, Fetching>::install(object_getClass([PHAsset class]),
                                         @selector(fetchAssetsInAssetCollection:options:));
    // Inherited: overridden for the class alone.
    Neighbour<loaded, Reading>::install([PUNavigationController class], @selector(navigationBar));
}

using Order = std::vector<Loaded>; // in which a call reaches the neighbours

class SecondHooker : public PhotosTest, public testing::WithParamInterface<std::tuple<HookingStyle, Order>> {
  protected:
    void open(const nlohmann::json& preferences) {
        change([](Conditions& conditions) { conditions.hooking = std::get<0>(GetParam()); });
        writePreferences(preferences);
        start(host::photos, has(Loaded::before) ? installNeighbour<Loaded::before> : nullptr);
        for (const Installation& each : host().installations())
            if (each.slot != nullptr)
                EXPECT_TRUE(*static_cast<const void* const*>(each.slot) != nullptr)
                    << each.className << " " << each.selector << " has nothing to pass calls on to";
        if (has(Loaded::after)) installNeighbour<Loaded::after>();
        list = photos::openAlbumList();
        noted.clear();
    }
    const Order& neighbours() const { return std::get<1>(GetParam()); }
    bool has(Loaded loaded) const { return std::ranges::count(neighbours(), loaded) > 0; }

    // Those that the last call reached.
    static Order takeNoted() { return std::exchange(noted, {}); }

    PUAlbumListViewController* list = nil;
};

TEST_P(SecondHooker, is_called_and_leaves_the_library_its_work) {
    hide({0});
    open(nlohmann::json::object());

    EXPECT_TRUE([list showPeople]);
    EXPECT_EQ(takeNoted(), neighbours());

    [list viewWillTransitionToSize:CGSizeMake(667, 375) withTransitionCoordinator:nil];
    EXPECT_EQ(takeNoted(), neighbours());
    UIViewController* other = [[[UIViewController alloc] init] autorelease];
    [other viewWillTransitionToSize:CGSizeMake(667, 375) withTransitionCoordinator:nil];
    EXPECT_EQ(takeNoted(), Order{}) << "inherited: overridden for the class alone";

    PHAssetCollection* holidays = album(@"Holidays");
    takeNoted();
    EXPECT_EQ([[PHAsset fetchAssetsInAssetCollection:holidays options:nil] count], 3U)
        << "the album lacks its moved photo";
    EXPECT_EQ(takeNoted(), neighbours());

    auto* navigation = static_cast<PUNavigationController*>([list navigationController]);
    [[[navigation navigationBar] topItem] setLeftBarButtonItems:@[]];
    takeNoted();
    EXPECT_EQ([[[[navigation navigationBar] topItem] leftBarButtonItems] count], 1U)
        << "the button to return all photos is missing";
    EXPECT_EQ(takeNoted(), neighbours());
}

// Only those that were installed later hear of it.
TEST_P(SecondHooker, is_below_an_answer_of_the_librarys_own) {
    open({{"showPeople", false}});
    EXPECT_FALSE([list showPeople]);
    EXPECT_EQ(takeNoted(), has(Loaded::after) ? Order{Loaded::after} : Order{});
}

INSTANTIATE_TEST_SUITE_P(
    All, SecondHooker,
    testing::Combine(testing::Values(HookingStyle{true, false}, HookingStyle{false, false},
                                     HookingStyle{true, true}, HookingStyle{false, true}),
                     testing::Values(Order{}, Order{Loaded::before}, Order{Loaded::after},
                                     Order{Loaded::after, Loaded::before})));

} // namespace
} // namespace simulator::test
