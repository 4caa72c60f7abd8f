// Text as the content or an attribute's value of an XML element.
#pragma once

#include <string>
#include <string_view>

namespace simulator {

inline std::string escapedForXml(std::string_view text) {
    std::string escaped;
    for (const char letter : text) {
        switch (letter) {
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '&':
            escaped += "&amp;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += letter;
        }
    }
    return escaped;
}

} // namespace simulator
