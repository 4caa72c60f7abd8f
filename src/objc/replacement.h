// Replacing methods: each replacement function has a slot of its own for the implementation that it replaced.
#pragma once

#include "objc/encoding.h"
#include "objc/runtime.h"

namespace rollkeeper {

namespace detail {
template <auto function> inline constinit IMP savedImplementation = nullptr;

template <auto function> IMP implementationOf() { return reinterpret_cast<IMP>(function); }

template <typename Function> struct MethodCaller;
template <typename Result, typename Self, typename... Arguments>
struct MethodCaller<Result (*)(Self, SEL, Arguments...)> {
    static Result call(IMP implementation, Self self, SEL command, Arguments... arguments) {
        using Function = Result (*)(Self, SEL, Arguments...);
        return reinterpret_cast<Function>(implementation)(self, command, arguments...);
    }
};
} // namespace detail

// Calls the implementation that `replacement` replaced, with the same receiver, selector and arguments.
//
// The slot is read atomically: a hooking framework may fill it while another thread already runs the
// replacement.
template <auto replacement, typename... Arguments> auto original(Arguments... arguments) {
    const IMP implementation = __atomic_load_n(&detail::savedImplementation<replacement>, __ATOMIC_RELAXED);
    return detail::MethodCaller<decltype(replacement)>::call(implementation, arguments...);
}

// One function that stands behind a method of the platform, with everything needed to install it.
struct HookFunction {
    const char* encoding;
    IMP (*implementation)();
    IMP* slot; // null for a method that is added
};

// How the result of a function compares with its encoding.
enum class ResultRule {
    exact,
    // The encoding says "v" and the function handles a pointer all the same: a replacement hands on whatever
    // the implementation below left in the result register, an added handler leaves a clean nil there.
    pointerDespiteVoid,
};

namespace detail {

template <typename Function> struct WithVoidResult;
template <typename Result, typename... Arguments> struct WithVoidResult<Result (*)(Arguments...)> {
    static_assert(ObjectHandle<Result>, "only a pointer may be handed on in place of nothing");
    using type = void (*)(Arguments...);
};

template <auto function, ResultRule rule> consteval EncodingText encodingOf() {
    if constexpr (rule == ResultRule::exact) {
        return MethodEncoding<decltype(function)>::value;
    } else {
        return MethodEncoding<typename WithVoidResult<decltype(function)>::type>::value;
    }
}

} // namespace detail

// Both refuse to compile when the C++ signature of `function` is not what `encoding` says.

template <FixedString encoding, auto function, ResultRule rule = ResultRule::exact>
consteval HookFunction replacement() {
    static_assert(detail::encodingOf<function, rule>() == encoding,
                  "the function's types are not those of the type encoding");
    return {encoding.text, &detail::implementationOf<function>, &detail::savedImplementation<function>};
}

template <FixedString encoding, auto function, ResultRule rule = ResultRule::exact>
consteval HookFunction addition() {
    static_assert(detail::encodingOf<function, rule>() == encoding,
                  "the function's types are not those of the type encoding");
    return {encoding.text, &detail::implementationOf<function>, nullptr};
}

} // namespace rollkeeper
