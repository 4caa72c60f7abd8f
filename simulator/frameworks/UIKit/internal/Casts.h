// Asking what kind of object one is.
#pragma once

#import <Foundation/Foundation.h>

namespace simulator {

// The object where it is of the class, else nil.
template <typename Type> Type* as(id object) {
    return [object isKindOfClass:[Type class]] ? static_cast<Type*>(object) : nil;
}

} // namespace simulator
