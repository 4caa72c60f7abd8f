// The wrapper of NSObject: what every object answers.
#pragma once

#include "objc/message.h"

namespace rollkeeper {

struct NSObject : Object {
    static constexpr FixedString className = "NSObject";

    void retain() const { send<NSObject, "retain", NSObject>(*this); }
    void release() const { send<NSObject, "release", void>(*this); }

    NSObject autorelease() const { return send<NSObject, "autorelease", NSObject>(*this); }

    bool isEqual(Object other) const {
        return send<NSObject, "isEqual:", bool>(*this, cast<NSObject>(other));
    }
    bool isKindOfClass(Class wanted) const { return send<NSObject, "isKindOfClass:", bool>(*this, wanted); }
    bool respondsToSelector(SEL name) const {
        return send<NSObject, "respondsToSelector:", bool>(*this, name);
    }

    template <FixedString name> bool respondsTo() const { return respondsToSelector(selector<name>()); }
};

// The object under the wrapper of a class, or nil when it is not of that class (or the process lacks the
// class).
template <ObjectHandle Wrapper> Wrapper ifKindOf(Object object) {
    const Class wanted = classNamed<Wrapper::className>();
    return wanted && cast<NSObject>(object).isKindOfClass(wanted) ? cast<Wrapper>(object) : Wrapper();
}

// The class itself as an object; nil where the process lacks it.
template <ObjectHandle Wrapper> NSObject classObject() {
    return cast<NSObject>(Object{reinterpret_cast<id>(classNamed<Wrapper::className>())});
}

// The first step of "alloc and init": the initialiser that follows makes it the caller's.
template <ObjectHandle Wrapper> Wrapper allocate() {
    return sendToSubclass<Wrapper, NSObject, "alloc", Wrapper>();
}

} // namespace rollkeeper
