#import "UIKit/UITableView.h"

#import "UIKit/DisplayViews.h"
#import "UIKit/UIColor.h"

namespace {

constexpr CGFloat rowHeight = 44;
constexpr CGFloat sectionTextSize = 13;
constexpr CGFloat sectionTextMargin = 15; // at the sides
constexpr CGFloat spaceAboveGroup = 16;
constexpr CGFloat sectionTextSpace = 7; // above and below

} // namespace

@implementation UITableView

- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style {
    self = [self initWithFrame:frame];
    _sectionTexts = [[NSMutableArray alloc] init];
    _style = style;
    [self setBackgroundColor:style == UITableViewStyleGrouped ? [UIColor colorWithWhite:0.94 alpha:1]
                                                              : [UIColor whiteColor]];
    return self;
}

- (void)dealloc {
    [_sectionTexts release];
    [super dealloc];
}

- (void)load {
    id source = [self dataSource];
    _rows.clear();
    [_sectionTexts makeObjectsPerformSelector:@selector(removeFromSuperview)];
    [_sectionTexts removeAllObjects];
    const bool hasSections = [source respondsToSelector:@selector(numberOfSectionsInTableView:)];
    const NSInteger sections = hasSections ? [source numberOfSectionsInTableView:self] : 1;
    CGFloat top = 0;
    for (NSInteger section = 0; section < sections; ++section) {
        if (_style == UITableViewStyleGrouped) top += spaceAboveGroup;
        if ([source respondsToSelector:@selector(tableView:titleForHeaderInSection:)])
            top += [self addSectionText:[source tableView:self titleForHeaderInSection:section] at:top];
        const NSInteger count = [source tableView:self numberOfRowsInSection:section];
        for (NSInteger row = 0; row < count; ++row) {
            _rows.push_back({section, row, top});
            top += rowHeight;
        }
        if ([source respondsToSelector:@selector(tableView:titleForFooterInSection:)])
            top += [self addSectionText:[source tableView:self titleForFooterInSection:section] at:top];
    }
    [self setContentSize:CGSizeMake([self bounds].size.width, top)];
}

// Returns the height that the text takes up.
- (CGFloat)addSectionText:(NSString*)text at:(CGFloat)top {
    if ([text length] == 0) return 0;
    UILabel* label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    [label setText:text];
    [label setFont:[UIFont systemFontOfSize:sectionTextSize]];
    [label setTextColor:[UIColor colorWithWhite:0.5 alpha:1]];
    [label setNumberOfLines:0];
    const CGFloat width = [self bounds].size.width - 2 * sectionTextMargin;
    const CGFloat height = [label sizeThatFits:CGSizeMake(width, 0)].height;
    [label setFrame:CGRectMake(sectionTextMargin, top + sectionTextSpace, width, height)];
    [self addSubview:label];
    [_sectionTexts addObject:label];
    return height + 2 * sectionTextSpace;
}

- (id)dequeueReusableCellWithIdentifier:(NSString*)identifier {
    return [self dequeue:identifier];
}

- (NSIndexPath*)pathAt:(NSInteger)place {
    const simulator::TableRow& row = _rows.at(static_cast<std::size_t>(place));
    return [NSIndexPath indexPathForRow:row.row inSection:row.section];
}

- (std::map<NSInteger, CGRect>)framesIn:(CGRect)visible {
    std::map<NSInteger, CGRect> frames;
    for (NSInteger place = 0; const simulator::TableRow& row : _rows) {
        if (row.top < CGRectGetMaxY(visible) && row.top + rowHeight > CGRectGetMinY(visible))
            frames[place] = CGRectMake(0, row.top, visible.size.width, rowHeight);
        ++place;
    }
    return frames;
}

- (ListCell*)cellMadeFor:(NSInteger)place {
    UITableViewCell* cell = [[self dataSource] tableView:self cellForRowAtIndexPath:[self pathAt:place]];
    [cell setNeedsLayout]; // its texts may be other ones than before
    return cell;
}

- (void)tapCell:(UITableViewCell*)cell {
    const NSInteger place = [self placeOf:cell];
    const SEL chosen = @selector(tableView:didSelectRowAtIndexPath:);
    if (place != NSNotFound && [[self delegate] respondsToSelector:chosen])
        [[self delegate] tableView:self didSelectRowAtIndexPath:[self pathAt:place]];
}

@end
