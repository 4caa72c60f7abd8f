#include "device/exceptions.h"

#import <Foundation/Foundation.h>

namespace simulator {

std::optional<std::string> foundationExceptionOf(const std::function<void()>& work) {
    @try {
        work();
    } @catch (NSException* exception) {
        return std::string([[exception name] UTF8String]) + ": " + [[exception reason] UTF8String];
    }
    return std::nullopt;
}

} // namespace simulator
