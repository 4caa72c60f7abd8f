#import "UIKit/internal/Text.h"

#include <string>

namespace simulator {

TextStyle textStyle(UIFont* font) {
    return font ? TextStyle{[font pointSize], [font isBold] != NO} : TextStyle{};
}

CGSize sizeOfText(NSString* text, UIFont* font, CGSize constraint, LineBreaking breaking,
                  NSInteger maximumLines) {
    std::u16string units([text length], u'\0');
    static_assert(sizeof(unichar) == sizeof(char16_t));
    [text getCharacters:reinterpret_cast<unichar*>(units.data())];
    return measureText(units, textStyle(font), constraint, breaking, static_cast<int>(maximumLines));
}

} // namespace simulator
