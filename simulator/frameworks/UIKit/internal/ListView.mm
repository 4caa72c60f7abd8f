#import "UIKit/internal/ListView.h"

@implementation ListCell

@synthesize reuseIdentifier = _reuseIdentifier, contentView = _cellContentView;

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _cellContentView = [[UIView alloc] initWithFrame:[self bounds]];
    [_cellContentView setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [self addSubview:_cellContentView];
    return self;
}

- (void)dealloc {
    [_reuseIdentifier release];
    [_cellContentView release];
    [super dealloc];
}

@end

@implementation ListView

@synthesize dataSource = _dataSource;

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _waiting = [[NSMutableArray alloc] init];
    return self;
}

- (void)dealloc {
    [_waiting release];
    [super dealloc];
}

- (void)setDataSource:(id)source {
    _dataSource = source;
    [self reloadData];
}

- (void)reloadData {
    _isLoaded = NO;
    [self setNeedsLayout];
}

- (void)loadIfNeeded {
    if (_isLoaded) return;
    _isLoaded = YES;
    [self removeCellsExcept:{}];
    [self load];
}

- (NSArray*)visibleCells {
    NSMutableArray* cells = [NSMutableArray array];
    for (const auto& [place, cell] : _shown)
        [cells addObject:cell.get()];
    return cells;
}

- (ListCell*)cellAt:(NSInteger)place {
    const auto found = _shown.find(place);
    return found == _shown.end() ? nil : found->second.get();
}

- (NSInteger)placeOf:(ListCell*)cell {
    for (const auto& [place, shown] : _shown)
        if (shown.get() == cell) return place;
    return NSNotFound;
}

- (ListCell*)dequeue:(NSString*)identifier {
    for (ListCell* cell in [_waiting reverseObjectEnumerator]) {
        if (![[cell reuseIdentifier] isEqualToString:identifier]) continue;
        [[cell retain] autorelease];
        [_waiting removeObjectIdenticalTo:cell];
        return cell;
    }
    return nil;
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [self loadIfNeeded];
    const auto frames = [self framesIn:[self bounds]];
    [self removeCellsExcept:frames];
    for (const auto& [place, frame] : frames) {
        ListCell* cell = [self cellAt:place];
        if (cell == nil) {
            cell = [self cellMadeFor:place];
            if (cell == nil)
                [NSException raise:NSInternalInconsistencyException
                            format:@"%@ got no cell from its data source %@", self, _dataSource];
            _shown[place] = cell;
            [self addSubview:cell];
        }
        [cell setFrame:frame];
    }
}

- (void)removeCellsExcept:(const std::map<NSInteger, CGRect>&)frames {
    std::erase_if(_shown, [&](const auto& each) {
        if (frames.contains(each.first)) return false;
        ListCell* cell = each.second.get();
        [cell removeFromSuperview];
        if ([cell reuseIdentifier] != nil) [_waiting addObject:cell];
        return true;
    });
}

@end
