// Messages, constants and enumeration: what the typed wrappers are made of.
#include "objc/autorelease_pool.h"
#include "platform/foundation.h"
#include "platform/uikit.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace rollkeeper::test {
namespace {

struct TextFace : NSString {
    static constexpr FixedString className = "NSString";
    const char* UTF8String() const { return send<TextFace, "UTF8String", const char*>(*this); }
};

struct Missing : NSObject {
    static constexpr FixedString className = "NoSuchClass";
};

std::string textOf(NSString string) { return string ? cast<TextFace>(string).UTF8String() : "(nil)"; }

class Messages : public testing::Test {
    AutoreleasePool m_pool;
};

TEST_F(Messages, to_nil_give_zero_of_every_kind) {
    EXPECT_EQ(NSArray().count(), 0U);
    EXPECT_EQ(NSNumber().intValue(), 0);
    EXPECT_FALSE(NSNumber().boolValue());
    EXPECT_FALSE(NSArray().firstObject());
    EXPECT_EQ((send<NSNumber, "doubleValue", double>(NSNumber())), 0.0);
    EXPECT_EQ(NSString().rangeOfString("a"_ns).length, 0U);
    const CGRect frame = UIView().frame();
    EXPECT_EQ(frame.origin.x + frame.origin.y + frame.size.width + frame.size.height, 0.0);
    EXPECT_FALSE(ifKindOf<NSString>(Object()));
}

TEST_F(Messages, to_a_class_that_the_process_lacks_give_zero) {
    EXPECT_FALSE(make<Missing>());
    EXPECT_FALSE((sendToClass<Missing, "new", Missing>()));
    EXPECT_FALSE(ifKindOf<Missing>("text"_ns));
}

TEST_F(Messages, find_a_class_that_arrives_after_it_was_missed) {
    EXPECT_FALSE(classNamed<"LateClass">());
    const Class made = objc_allocateClassPair(objc_getClass("NSObject"), "LateClass", 0);
    objc_registerClassPair(made);
    EXPECT_EQ(classNamed<"LateClass">(), made);
}

TEST_F(Messages, tell_kinds_apart) {
    EXPECT_TRUE(ifKindOf<NSString>("text"_ns));
    EXPECT_FALSE(ifKindOf<NSArray>("text"_ns));
    EXPECT_TRUE("text"_ns.respondsTo<"length">());
    EXPECT_FALSE("text"_ns.respondsTo<"objectAtIndex:">());
}

TEST_F(Messages, enumerate_every_element_once) {
    for (const NSUInteger size : {0U, 1U, 15U, 16U, 17U, 100U}) {
        const Owner<NSMutableArray> array = make<NSMutableArray>();
        const Owner<NSMutableSet> set = make<NSMutableSet>();
        for (NSUInteger index = 0; index < size; ++index) {
            array->addObject(NSNumber::numberWithInt(static_cast<int>(index)));
            set->addObject(NSNumber::numberWithInt(static_cast<int>(index)));
        }
        int next = 0;
        for (NSNumber number : each<NSNumber>(array.get()))
            EXPECT_EQ(number.intValue(), next++);
        EXPECT_EQ(static_cast<NSUInteger>(next), size);

        NSUInteger sum = 0;
        for (NSNumber number : each<NSNumber>(set.get()))
            sum += static_cast<NSUInteger>(number.intValue());
        EXPECT_EQ(sum, size * (size - (size > 0)) / 2);
    }
    for (NSObject element : each<NSObject>(NSObject()))
        ADD_FAILURE() << "nil has an element " << element.pointer;
}

TEST_F(Messages, write_numbers_in_decimal_digits) {
    const struct {
        NSUInteger number;
        const char* text;
    } cases[] = {{0, "0"}, {7, "7"}, {10, "10"}, {12345, "12345"}, {~0UL, "18446744073709551615"}};
    for (const auto& each : cases)
        EXPECT_EQ(textOf(decimalString(each.number)), each.text);
}

TEST_F(Messages, share_one_constant_string_among_all_threads) {
    std::atomic<bool> go{false};
    std::vector<id> seen(8);
    std::vector<std::thread> threads;
    threads.reserve(seen.size());
    for (id& mine : seen)
        threads.emplace_back([&] {
            const AutoreleasePool pool;
            while (!go)
                std::this_thread::yield();
            mine = "first used by many threads"_ns.pointer;
        });
    go = true;
    for (std::thread& thread : threads)
        thread.join();
    for (id each : seen)
        EXPECT_EQ(each, seen.front());
    EXPECT_EQ(textOf(cast<NSString>(Object{seen.front()})), "first used by many threads");
}

} // namespace
} // namespace rollkeeper::test
