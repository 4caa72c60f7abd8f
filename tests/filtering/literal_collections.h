// What a collection list answers, found the plain way: every regular album and its photos are fetched once
// for every album in the list, and arrays are searched. Quadratic, and obvious; the library must always
// agree.
#pragma once

#import "Photos/Photos.h"

namespace simulator::test {

struct LiteralWorld {
    NSString* bundleIdentifier;
    double coreFoundationVersion;
    NSDictionary* settings;   // switches by key; a missing one is on, but "showHidden" off
    NSDictionary* visibility; // albums' switches by key, with those that have left the file
};

// `previous` is what the list answers without the library; asked twice. Reads the locked list of the device.
NSArray* literalCollections(NSArray* (^previous)(), const LiteralWorld& world);

} // namespace simulator::test
