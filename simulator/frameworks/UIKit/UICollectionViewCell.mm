#import "UIKit/UICollectionView.h"

#import "UIKit/internal/CollectionCells.h"
#import "UIKit/internal/MainThread.h"

using simulator::mainThreadOnly;

@implementation UICollectionReusableView

- (void)dealloc {
    [_reuseIdentifier release];
    [super dealloc];
}

- (NSString*)reuseIdentifier {
    mainThreadOnly(self, _cmd);
    return _reuseIdentifier;
}

- (void)setReuseIdentifier:(NSString*)identifier {
    [_reuseIdentifier autorelease];
    _reuseIdentifier = [identifier copy];
}

- (void)prepareForReuse {
    mainThreadOnly(self, _cmd);
}

@end

@implementation UICollectionViewCell

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _cellContentView = [[UIView alloc] initWithFrame:[self bounds]];
    [_cellContentView setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [self addSubview:_cellContentView];
    return self;
}

- (void)dealloc {
    [_cellContentView release];
    [super dealloc];
}

- (UIView*)contentView {
    mainThreadOnly(self, _cmd);
    return _cellContentView;
}

- (BOOL)isSelected {
    mainThreadOnly(self, _cmd);
    return _selected;
}

- (void)setSelected:(BOOL)selected {
    mainThreadOnly(self, _cmd);
    _selected = selected ? YES : NO;
}

@end
