// Makes blocks out of plain functions and the values that they keep.
//
// A compiler's block copies a captured handle bit by bit and retains nothing, so `^` stands in this file
// only. What a block keeps is named: owners (which are retained with the block) and plain values. The
// function itself captures nothing, and receives the kept values first, then the block's own arguments.
//
//     block<void(bool, NSError)>([](PUAlbumListViewController controller, bool success, NSError) { ... },
//     share(self))
#pragma once

#include "objc/owner.h"

#include <type_traits>

namespace rollkeeper {

template <typename T> inline constexpr bool isOwner = false;
template <typename Handle> inline constexpr bool isOwner<Owner<Handle>> = true;

template <typename T>
concept Keepable = isOwner<T> || std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_same_v<T, SEL>;

namespace detail {

// A handle would be encoded as a struct in the block's signature: it travels as the pointer it is.
template <typename T> struct BlockParameter {
    using type = T;
};
template <ObjectHandle Wrapper> struct BlockParameter<Wrapper> {
    using type = id;
};

template <typename T> T fromBlockParameter(typename BlockParameter<T>::type parameter) {
    if constexpr (ObjectHandle<T>) {
        return cast<T>(Object{parameter});
    } else {
        return parameter;
    }
}

template <typename Signature> struct BlockMaker;

template <typename... Parameters> struct BlockMaker<void(Parameters...)> {
    template <typename Function, typename... Kept> static Owner<Block> make(Function function, Kept... kept) {
        const auto call = [function, kept...](typename BlockParameter<Parameters>::type... parameters) {
            function(kept..., fromBlockParameter<Parameters>(parameters)...);
        };
        const auto onStack = ^(typename BlockParameter<Parameters>::type... parameters) {
            call(parameters...);
        };
        return adopt(Block{_Block_copy(reinterpret_cast<const void*>(onStack))});
    }
};

} // namespace detail

template <typename Signature, typename Function, typename... Kept>
Owner<Block> block(Function function, Kept... kept) {
    static_assert(std::is_empty_v<Function> || std::is_pointer_v<Function>,
                  "the function of a block captures nothing: name what it keeps");
    static_assert((Keepable<Kept> && ...), "a block keeps owners and plain values, never a borrowed handle");
    return detail::BlockMaker<Signature>::make(function, std::move(kept)...);
}

// Runs a void() block.
inline void run(Block block) { (reinterpret_cast<void (^)()>(block.pointer))(); }

// Runs the function on the main queue, after the current work of the main thread. Any thread.
template <typename Function, typename... Kept> void onMainQueue(Function function, Kept... kept) {
    dispatch_async(&_dispatch_main_q, block<void()>(function, std::move(kept)...).get().pointer);
}

// The same after `seconds`.
template <typename Function, typename... Kept>
void onMainQueueAfter(double seconds, Function function, Kept... kept) {
    constexpr double nanosecondsPerSecond = 1e9;
    dispatch_after(dispatch_time(0, static_cast<std::int64_t>(seconds * nanosecondsPerSecond)),
                   &_dispatch_main_q, block<void()>(function, std::move(kept)...).get().pointer);
}

} // namespace rollkeeper
