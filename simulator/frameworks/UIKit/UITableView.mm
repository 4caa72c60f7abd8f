#import "UIKit/UITableView.h"

#import "UIKit/UIColor.h"
#import "UIKit/UIFont.h"
#import "UIKit/UILabel.h"
#import "UIKit/internal/CellPool.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/Ownership.h"
#import "UIKit/internal/Selection.h"

using simulator::IndexPair;
using simulator::mainThreadOnly;
using simulator::Retained;

namespace {

constexpr CGFloat sectionTextSize = 13;
constexpr CGFloat sectionTextMargin = 15; // at the sides
constexpr CGFloat sectionTextSpace = 7;   // above and below

} // namespace

namespace simulator {

struct TableRow {
    IndexPair index;
    CGFloat top;
    CGFloat height;
};

struct TableState {
    UITableViewStyle style = UITableViewStylePlain;
    id dataSource = nil; // not retained
    CGFloat rowHeight = 44;
    CellPool<UITableViewCell*> cells;
    std::vector<TableRow> rows;
    std::vector<NSInteger> rowsInSection;
    std::vector<Retained<UILabel*>> sectionTexts;
    bool needsReload = true;
};

} // namespace simulator

@implementation UITableView

- (instancetype)initWithFrame:(CGRect)frame {
    return [self initWithFrame:frame style:UITableViewStylePlain];
}

- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style {
    self = [super initWithFrame:frame];
    _tableState = new simulator::TableState;
    _tableState->style = style;
    return self;
}

- (void)dealloc {
    delete _tableState;
    [super dealloc];
}

- (UITableViewStyle)style {
    mainThreadOnly(self, _cmd);
    return _tableState->style;
}

- (id)dataSource {
    mainThreadOnly(self, _cmd);
    return _tableState->dataSource;
}

- (void)setDataSource:(id)source {
    mainThreadOnly(self, _cmd);
    _tableState->dataSource = source;
    [self reloadData];
}

- (CGFloat)rowHeight {
    mainThreadOnly(self, _cmd);
    return _tableState->rowHeight;
}

- (void)setRowHeight:(CGFloat)height {
    mainThreadOnly(self, _cmd);
    _tableState->rowHeight = height;
    [self reloadData];
}

- (void)reloadData {
    mainThreadOnly(self, _cmd);
    _tableState->needsReload = true;
    [self setNeedsLayout];
}

// Asks the data source how many rows there are, and the delegate how high they are.
- (void)loadRows {
    if (!_tableState->needsReload) return;
    _tableState->needsReload = false;
    _tableState->cells.recycleUnless([](IndexPair) { return false; });
    _tableState->rows.clear();
    _tableState->rowsInSection.clear();
    for (const Retained<UILabel*>& text : _tableState->sectionTexts)
        [text.get() removeFromSuperview];
    _tableState->sectionTexts.clear();
    id source = _tableState->dataSource;
    const bool asksHeight = [[self delegate] respondsToSelector:@selector(tableView:
                                                                    heightForRowAtIndexPath:)];
    const bool hasSections = [source respondsToSelector:@selector(numberOfSectionsInTableView:)];
    const NSInteger sections = hasSections ? [source numberOfSectionsInTableView:self] : (source ? 1 : 0);
    CGFloat top = 0;
    for (NSInteger section = 0; section < sections; ++section) {
        const NSInteger count = [source tableView:self numberOfRowsInSection:section];
        _tableState->rowsInSection.push_back(count);
        if ([source respondsToSelector:@selector(tableView:titleForHeaderInSection:)])
            top += [self addSectionText:[source tableView:self titleForHeaderInSection:section] at:top];
        for (NSInteger row = 0; row < count; ++row) {
            const IndexPair index{section, row};
            const CGFloat height = asksHeight ? [[self delegate] tableView:self
                                                    heightForRowAtIndexPath:simulator::indexPath(index)]
                                              : _tableState->rowHeight;
            _tableState->rows.push_back({index, top, height});
            top += height;
        }
        if ([source respondsToSelector:@selector(tableView:titleForFooterInSection:)])
            top += [self addSectionText:[source tableView:self titleForFooterInSection:section] at:top];
    }
    [self setContentSize:CGSizeMake([self bounds].size.width, top)];
}

// Returns the height that the text takes up.
- (CGFloat)addSectionText:(NSString*)text at:(CGFloat)top {
    if ([text length] == 0) return 0;
    UILabel* label = [[UILabel alloc] initWithFrame:CGRectZero];
    [label setText:text];
    [label setFont:[UIFont systemFontOfSize:sectionTextSize]];
    [label setTextColor:[UIColor grayColor]];
    [label setNumberOfLines:0];
    const CGFloat width = [self bounds].size.width - 2 * sectionTextMargin;
    const CGFloat height = [label sizeThatFits:CGSizeMake(width, 0)].height;
    [label setFrame:CGRectMake(sectionTextMargin, top + sectionTextSpace, width, height)];
    [self addSubview:label];
    _tableState->sectionTexts.push_back(Retained<UILabel*>::adopted(label));
    return height + 2 * sectionTextSpace;
}

- (NSInteger)numberOfSections {
    mainThreadOnly(self, _cmd);
    [self loadRows];
    return std::ssize(_tableState->rowsInSection);
}

- (NSInteger)numberOfRowsInSection:(NSInteger)section {
    mainThreadOnly(self, _cmd);
    [self loadRows];
    return _tableState->rowsInSection.at(section);
}

- (void)registerClass:(Class)cellClass forCellReuseIdentifier:(NSString*)identifier {
    mainThreadOnly(self, _cmd);
    _tableState->cells.registerClass(cellClass, identifier);
}

- (id)dequeueReusableCellWithIdentifier:(NSString*)identifier {
    mainThreadOnly(self, _cmd);
    if (UITableViewCell* cell = _tableState->cells.dequeue(identifier)) return cell;
    Class cellClass = _tableState->cells.classFor(identifier);
    return [[[cellClass alloc] initWithStyle:UITableViewCellStyleDefault
                             reuseIdentifier:identifier] autorelease];
}

- (id)dequeueReusableCellWithIdentifier:(NSString*)identifier forIndexPath:(NSIndexPath*)path {
    id cell = [self dequeueReusableCellWithIdentifier:identifier];
    if (!cell)
        [NSException
             raise:NSInternalInconsistencyException
            format:@"unable to dequeue a cell with identifier %@ - must register a class for the identifier",
                   identifier];
    return cell;
}

- (UITableViewCell*)cellForRowAtIndexPath:(NSIndexPath*)path {
    mainThreadOnly(self, _cmd);
    return _tableState->cells.shownAt(simulator::indexPair(path));
}

- (NSArray*)visibleCells {
    mainThreadOnly(self, _cmd);
    return _tableState->cells.cells();
}

- (NSIndexPath*)indexPathForCell:(UITableViewCell*)cell {
    mainThreadOnly(self, _cmd);
    return _tableState->cells.pathOf(cell);
}

- (NSIndexPath*)indexPathForRowAtPoint:(CGPoint)point {
    mainThreadOnly(self, _cmd);
    [self loadRows];
    for (const simulator::TableRow& row : _tableState->rows)
        if (point.y >= row.top && point.y < row.top + row.height) return simulator::indexPath(row.index);
    return nil;
}

- (void)deselectRowAtIndexPath:(NSIndexPath*)path animated:(BOOL)animated {
    [[self cellForRowAtIndexPath:path] setSelected:NO];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [self loadRows];
    const CGRect visible = [self bounds];
    std::map<IndexPair, CGRect> frames;
    for (const simulator::TableRow& row : _tableState->rows)
        if (row.top < CGRectGetMaxY(visible) && row.top + row.height > CGRectGetMinY(visible))
            frames[row.index] = CGRectMake(0, row.top, visible.size.width, row.height);
    _tableState->cells.recycleUnless([&](IndexPair index) { return frames.contains(index); });
    for (const auto& [index, frame] : frames)
        [self showCellAt:index frame:frame];
}

- (void)showCellAt:(IndexPair)index frame:(CGRect)frame {
    UITableViewCell* cell = _tableState->cells.shownAt(index);
    if (!cell) {
        cell = [_tableState->dataSource tableView:self cellForRowAtIndexPath:simulator::indexPath(index)];
        if (!cell)
            [NSException raise:NSInternalInconsistencyException
                        format:@"UITableView failed to obtain a cell from its dataSource (%@)",
                               _tableState->dataSource];
        _tableState->cells.show(cell, index);
        [self addSubview:cell];
    }
    [cell setFrame:frame];
}

- (void)tapCell:(UITableViewCell*)cell {
    NSIndexPath* path = [self indexPathForCell:cell];
    if (!path) return;
    [cell setSelected:YES];
    id delegate = [self delegate];
    if ([delegate respondsToSelector:@selector(tableView:didSelectRowAtIndexPath:)])
        [delegate tableView:self didSelectRowAtIndexPath:path];
}

@end
