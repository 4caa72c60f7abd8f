// Writes down every message that the library can send, as text in a section of the Linux build.
//
// A line reads "NSArray -count Q@:". A test holds the lines against what is known of the real methods: a
// wrong type crashes a phone, and nothing else on Linux would show it. The device's build carries no such
// section.
#pragma once

#include "objc/encoding.h"

namespace rollkeeper {

enum class MethodKind { instanceMethod, classMethod };

#ifndef __APPLE__

template <std::size_t capacity> struct LedgerLine {
    char text[capacity]{};
};

template <FixedString className, MethodKind kind, FixedString name, typename Result, typename... Arguments>
struct LedgerEntry {
    static constexpr EncodingText encoding = messageEncoding<Result, Arguments...>();
    static constexpr std::size_t capacity = className.length() + name.length() + encoding.length + 4;

    static constexpr LedgerLine<capacity> makeLine() {
        LedgerLine<capacity> made;
        std::size_t end = 0;
        const auto append = [&](const char* addition) {
            while (*addition)
                made.text[end++] = *addition++;
        };
        append(className.text);
        append(kind == MethodKind::classMethod ? " +" : " -");
        append(name.text);
        append(" ");
        append(encoding.text);
        made.text[end] = '\n';
        return made;
    }

    [[gnu::section("rollkeeper_messages"), gnu::used]] static constexpr LedgerLine<capacity> line =
        makeLine();
};

template <FixedString className, MethodKind kind, FixedString name, typename Result, typename... Arguments>
constexpr void recordMessage() {
    (void)&LedgerEntry<className, kind, name, Result, Arguments...>::line;
}

#else

template <FixedString, MethodKind, FixedString, typename, typename...> constexpr void recordMessage() {}

#endif

} // namespace rollkeeper
