// One typed message send. The typed wrappers in platform/ are the only callers.
//
// The argument and result types are those of the platform's declaration: a literal 1 for an NSUInteger would
// travel as an int, so the wrappers name their parameter types. No message is variadic: the phone passes
// variadic arguments on the stack, where a fixed-argument callee does not look; the form that takes an array,
// or none, is used instead.
#pragma once

#include "objc/encoding.h"
#include "objc/lookup.h"
#include "objc/message_ledger.h"
#include "objc/object.h"
#include "objc/runtime.h"

namespace rollkeeper {

namespace detail {

template <FixedString name>
inline constexpr bool isVariadic =
    name == FixedString("stringWithFormat:") || name == FixedString("initWithFormat:") ||
    name == FixedString("predicateWithFormat:") || name == FixedString("arrayWithObjects:") ||
    name == FixedString("dictionaryWithObjectsAndKeys:") || name == FixedString("setWithObjects:");

// Beyond the registers the phone packs arguments on the stack and Linux pads them to eight bytes: there
// only what has eight bytes lies alike.
template <typename... Arguments> constexpr bool travelsAlike() {
    std::size_t integers = 2;
    std::size_t floats = 0;
    bool alike = true;
    const auto count = [&]<typename T>() {
        if constexpr (std::is_same_v<T, CGRect>) {
            floats += 4;
        } else if constexpr (std::is_same_v<T, CGSize> || std::is_same_v<T, CGPoint>) {
            floats += 2;
        } else if constexpr (std::is_floating_point_v<T>) {
            ++floats;
        } else {
            ++integers;
            alike = alike && (integers <= 8 || sizeof(T) == 8);
        }
    };
    (count.template operator()<Arguments>(), ...);
    return alike && floats <= 8;
}

template <FixedString name, typename Result, typename... Arguments>
Result sendMessage(id receiver, Arguments... arguments) {
    static_assert(!isVariadic<name>,
                  "no message is variadic: use the form that takes an array or no arguments");
    static_assert(name.count(':') == sizeof...(Arguments), "a selector has one colon for each argument");
    static_assert(travelsAlike<Arguments...>(), "stack arguments differ between phone and Linux");
    using Function = Result (*)(id, SEL, Arguments...);
#ifdef __APPLE__
    return reinterpret_cast<Function>(&objc_msgSend)(receiver, selector<name>(), arguments...);
#else
    // The runtime on Linux leaves floating-point and struct results of a message to nil undefined.
    if (!receiver) return Result();
    const SEL message = selector<name>();
    return reinterpret_cast<Function>(objc_msgLookup(receiver, message))(receiver, message, arguments...);
#endif
}

} // namespace detail

// Sends the instance message `name`, which `Wrapper` declares, to `receiver`. A nil receiver gives zero.
template <typename Wrapper, FixedString name, typename Result, typename... Arguments>
Result send(Object receiver, Arguments... arguments) {
    recordMessage<Wrapper::className, MethodKind::instanceMethod, name, Result, Arguments...>();
    return detail::sendMessage<name, Result, Arguments...>(receiver.pointer, arguments...);
}

// Sends the class message `name`, which `Declaring` declares, to the class of `Wrapper`. A class that the
// process lacks gives zero.
template <typename Wrapper, typename Declaring, FixedString name, typename Result, typename... Arguments>
Result sendToSubclass(Arguments... arguments) {
    recordMessage<Declaring::className, MethodKind::classMethod, name, Result, Arguments...>();
    return detail::sendMessage<name, Result, Arguments...>(
        reinterpret_cast<id>(classNamed<Wrapper::className>()), arguments...);
}

template <typename Wrapper, FixedString name, typename Result, typename... Arguments>
Result sendToClass(Arguments... arguments) {
    return sendToSubclass<Wrapper, Wrapper, name, Result>(arguments...);
}

} // namespace rollkeeper
