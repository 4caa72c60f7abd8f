#import "UIKit/UICollectionView.h"

#import "UIKit/internal/CellPool.h"
#import "UIKit/internal/CollectionCells.h"
#import "UIKit/internal/CollectionLayout.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/Selection.h"

#include <set>

using simulator::IndexPair;
using simulator::mainThreadOnly;
using simulator::Retained;

namespace simulator {

struct CollectionState {
    Retained<UICollectionViewLayout*> layout;
    id dataSource = nil; // not retained
    CellPool<UICollectionViewCell*> cells;
    std::vector<NSInteger> itemsInSection;
    std::set<IndexPair> selected;
    bool allowsMultipleSelection = false;
    bool needsReload = true;
};

} // namespace simulator

@implementation UICollectionView

- (instancetype)initWithFrame:(CGRect)frame {
    return [self initWithFrame:frame
          collectionViewLayout:[[[UICollectionViewFlowLayout alloc] init] autorelease]];
}

- (instancetype)initWithFrame:(CGRect)frame collectionViewLayout:(UICollectionViewLayout*)layout {
    self = [super initWithFrame:frame];
    _collectionState = new simulator::CollectionState;
    [self setCollectionViewLayout:layout];
    return self;
}

- (void)dealloc {
    [_collectionState->layout.get() setCollectionView:nil];
    delete _collectionState;
    [super dealloc];
}

- (UICollectionViewLayout*)collectionViewLayout {
    mainThreadOnly(self, _cmd);
    return _collectionState->layout.get();
}

- (void)setCollectionViewLayout:(UICollectionViewLayout*)layout {
    mainThreadOnly(self, _cmd);
    [_collectionState->layout.get() setCollectionView:nil];
    _collectionState->layout = layout;
    [layout setCollectionView:self];
    [self setNeedsLayout];
}

- (id)dataSource {
    mainThreadOnly(self, _cmd);
    return _collectionState->dataSource;
}

- (void)setDataSource:(id)source {
    mainThreadOnly(self, _cmd);
    _collectionState->dataSource = source;
    [self reloadData];
}

- (BOOL)allowsMultipleSelection {
    mainThreadOnly(self, _cmd);
    return _collectionState->allowsMultipleSelection ? YES : NO;
}

- (void)setAllowsMultipleSelection:(BOOL)allows {
    mainThreadOnly(self, _cmd);
    _collectionState->allowsMultipleSelection = allows;
}

#pragma mark Items and cells

- (void)reloadData {
    mainThreadOnly(self, _cmd);
    _collectionState->needsReload = true;
    [self setNeedsLayout];
}

- (void)loadItems {
    if (!_collectionState->needsReload) return;
    _collectionState->needsReload = false;
    _collectionState->cells.recycleUnless([](IndexPair) { return false; });
    _collectionState->selected.clear();
    _collectionState->itemsInSection.clear();
    id source = _collectionState->dataSource;
    const bool hasSections = [source respondsToSelector:@selector(numberOfSectionsInCollectionView:)];
    const NSInteger sections =
        hasSections ? [source numberOfSectionsInCollectionView:self] : (source ? 1 : 0);
    for (NSInteger section = 0; section < sections; ++section)
        _collectionState->itemsInSection.push_back([source collectionView:self
                                                   numberOfItemsInSection:section]);
    [_collectionState->layout.get() prepareLayout];
}

- (NSInteger)numberOfSections {
    mainThreadOnly(self, _cmd);
    [self loadItems];
    return std::ssize(_collectionState->itemsInSection);
}

- (NSInteger)numberOfItemsInSection:(NSInteger)section {
    mainThreadOnly(self, _cmd);
    [self loadItems];
    return _collectionState->itemsInSection.at(section);
}

- (void)registerClass:(Class)cellClass forCellWithReuseIdentifier:(NSString*)identifier {
    mainThreadOnly(self, _cmd);
    _collectionState->cells.registerClass(cellClass, identifier);
}

- (id)dequeueReusableCellWithReuseIdentifier:(NSString*)identifier forIndexPath:(NSIndexPath*)path {
    mainThreadOnly(self, _cmd);
    if (UICollectionViewCell* cell = _collectionState->cells.dequeue(identifier)) return cell;
    Class cellClass = _collectionState->cells.classFor(identifier);
    if (!cellClass)
        [NSException
             raise:NSInternalInconsistencyException
            format:@"could not dequeue a view of kind: UICollectionElementKindCell with identifier %@ - must "
                   @"register a class for the identifier",
                   identifier];
    const CGRect frame = [_collectionState->layout.get() frameForItemAtIndexPath:path];
    UICollectionViewCell* cell = [[[cellClass alloc] initWithFrame:frame] autorelease];
    [cell setReuseIdentifier:identifier];
    return cell;
}

- (UICollectionViewCell*)cellForItemAtIndexPath:(NSIndexPath*)path {
    mainThreadOnly(self, _cmd);
    return _collectionState->cells.shownAt(simulator::indexPair(path));
}

- (NSArray*)visibleCells {
    mainThreadOnly(self, _cmd);
    return _collectionState->cells.cells();
}

- (NSArray*)indexPathsForVisibleItems {
    mainThreadOnly(self, _cmd);
    NSMutableArray* paths = [NSMutableArray array];
    for (const auto& [index, cell] : _collectionState->cells.shown())
        [paths addObject:simulator::indexPath(index)];
    return paths;
}

- (NSIndexPath*)indexPathForCell:(UICollectionViewCell*)cell {
    mainThreadOnly(self, _cmd);
    return _collectionState->cells.pathOf(cell);
}

- (NSIndexPath*)indexPathForItemAtPoint:(CGPoint)point {
    mainThreadOnly(self, _cmd);
    for (const auto& [index, cell] : _collectionState->cells.shown())
        if (CGRectContainsPoint([cell.get() frame], point)) return simulator::indexPath(index);
    return nil;
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [self loadItems];
    UICollectionViewLayout* layout = _collectionState->layout.get();
    [self setContentSize:[layout collectionViewContentSize]];
    const CGRect visible = [self bounds];
    std::map<IndexPair, CGRect> frames;
    for (NSInteger section = 0; section < std::ssize(_collectionState->itemsInSection); ++section) {
        for (NSInteger item = 0; item < _collectionState->itemsInSection[section]; ++item) {
            const CGRect frame = [layout frameForItemAtIndexPath:simulator::indexPath({section, item})];
            if (frame.origin.y >= CGRectGetMaxY(visible)) break; // the items after it lie no higher
            if (CGRectGetMaxY(frame) > visible.origin.y) frames[{section, item}] = frame;
        }
    }
    _collectionState->cells.recycleUnless([&](IndexPair index) { return frames.contains(index); });
    for (const auto& [index, frame] : frames)
        [self showCellAt:index frame:frame];
}

- (void)showCellAt:(IndexPair)index frame:(CGRect)frame {
    UICollectionViewCell* cell = _collectionState->cells.shownAt(index);
    if (!cell) {
        cell = [_collectionState->dataSource collectionView:self
                                     cellForItemAtIndexPath:simulator::indexPath(index)];
        if (!cell)
            [NSException raise:NSInternalInconsistencyException
                        format:@"the cell returned from -collectionView:cellForItemAtIndexPath: of %@ is nil",
                               _collectionState->dataSource];
        _collectionState->cells.show(cell, index);
        [cell setSelected:_collectionState->selected.contains(index) ? YES : NO];
        [self addSubview:cell];
    }
    [cell setFrame:frame];
}

#pragma mark Selection

- (NSArray*)indexPathsForSelectedItems {
    mainThreadOnly(self, _cmd);
    NSMutableArray* paths = [NSMutableArray array];
    for (const IndexPair index : _collectionState->selected)
        [paths addObject:simulator::indexPath(index)];
    return paths;
}

- (void)selectItemAtIndexPath:(NSIndexPath*)path animated:(BOOL)animated scrollPosition:(NSUInteger)position {
    mainThreadOnly(self, _cmd);
    if (!_collectionState->allowsMultipleSelection)
        for (NSIndexPath* each in [self indexPathsForSelectedItems])
            [self deselectItemAtIndexPath:each animated:NO];
    _collectionState->selected.insert(simulator::indexPair(path));
    [[self cellForItemAtIndexPath:path] setSelected:YES];
}

- (void)deselectItemAtIndexPath:(NSIndexPath*)path animated:(BOOL)animated {
    mainThreadOnly(self, _cmd);
    _collectionState->selected.erase(simulator::indexPair(path));
    [[self cellForItemAtIndexPath:path] setSelected:NO];
}

- (void)tapCell:(UICollectionViewCell*)cell {
    NSIndexPath* path = [self indexPathForCell:cell];
    if (!path) return;
    id delegate = [self delegate];
    const bool wasSelected = _collectionState->selected.contains(simulator::indexPair(path));
    if (wasSelected && _collectionState->allowsMultipleSelection) {
        [self deselectItemAtIndexPath:path animated:YES];
        if ([delegate respondsToSelector:@selector(collectionView:didDeselectItemAtIndexPath:)])
            [delegate collectionView:self didDeselectItemAtIndexPath:path];
        return;
    }
    [self selectItemAtIndexPath:path animated:YES scrollPosition:0];
    if ([delegate respondsToSelector:@selector(collectionView:didSelectItemAtIndexPath:)])
        [delegate collectionView:self didSelectItemAtIndexPath:path];
}

@end
