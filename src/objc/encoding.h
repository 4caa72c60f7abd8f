// Objective-C type encodings derived from C++ function types, so that the two cannot drift apart.
#pragma once

#include "objc/fixed_string.h"
#include "objc/geometry.h"
#include "objc/object.h"
#include "objc/runtime.h"

#include <cstddef>
#include <type_traits>

namespace rollkeeper {

// Room for the longest encoding that a hooked or called method has.
struct EncodingText {
    char text[128]{};
    std::size_t length = 0;

    constexpr EncodingText& append(const char* addition) {
        while (*addition)
            text[length++] = *addition++;
        return *this;
    }

    template <std::size_t capacity> constexpr bool operator==(const FixedString<capacity>& expected) const {
        if (length != expected.length()) return false;
        for (std::size_t index = 0; index < length; ++index)
            if (text[index] != expected.text[index]) return false;
        return true;
    }
};

template <typename T> struct TypeEncoding; // no encoding: the type cannot take part in a message

template <> struct TypeEncoding<void> {
    static constexpr const char* text = "v";
};
template <> struct TypeEncoding<bool> {
    static constexpr const char* text = "B";
};
template <> struct TypeEncoding<int> {
    static constexpr const char* text = "i";
};
template <> struct TypeEncoding<NSInteger> {
    static constexpr const char* text = "q";
};
template <> struct TypeEncoding<NSUInteger> {
    static constexpr const char* text = "Q";
};
template <> struct TypeEncoding<double> {
    static constexpr const char* text = "d";
};
template <> struct TypeEncoding<const char*> {
    static constexpr const char* text = "r*";
};
template <> struct TypeEncoding<SEL> {
    static constexpr const char* text = ":";
};
template <> struct TypeEncoding<Class> {
    static constexpr const char* text = "#";
};
template <> struct TypeEncoding<Block> {
    static constexpr const char* text = "@?";
};
template <> struct TypeEncoding<id*> {
    static constexpr const char* text = "^@";
};
template <> struct TypeEncoding<CGPoint> {
    static constexpr const char* text = "{CGPoint=dd}";
};
template <> struct TypeEncoding<CGSize> {
    static constexpr const char* text = "{CGSize=dd}";
};
template <> struct TypeEncoding<CGRect> {
    static constexpr const char* text = "{CGRect={CGPoint=dd}{CGSize=dd}}";
};
template <> struct TypeEncoding<CGRect*> {
    static constexpr const char* text = "^{CGRect={CGPoint=dd}{CGSize=dd}}";
};
template <> struct TypeEncoding<NSRange> {
    static constexpr const char* text = "{_NSRange=QQ}";
};
template <ObjectHandle Wrapper> struct TypeEncoding<Wrapper> {
    static constexpr const char* text = "@";
};

// An enumeration travels as its underlying type.
template <typename T>
    requires std::is_enum_v<T>
struct TypeEncoding<T> : TypeEncoding<std::underlying_type_t<T>> {};

template <typename Result, typename... Arguments> constexpr EncodingText messageEncoding() {
    EncodingText encoding;
    encoding.append(TypeEncoding<Result>::text).append("@:");
    (encoding.append(TypeEncoding<Arguments>::text), ...);
    return encoding;
}

// The encoding of a method that is written as a function: receiver and selector come first.
template <typename Function> struct MethodEncoding;
template <typename Result, typename Self, typename... Arguments>
struct MethodEncoding<Result (*)(Self, SEL, Arguments...)> {
    static_assert(ObjectHandle<Self>, "the first parameter of a method is its receiver");
    static constexpr EncodingText value = messageEncoding<Result, Arguments...>();
};

} // namespace rollkeeper
