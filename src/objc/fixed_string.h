// Text as a template argument: selectors, class names and type encodings are known at compile time.
#pragma once

#include <cstddef>

namespace rollkeeper {

template <std::size_t capacity> struct FixedString {
    char text[capacity]{};

    consteval FixedString(const char (&literal)[capacity]) {
        for (std::size_t index = 0; index < capacity; ++index)
            text[index] = literal[index];
    }

    [[nodiscard]] constexpr std::size_t length() const { return capacity - 1; }

    [[nodiscard]] constexpr std::size_t count(char wanted) const {
        std::size_t found = 0;
        for (char character : text)
            found += character == wanted;
        return found;
    }

    template <std::size_t otherCapacity>
    constexpr bool operator==(const FixedString<otherCapacity>& other) const {
        if (capacity != otherCapacity) return false;
        for (std::size_t index = 0; index < capacity; ++index)
            if (text[index] != other.text[index]) return false;
        return true;
    }
};

} // namespace rollkeeper
