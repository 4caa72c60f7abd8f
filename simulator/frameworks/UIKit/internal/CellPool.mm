#import "UIKit/internal/CellPool.h"

#import "UIKit/NSIndexPath+UIKit.h"

namespace simulator {

IndexPair indexPair(NSIndexPath* path) { return {[path section], [path item]}; }

NSIndexPath* indexPath(IndexPair pair) {
    return [NSIndexPath indexPathForItem:pair.item inSection:pair.section];
}

} // namespace simulator
