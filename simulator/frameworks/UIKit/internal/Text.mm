#import "UIKit/internal/Text.h"

#include <string>

namespace simulator {

TextStyle textStyle(UIFont* font) {
    return font ? TextStyle{[font pointSize], [font isBold] != NO} : TextStyle{};
}

namespace {

std::u16string unitsOf(NSString* text) {
    static_assert(sizeof(unichar) == sizeof(char16_t));
    std::u16string units([text length], u'\0');
    [text getCharacters:reinterpret_cast<unichar*>(units.data())];
    return units;
}

} // namespace

CGSize sizeOfText(NSString* text, UIFont* font, CGSize constraint, LineBreaking breaking,
                  NSInteger maximumLines) {
    return measureText(unitsOf(text), textStyle(font), constraint, breaking, static_cast<int>(maximumLines));
}

NSArray* linesOfText(NSString* text, UIFont* font, CGFloat width) {
    NSMutableArray* lines = [NSMutableArray array];
    for (const std::u16string& line : wrapText(unitsOf(text), textStyle(font), width))
        [lines addObject:[NSString stringWithCharacters:reinterpret_cast<const unichar*>(line.data())
                                                 length:line.size()]];
    return lines;
}

} // namespace simulator
