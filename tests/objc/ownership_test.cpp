// Every reference that the bridge takes is given back, exactly once.
#include "objc/autorelease_pool.h"
#include "objc/block.h"
#include "objc/global.h"
#include "objc/weak.h"

#include "objc/owner.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace rollkeeper::test {
namespace {

// Objects whose lives are counted, made with the runtime's functions alone: what the bridge keeps and lets go
// shows exactly.
struct CountedObject : NSObject {
    static constexpr FixedString className = "CountedObject";
    static inline std::atomic<std::size_t> count;

    static Owner<CountedObject> create() {
        if (!objc_getClass(className.text)) registerClass();
        ++count;
        return make<CountedObject>();
    }
    static std::size_t alive() { return count; }

    NSUInteger retainCount() const { return send<CountedObject, "retainCount", NSUInteger>(*this); }

  private:
    static void registerClass() {
        const Class made = objc_allocateClassPair(objc_getClass("NSObject"), className.text, 0);
        class_addMethod(made, sel_registerName("dealloc"), reinterpret_cast<IMP>(&dealloc), "v@:");
        objc_registerClassPair(made);
    }
    static void dealloc(NSObject self, SEL command) {
        --count;
        const Method inherited = class_getInstanceMethod(objc_getClass("NSObject"), command);
        reinterpret_cast<void (*)(NSObject, SEL)>(method_getImplementation(inherited))(self, command);
    }
};

class Ownership : public testing::Test {
  protected:
    ~Ownership() override { EXPECT_EQ(CountedObject::alive(), 0U) << "an object leaks"; }

  private:
    AutoreleasePool m_pool;
};

TEST_F(Ownership, copying_an_owner_retains_and_destroying_it_releases) {
    Owner<CountedObject> owner = CountedObject::create();
    EXPECT_EQ(owner->retainCount(), 1U);
    {
        const Owner<CountedObject> copy = owner; // NOLINT(performance-unnecessary-copy-initialization)
        EXPECT_EQ(owner->retainCount(), 2U);
        EXPECT_EQ(copy.get(), owner.get());
    }
    EXPECT_EQ(owner->retainCount(), 1U);
}

TEST_F(Ownership, moving_an_owner_leaves_the_count_alone) {
    Owner<CountedObject> owner = CountedObject::create();
    const Owner<CountedObject> moved = std::move(owner);
    EXPECT_FALSE(owner); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(moved->retainCount(), 1U);
}

TEST_F(Ownership, assigning_releases_what_was_owned) {
    Owner<CountedObject> owner = CountedObject::create();
    owner = CountedObject::create();
    EXPECT_EQ(CountedObject::alive(), 1U);
    const Owner<CountedObject>& same = owner;
    owner = same;
    EXPECT_EQ(owner->retainCount(), 1U);
    owner = Owner<CountedObject>();
    EXPECT_EQ(CountedObject::alive(), 0U);
}

TEST_F(Ownership, sharing_a_borrowed_object_retains_and_adopting_does_not) {
    Owner<CountedObject> owner = CountedObject::create();
    EXPECT_EQ(share(owner.get())->retainCount(), 2U);
    const CountedObject given = owner.leak();
    EXPECT_EQ(given.retainCount(), 1U);
    const Owner<CountedObject> again = adopt(given);
    EXPECT_EQ(again->retainCount(), 1U);
}

TEST_F(Ownership, an_autoreleased_object_lives_until_the_pool_ends) {
    CountedObject borrowed;
    {
        const AutoreleasePool pool;
        borrowed = autoreleased(CountedObject::create());
        EXPECT_EQ(borrowed.retainCount(), 1U);
    }
    EXPECT_EQ(CountedObject::alive(), 0U);
}

TEST_F(Ownership, a_block_keeps_its_owners_until_it_goes) {
    Owner<CountedObject> kept = CountedObject::create();
    Owner<Block> block = rollkeeper::block<void()>([](CountedObject) {}, kept);
    EXPECT_EQ(kept->retainCount(), 2U);
    Owner<Block> copy = block;
    EXPECT_EQ(kept->retainCount(), 2U) << "a copied block is retained, not copied again";
    block = Owner<Block>();
    EXPECT_EQ(kept->retainCount(), 2U);
    copy = Owner<Block>();
    EXPECT_EQ(kept->retainCount(), 1U);
}

TEST_F(Ownership, a_block_hands_over_what_it_keeps_and_then_its_arguments) {
    static CountedObject seen;
    static int seenNumber;
    static bool seenFlag;
    const Owner<CountedObject> kept = CountedObject::create();
    const Owner<CountedObject> argument = CountedObject::create();
    const Owner<Block> block = rollkeeper::block<void(CountedObject, bool)>(
        [](CountedObject first, int number, CountedObject second, bool flag) {
            EXPECT_NE(first, second);
            seen = second;
            seenNumber = number;
            seenFlag = flag;
        },
        kept, 7);
    // What every block begins with.
    struct Layout {
        void* isa;
        int flags;
        int reserved;
        void (*invoke)(const void* block, id object, bool flag);
    };
    const auto* layout = static_cast<const Layout*>(block.get().pointer);
    layout->invoke(layout, argument.get().pointer, true);
    EXPECT_EQ(seen, argument.get());
    EXPECT_EQ(seenNumber, 7);
    EXPECT_TRUE(seenFlag);
    EXPECT_EQ(argument->retainCount(), 1U);
}

TEST_F(Ownership, a_global_keeps_one_reference) {
    static constinit MainThreadGlobal<CountedObject> global;
    const Owner<CountedObject> first = CountedObject::create();
    const Owner<CountedObject> second = CountedObject::create();
    global.set(first);
    global.set(first);
    EXPECT_EQ(first->retainCount(), 2U);
    global.set(second);
    EXPECT_EQ(first->retainCount(), 1U);
    EXPECT_EQ(second->retainCount(), 2U);
    {
        const Owner<CountedObject> taken = global.take();
        EXPECT_FALSE(global) << "what is replayed no longer stands in the global";
        EXPECT_EQ(taken->retainCount(), 2U);
    }
    EXPECT_EQ(second->retainCount(), 1U);
    global.set(first);
    global.clear();
    EXPECT_EQ(first->retainCount(), 1U);
}

TEST_F(Ownership, a_replaced_global_releases_what_it_held) {
    static constinit ReplacedGlobal<CountedObject> global;
    global.replace(CountedObject::create());
    const Owner<CountedObject> read = global.get();
    EXPECT_EQ(read->retainCount(), 2U);
    EXPECT_EQ(global.get().get(), read.get()) << "reading leaves the object in place";
    global.replace(Owner<CountedObject>());
    EXPECT_EQ(read->retainCount(), 1U);
    EXPECT_FALSE(global.get());
}

TEST_F(Ownership, a_replaced_global_is_balanced_under_many_writers) {
    static constinit ReplacedGlobal<CountedObject> global;
    std::thread writers[4];
    for (std::thread& writer : writers)
        writer = std::thread([] {
            for (int turn = 0; turn < 2000; ++turn)
                global.replace(CountedObject::create());
        });
    for (int turn = 0; turn < 2000; ++turn)
        if (const Owner<CountedObject> read = global.get()) EXPECT_GE(read->retainCount(), 1U);
    for (std::thread& writer : writers)
        writer.join();
    global.replace(Owner<CountedObject>());
}

// A fresh address each time would prove nothing about one that is used again.
TEST_F(Ownership, a_weak_reference_to_an_object_that_went_reads_as_nil_at_any_address) {
    static constinit WeakGlobal<CountedObject> weak;
    EXPECT_FALSE(weak.load());
    id address = nullptr;
    std::size_t reused = 0;
    for (int turn = 0; turn < 100; ++turn) {
        Owner<CountedObject> object = CountedObject::create();
        reused += object.get().pointer == address;
        address = object.get().pointer;
        EXPECT_FALSE(weak.load()) << "the object before has gone";
        weak.set(object);
        weak.set(object);
        EXPECT_EQ(weak.load().get(), object.get());
        EXPECT_EQ(object->retainCount(), 1U) << "a weak reference keeps nothing";
    }
    EXPECT_FALSE(weak.load());
    RecordProperty("reusedAddresses", static_cast<int>(reused));
}

TEST_F(Ownership, a_loaded_weak_reference_keeps_the_object_meanwhile) {
    static constinit WeakGlobal<CountedObject> weak;
    Owner<CountedObject> object = CountedObject::create();
    weak.set(object);
    Owner<CountedObject> loaded = weak.load();
    object = Owner<CountedObject>();
    EXPECT_EQ(CountedObject::alive(), 1U);
    loaded = Owner<CountedObject>();
    EXPECT_FALSE(weak.load());
    weak.set(CountedObject());
    EXPECT_FALSE(weak.load());
}

} // namespace
} // namespace rollkeeper::test
