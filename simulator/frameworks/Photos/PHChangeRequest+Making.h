// What the requests have in common: they belong to the change block in which they were made.
#pragma once

#import "Photos/Photos+Making.h"

@interface PHChangeRequest (Making)
/// The change that the calling thread's change block fills; raises outside every change block.
+ (simulator::Change&)currentChange;
/// A request of the current change block; raises outside.
- (instancetype)initInsideChangeBlock;
/// The change that this request belongs to; raises when its change block is not running.
- (simulator::Change&)change;
@end

namespace simulator {

/// The identifiers of assets, collections or placeholders; raises NSInvalidArgumentException for anything
/// else.
Identifiers identifiersOfObjects(id<NSFastEnumeration> objects);

} // namespace simulator
