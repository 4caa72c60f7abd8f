#include "damage.h"

#include "Foundation/PropertyLists.h"
#include "device/json_objects.h"

namespace reliability {

using nlohmann::json;

std::string Damage::text() {
    static const std::string texts[] = {"",
                                        "Holidays",
                                        "Family",
                                        "holidays",
                                        "Camera Roll",
                                        "YES",
                                        "0",
                                        "1e400",
                                        " ",
                                        "%@%n%s",
                                        "'\" OR",
                                        "Videos",
                                        "albumName",
                                        "../../x",
                                        "\x7F",
                                        "\xE2\x80\xAE\xF0\x9F\x8C\xB4",
                                        std::string(5000, 't')};
    return oneOf(texts);
}

json Damage::value() {
    static const json values =
        json::parse(R"([true, false, 0, -1, 14, 0.5, 1e300, 9223372036854775807, [], {},
        ["Holidays", [7], ""], {"a": {"b": [true]}}, [[[[["deep"]]]]]])");
    return oneIn(2) ? json(text()) : oneOf(values);
}

json Damage::damaged(json list) {
    for (std::size_t changes = 1 + below(4); changes > 0; --changes) {
        json* place = &list;
        while (place->is_structured() && !place->empty() && !oneIn(3))
            place = &*std::next(place->begin(), static_cast<std::ptrdiff_t>(below(place->size())));
        const std::size_t kind = below(3);
        if (kind == 0 && place->is_structured() && !place->empty())
            place->erase(std::next(place->begin(), static_cast<std::ptrdiff_t>(below(place->size()))));
        else if (kind == 1 && place->is_array())
            place->push_back(value());
        else if (kind == 1 && place->is_object())
            (*place)[text()] = value();
        else
            *place = value();
    }
    return list;
}

std::string Damage::randomBytes(std::size_t count) {
    std::string bytes(count, '\0');
    for (char& each : bytes)
        each = static_cast<char>(m_random());
    return bytes;
}

std::string Damage::damagedBytes(std::string bytes) {
    static const std::string words[] = {"<date>", "<data>", "</dict>",  "<integer>",
                                        "&lt;",   "{",      "\xFF\xFE", "<!--"};
    for (std::size_t changes = 1 + below(8); changes > 0; --changes) {
        const std::size_t place = below(bytes.size() + 1);
        const std::size_t length = below(std::min<std::size_t>(bytes.size() - place, 40) + 1);
        const std::string piece = bytes.substr(place, length);
        const std::string replacements[] = {"", randomBytes(length), piece + piece, piece + oneOf(words),
                                            randomBytes(1)};
        bytes.replace(place, length, oneOf(replacements));
        if (oneIn(20)) bytes.resize(place);
    }
    return bytes;
}

std::string Damage::damagedFile(const json& list) {
    if (oneIn(100)) return randomBytes(below(300));
    const bool isXml = oneIn(2), changesBytes = isXml && oneIn(2);
    id content = simulator::objectFromJson(changesBytes && oneIn(2) ? list : damaged(list));
    NSData* data = isXml ? simulator::propertyListAsXml(content)
                         : [NSPropertyListSerialization dataWithPropertyList:content
                                                                      format:NSPropertyListBinaryFormat_v1_0
                                                                     options:0
                                                                       error:nullptr];
    const std::string bytes(static_cast<const char*>([data bytes]), [data length]);
    return changesBytes ? damagedBytes(bytes) : bytes;
}

} // namespace reliability
