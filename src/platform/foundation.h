// Foundation: strings, collections, property-list files, predicates, timers, bundles.
//
// Methods are named as on the platform and documented there. A message to a nil handle gives zero.
#pragma once

#include "objc/block.h"
#include "objc/geometry.h"
#include "objc/nsobject.h"
#include "objc/owner.h"

namespace rollkeeper {

struct NSDictionary;

enum class NSStringEncoding : NSUInteger { utf8 = 4 };

struct NSError : NSObject {
    static constexpr FixedString className = "NSError";

    NSInteger code() const { return send<NSError, "code", NSInteger>(*this); }
};

struct NSString : NSObject {
    static constexpr FixedString className = "NSString";

    static NSString stringWithUTF8String(const char* text) {
        return sendToClass<NSString, "stringWithUTF8String:", NSString>(text);
    }
    static NSString stringWithContentsOfFile(NSString path, NSStringEncoding encoding) {
        return sendToClass<NSString, "stringWithContentsOfFile:encoding:error:", NSString>(path, encoding,
                                                                                           noError);
    }

    NSUInteger length() const { return send<NSString, "length", NSUInteger>(*this); }
    bool isEqualToString(NSString other) const {
        return send<NSString, "isEqualToString:", bool>(*this, other);
    }
    NSRange rangeOfString(NSString part) const {
        return send<NSString, "rangeOfString:", NSRange>(*this, part);
    }
    NSString stringByAppendingString(NSString suffix) const {
        return send<NSString, "stringByAppendingString:", NSString>(*this, suffix);
    }

    // The number that the text begins with; 0 without one.
    double doubleValue() const { return send<NSString, "doubleValue", double>(*this); }

    bool writeToFile(NSString path, bool atomically, NSStringEncoding encoding) const {
        return send<NSString, "writeToFile:atomically:encoding:error:", bool>(*this, path, atomically,
                                                                              encoding, noError);
    }

    // containsString: arrived only with iOS 8.
    bool contains(NSString part) const { return *this && rangeOfString(part).length > 0; }

    static constexpr id* noError = nullptr;
};

namespace detail {

struct ConstantString {
    const char* text;
    CachedPointer<id> made;
};

template <FixedString text> inline constinit ConstantString constantString{text.text, {}};

NSString stringOf(ConstantString& constant);

} // namespace detail

// The string constant "text"_ns: made once for each text and kept for ever. Any thread.
template <FixedString text> NSString operator""_ns() {
    return detail::stringOf(detail::constantString<text>);
}

struct NSNumber : NSObject {
    static constexpr FixedString className = "NSNumber";

    static NSNumber numberWithBool(bool value) {
        return sendToClass<NSNumber, "numberWithBool:", NSNumber>(value);
    }
    static NSNumber numberWithInt(int value) {
        return sendToClass<NSNumber, "numberWithInt:", NSNumber>(value);
    }

    bool boolValue() const { return send<NSNumber, "boolValue", bool>(*this); }
    int intValue() const { return send<NSNumber, "intValue", int>(*this); }
};

// The number in decimal digits.
NSString decimalString(NSUInteger number);

struct NSFastEnumerationState {
    unsigned long state = 0;
    id* items = nullptr;
    unsigned long* mutations = nullptr;
    unsigned long extra[5]{};
};
template <> struct TypeEncoding<NSFastEnumerationState*> {
    static constexpr const char* text = "^{?=Q^@^Q[5Q]}";
};

// `for (PHAsset asset : each<PHAsset>(collection))`, for arrays, sets and fetch results, whose selections are
// not always arrays. The collection must stay alive and unchanged meanwhile; nil has no elements.
template <typename Element> class FastEnumeration {
  public:
    explicit FastEnumeration(NSObject collection) : collection_(collection) {}

    class Iterator {
      public:
        Iterator() = default;
        explicit Iterator(FastEnumeration& enumeration) : enumeration_(&enumeration) {}
        Element operator*() const { return enumeration_->current(); }
        Iterator& operator++() {
            enumeration_->advance();
            return *this;
        }
        bool operator!=(const Iterator&) const { return enumeration_->position_ < enumeration_->fetched_; }

      private:
        FastEnumeration* enumeration_ = nullptr;
    };

    Iterator begin() {
        fetch();
        return Iterator(*this);
    }
    Iterator end() { return Iterator(); }

  private:
    static constexpr NSUInteger batchSize = 16;

    struct NSArrayMessages {
        static constexpr FixedString className = "NSArray";
    };

    void fetch() {
        position_ = 0;
        fetched_ = send<NSArrayMessages, "countByEnumeratingWithState:objects:count:", NSUInteger>(
            collection_, &state_, static_cast<id*>(buffer_), batchSize);
    }
    void advance() {
        if (++position_ == fetched_) fetch();
    }
    Element current() const { return cast<Element>(Object{state_.items[position_]}); }

    NSObject collection_;
    NSFastEnumerationState state_;
    id buffer_[batchSize]; // filled by the collection
    NSUInteger position_ = 0;
    NSUInteger fetched_ = 0;
};

template <typename Element> FastEnumeration<Element> each(NSObject collection) {
    return FastEnumeration<Element>(collection);
}

struct NSArray : NSObject {
    static constexpr FixedString className = "NSArray";

    // Nil for nil, which the platform would raise for.
    static NSArray arrayWithObject(Object object) {
        if (!object) return NSArray();
        return sendToClass<NSArray, "arrayWithObject:", NSArray>(cast<NSObject>(object));
    }

    NSUInteger count() const { return send<NSArray, "count", NSUInteger>(*this); }
    NSObject objectAtIndex(NSUInteger index) const {
        return send<NSArray, "objectAtIndex:", NSObject>(*this, index);
    }
    NSObject firstObject() const { return send<NSArray, "firstObject", NSObject>(*this); }
    bool containsObject(Object object) const {
        return send<NSArray, "containsObject:", bool>(*this, cast<NSObject>(object));
    }
    bool writeToFile(NSString path, bool atomically) const {
        return send<NSArray, "writeToFile:atomically:", bool>(*this, path, atomically);
    }
};

struct NSMutableArray : NSArray {
    static constexpr FixedString className = "NSMutableArray";

    // Nil when the file is missing or holds no array.
    static Owner<NSMutableArray> withContentsOfFile(NSString path) {
        return adopt(send<NSMutableArray, "initWithContentsOfFile:", NSMutableArray>(
            allocate<NSMutableArray>(), path));
    }

    // Leaves nil out, which the platform would raise for.
    void addObject(Object object) const {
        if (object) send<NSMutableArray, "addObject:", void>(*this, cast<NSObject>(object));
    }
    void insertObject(Object object, NSUInteger index) const {
        if (object) send<NSMutableArray, "insertObject:atIndex:", void>(*this, cast<NSObject>(object), index);
    }
    void removeObject(Object object) const {
        send<NSMutableArray, "removeObject:", void>(*this, cast<NSObject>(object));
    }
};

struct NSMutableSet : NSObject {
    static constexpr FixedString className = "NSMutableSet";

    // Leaves nil out, which the platform would raise for.
    void addObject(Object object) const {
        if (object) send<NSMutableSet, "addObject:", void>(*this, cast<NSObject>(object));
    }
    bool containsObject(Object object) const {
        return send<NSMutableSet, "containsObject:", bool>(*this, cast<NSObject>(object));
    }
};

struct NSDictionary : NSObject {
    static constexpr FixedString className = "NSDictionary";

    NSObject objectForKey(NSObject key) const {
        return send<NSDictionary, "objectForKey:", NSObject>(*this, key);
    }
    NSObject valueForKey(NSString key) const {
        return send<NSDictionary, "valueForKey:", NSObject>(*this, key);
    }
    NSArray allKeys() const { return send<NSDictionary, "allKeys", NSArray>(*this); }
    bool writeToFile(NSString path, bool atomically) const {
        return send<NSDictionary, "writeToFile:atomically:", bool>(*this, path, atomically);
    }
};

struct NSMutableDictionary : NSDictionary {
    static constexpr FixedString className = "NSMutableDictionary";

    // Nil when the file is missing or holds no dictionary.
    static NSMutableDictionary dictionaryWithContentsOfFile(NSString path) {
        return sendToClass<NSMutableDictionary, "dictionaryWithContentsOfFile:", NSMutableDictionary>(path);
    }

    // Leaves nil out, which the platform would raise for.
    void setObject(Object object, NSString key) const {
        if (!object) return;
        send<NSMutableDictionary, "setObject:forKeyedSubscript:", void>(*this, cast<NSObject>(object), key);
    }
};

struct NSPredicate : NSObject {
    static constexpr FixedString className = "NSPredicate";

    static NSPredicate predicateWithFormat(NSString format, NSArray arguments) {
        return sendToClass<NSPredicate, "predicateWithFormat:argumentArray:", NSPredicate>(format, arguments);
    }
};

struct NSSortDescriptor : NSObject {
    static constexpr FixedString className = "NSSortDescriptor";

    static NSSortDescriptor sortDescriptorWithKey(NSString key, bool ascending) {
        return sendToClass<NSSortDescriptor, "sortDescriptorWithKey:ascending:", NSSortDescriptor>(key,
                                                                                                   ascending);
    }
};

struct NSTimer : NSObject {
    static constexpr FixedString className = "NSTimer";

    // Sends `action` to `target` once, on the run loop of the calling thread; the target is kept until then.
    static NSTimer sendOnce(NSTimeInterval delay, Object target, SEL action) {
        return sendToClass<NSTimer, "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:",
                           NSTimer>(delay, cast<NSObject>(target), action, NSObject(), false);
    }

    // Until it has fired or was invalidated.
    bool isValid() const { return send<NSTimer, "isValid", bool>(*this); }
    void invalidate() const { send<NSTimer, "invalidate", void>(*this); }
};

struct NSThread : NSObject {
    static constexpr FixedString className = "NSThread";

    static bool isMainThread() { return sendToClass<NSThread, "isMainThread", bool>(); }
};

struct NSRunLoop : NSObject {
    static constexpr FixedString className = "NSRunLoop";

    static NSRunLoop currentRunLoop() { return sendToClass<NSRunLoop, "currentRunLoop", NSRunLoop>(); }

    // Nil while it does not run.
    NSString currentMode() const { return send<NSRunLoop, "currentMode", NSString>(*this); }
};

struct NSIndexPath : NSObject {
    static constexpr FixedString className = "NSIndexPath";

    static NSIndexPath indexPathForRow(NSInteger row, NSInteger section) {
        return sendToClass<NSIndexPath, "indexPathForRow:inSection:", NSIndexPath>(row, section);
    }
};

struct NSBundle : NSObject {
    static constexpr FixedString className = "NSBundle";

    static NSBundle mainBundle() { return sendToClass<NSBundle, "mainBundle", NSBundle>(); }
    static NSBundle bundleWithPath(NSString path) {
        return sendToClass<NSBundle, "bundleWithPath:", NSBundle>(path);
    }

    NSString bundleIdentifier() const { return send<NSBundle, "bundleIdentifier", NSString>(*this); }
    NSObject objectForInfoDictionaryKey(NSString key) const {
        return send<NSBundle, "objectForInfoDictionaryKey:", NSObject>(*this, key);
    }
    // Does nothing when the code is in the process already.
    bool load() const { return send<NSBundle, "load", bool>(*this); }
    NSString localizedString(NSString key, NSString value, NSString table) const {
        return send<NSBundle, "localizedStringForKey:value:table:", NSString>(*this, key, value, table);
    }
};

struct NSUUID : NSObject {
    static constexpr FixedString className = "NSUUID";

    static NSUUID UUID() { return sendToClass<NSUUID, "UUID", NSUUID>(); } // a new random one
    NSString UUIDString() const { return send<NSUUID, "UUIDString", NSString>(*this); }
};

struct NSFileManager : NSObject {
    static constexpr FixedString className = "NSFileManager";

    static NSFileManager defaultManager() {
        return sendToClass<NSFileManager, "defaultManager", NSFileManager>();
    }

    bool fileExistsAtPath(NSString path) const {
        return send<NSFileManager, "fileExistsAtPath:", bool>(*this, path);
    }

    // With intermediate directories and no attributes; a failure is not reported.
    void createDirectoryAtPath(NSString path) const {
        send<NSFileManager, "createDirectoryAtPath:withIntermediateDirectories:attributes:error:", bool>(
            *this, path, true, NSDictionary(), NSString::noError);
    }
    bool isReadableFileAtPath(NSString path) const {
        return send<NSFileManager, "isReadableFileAtPath:", bool>(*this, path);
    }
    bool removeItemAtPath(NSString path) const {
        return send<NSFileManager, "removeItemAtPath:error:", bool>(*this, path, NSString::noError);
    }
};

} // namespace rollkeeper
