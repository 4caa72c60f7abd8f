#import "UIKit/UICollectionView.h"

namespace {

NSIndexPath* pathAt(NSInteger place) { return [NSIndexPath indexPathForItem:place inSection:0]; }

} // namespace

@implementation UICollectionViewCell
@end

@implementation UICollectionView

@synthesize collectionViewLayout = _collectionViewLayout;

- (instancetype)initWithFrame:(CGRect)frame collectionViewLayout:(UICollectionViewFlowLayout*)layout {
    self = [self initWithFrame:frame];
    _cellClasses = [[NSMutableDictionary alloc] init];
    _collectionViewLayout = [layout retain];
    [layout setCollectionView:self];
    return self;
}

- (void)dealloc {
    [_collectionViewLayout setCollectionView:nil];
    [_collectionViewLayout release];
    [_cellClasses release];
    [super dealloc];
}

- (void)load {
    _itemCount = [[self dataSource] collectionView:self numberOfItemsInSection:0];
}

- (NSInteger)numberOfItemsInSection:(NSInteger)section {
    [self loadIfNeeded];
    return _itemCount;
}

- (void)registerClass:(Class)cellClass forCellWithReuseIdentifier:(NSString*)identifier {
    [_cellClasses setObject:cellClass forKey:identifier];
}

- (id)dequeueReusableCellWithReuseIdentifier:(NSString*)identifier forIndexPath:(NSIndexPath*)path {
    if (ListCell* cell = [self dequeue:identifier]) return cell;
    Class cellClass = [_cellClasses objectForKey:identifier];
    if (cellClass == Nil)
        [NSException raise:NSInternalInconsistencyException
                    format:@"no class is registered for cells with the identifier %@", identifier];
    const CGRect frame = [_collectionViewLayout frameForItemAtIndexPath:path];
    UICollectionViewCell* cell = [[[cellClass alloc] initWithFrame:frame] autorelease];
    [cell setReuseIdentifier:identifier];
    return cell;
}

- (UICollectionViewCell*)cellForItemAtIndexPath:(NSIndexPath*)path {
    return static_cast<UICollectionViewCell*>([self cellAt:[path item]]);
}

- (NSIndexPath*)indexPathForCell:(UICollectionViewCell*)cell {
    const NSInteger place = [self placeOf:cell];
    return place != NSNotFound ? pathAt(place) : nil;
}

- (NSIndexPath*)indexPathForItemAtPoint:(CGPoint)point {
    for (UICollectionViewCell* cell in [self visibleCells])
        if (CGRectContainsPoint([cell frame], point)) return [self indexPathForCell:cell];
    return nil;
}

- (void)layoutSubviews {
    [self loadIfNeeded];
    [self setContentSize:[_collectionViewLayout collectionViewContentSize]];
    [super layoutSubviews];
}

- (std::map<NSInteger, CGRect>)framesIn:(CGRect)visible {
    const bool isSideways =
        [_collectionViewLayout scrollDirection] == UICollectionViewScrollDirectionHorizontal;
    const auto start = [=](CGRect rect) { return isSideways ? rect.origin.x : rect.origin.y; };
    const auto end = [=](CGRect rect) { return isSideways ? CGRectGetMaxX(rect) : CGRectGetMaxY(rect); };
    std::map<NSInteger, CGRect> frames;
    for (NSInteger item = 0; item < _itemCount; ++item) {
        const CGRect frame = [_collectionViewLayout frameForItemAtIndexPath:pathAt(item)];
        if (start(frame) >= end(visible)) break; // the items after it lie no nearer to the beginning
        if (end(frame) > start(visible)) frames[item] = frame;
    }
    return frames;
}

- (ListCell*)cellMadeFor:(NSInteger)item {
    return [[self dataSource] collectionView:self cellForItemAtIndexPath:pathAt(item)];
}

- (void)tapCell:(UICollectionViewCell*)cell {
    NSIndexPath* path = [self indexPathForCell:cell];
    const SEL chosen = @selector(collectionView:didSelectItemAtIndexPath:);
    if (path != nil && [[self delegate] respondsToSelector:chosen])
        [[self delegate] collectionView:self didSelectItemAtIndexPath:path];
}

@end

@implementation UICollectionViewController

@synthesize collectionViewLayout = _layout;

- (instancetype)initWithCollectionViewLayout:(UICollectionViewFlowLayout*)layout {
    self = [super init];
    _layout = [layout retain];
    return self;
}

- (void)dealloc {
    [_collectionView setDataSource:nil];
    [_collectionView setDelegate:nil];
    [_collectionView release];
    [_layout release];
    [super dealloc];
}

- (void)loadView {
    [super loadView];
    _collectionView = [[UICollectionView alloc] initWithFrame:[[self view] bounds]
                                         collectionViewLayout:_layout];
    [_collectionView setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [_collectionView setDataSource:self];
    [_collectionView setDelegate:self];
    [[self view] addSubview:_collectionView];
}

- (UICollectionView*)collectionView {
    [self view];
    return _collectionView;
}

@end
