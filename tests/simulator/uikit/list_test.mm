#import "simulator/uikit/uikit_test.h"

// As many rows and items as told, each with its number as text; counts the cells that are made for the first
// time.
@interface NumberSource : NSObject <UITableViewDataSource, UICollectionViewDataSource> {
  @public
    NSInteger count;
    NSInteger selected;
    NSMutableSet* cells;
    NSString* header;
    NSString* footer;
}
@end

@implementation NumberSource

- (instancetype)init {
    self = [super init];
    cells = [[NSMutableSet alloc] init];
    selected = -1;
    return self;
}

- (void)dealloc {
    [cells release];
    [super dealloc];
}

- (NSInteger)tableView:(UITableView*)table numberOfRowsInSection:(NSInteger)section {
    return count;
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path {
    UITableViewCell* cell = [table dequeueReusableCellWithIdentifier:@"row" forIndexPath:path];
    [[cell textLabel] setText:[NSString stringWithFormat:@"%ld", static_cast<long>([path row])]];
    [cells addObject:cell];
    return cell;
}

- (NSString*)tableView:(UITableView*)table titleForHeaderInSection:(NSInteger)section {
    return header;
}

- (NSString*)tableView:(UITableView*)table titleForFooterInSection:(NSInteger)section {
    return footer;
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path {
    selected = [path row];
}

- (NSInteger)collectionView:(UICollectionView*)collection numberOfItemsInSection:(NSInteger)section {
    return count;
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)collection
                 cellForItemAtIndexPath:(NSIndexPath*)path {
    UICollectionViewCell* cell = [collection dequeueReusableCellWithReuseIdentifier:@"item"
                                                                       forIndexPath:path];
    [cell setTag:[path item]];
    [cells addObject:cell];
    return cell;
}

- (void)collectionView:(UICollectionView*)collection didSelectItemAtIndexPath:(NSIndexPath*)path {
    selected = [path item];
}

- (void)collectionView:(UICollectionView*)collection didDeselectItemAtIndexPath:(NSIndexPath*)path {
    selected = -1;
}

@end

namespace simulator::test {

namespace {

class Lists : public UIKitTest {
  protected:
    Lists() : source([[NumberSource alloc] init]) { source->count = 1000; }
    ~Lists() override { [source release]; }

    UITableView* addTable() {
        auto* table = [[[UITableView alloc] initWithFrame:CGRectMake(0, 0, 300, 440)
                                                    style:UITableViewStylePlain] autorelease];
        [table registerClass:[UITableViewCell class] forCellReuseIdentifier:@"row"];
        [table setDataSource:source];
        [table setDelegate:source];
        [screen() addSubview:table];
        [table layoutIfNeeded];
        return table;
    }

    // Three items a line.
    UICollectionView* addCollection() {
        auto* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
        [layout setItemSize:CGSizeMake(90, 90)];
        auto* collection = [[[UICollectionView alloc] initWithFrame:CGRectMake(0, 0, 300, 290)
                                               collectionViewLayout:layout] autorelease];
        [collection registerClass:[UICollectionViewCell class] forCellWithReuseIdentifier:@"item"];
        [collection setDataSource:source];
        [collection setDelegate:source];
        [screen() addSubview:collection];
        [collection layoutIfNeeded];
        return collection;
    }

    NumberSource* source;
};

NSIndexPath* item(NSInteger number) { return [NSIndexPath indexPathForItem:number inSection:0]; }

TEST_F(Lists, a_table_makes_only_the_rows_in_sight_and_uses_them_again) {
    UITableView* table = addTable();
    EXPECT_EQ([[table visibleCells] count], 10U);
    EXPECT_EQ([table contentSize], CGSizeMake(300, 44000));
    [table setContentOffset:CGPointMake(0, 4400)];
    [table layoutIfNeeded];
    EXPECT_EQ([table cellForRowAtIndexPath:item(0)], nil);
    EXPECT_TRUE([[[[table cellForRowAtIndexPath:item(105)] textLabel] text] isEqualToString:@"105"]);
    EXPECT_EQ([source->cells count], 10U);
    EXPECT_EQ([[table indexPathForRowAtPoint:CGPointMake(0, 4450)] row], 101);
}

TEST_F(Lists, a_table_follows_its_data_source_when_reloaded) {
    UITableView* table = addTable();
    source->count = 3;
    EXPECT_EQ([[table visibleCells] count], 10U);
    [table reloadData];
    [table layoutIfNeeded];
    EXPECT_EQ([[table visibleCells] count], 3U);
    EXPECT_EQ([table numberOfRowsInSection:0], 3);
}

TEST_F(Lists, a_table_shows_the_texts_above_and_below_its_sections) {
    source->count = 2;
    source->header = @"Title";
    UITableView* table = addTable();
    const CGFloat oneLine = CGRectGetMinY([[table cellForRowAtIndexPath:item(0)] frame]);
    EXPECT_GT(oneLine, 0);
    EXPECT_EQ([table contentSize].height, oneLine + 2 * 44);
    source->footer =
        @"A footer that is so long that it needs more than the one line that a short one would have.";
    [table reloadData];
    [table layoutIfNeeded];
    EXPECT_GT([table contentSize].height, oneLine + 2 * 44 + oneLine);
    source->header = source->footer = nil;
    [table reloadData];
    [table layoutIfNeeded];
    EXPECT_EQ([table contentSize].height, 2 * 44);
    for (UIView* view in [table subviews])
        EXPECT_FALSE([view isKindOfClass:[UILabel class]]);
}

TEST_F(Lists, a_tap_on_a_row_selects_it) {
    UITableView* table = addTable();
    tap([table cellForRowAtIndexPath:item(4)]);
    EXPECT_EQ(source->selected, 4);
    EXPECT_TRUE([[table cellForRowAtIndexPath:item(4)] isSelected]);
}

TEST_F(Lists, a_collection_flows_its_items_and_uses_cells_again) {
    UICollectionView* collection = addCollection();
    EXPECT_EQ([[collection visibleCells] count], 9U);
    EXPECT_EQ([[collection cellForItemAtIndexPath:item(4)] frame], CGRectMake(105, 100, 90, 90));
    EXPECT_EQ([collection contentSize], CGSizeMake(300, 334 * 100 - 10));
    [collection setContentOffset:CGPointMake(0, 1000)];
    [collection layoutIfNeeded];
    EXPECT_EQ([[collection indexPathForItemAtPoint:CGPointMake(110, 1010)] item], 31);
    EXPECT_EQ([source->cells count], 9U);
}

TEST_F(Lists, a_tap_on_an_item_selects_one_or_several) {
    UICollectionView* collection = addCollection();
    tap([collection cellForItemAtIndexPath:item(4)]);
    tap([collection cellForItemAtIndexPath:item(5)]);
    EXPECT_EQ([[collection indexPathsForSelectedItems] count], 1U);
    EXPECT_EQ(source->selected, 5);
    [collection setAllowsMultipleSelection:YES];
    tap([collection cellForItemAtIndexPath:item(4)]);
    EXPECT_EQ([[collection indexPathsForSelectedItems] count], 2U);
    tap([collection cellForItemAtIndexPath:item(4)]);
    EXPECT_EQ([[collection indexPathsForSelectedItems] count], 1U);
    EXPECT_EQ(source->selected, -1);
}

TEST_F(Lists, scroll_back_when_the_content_becomes_too_short) {
    UICollectionView* collection = addCollection();
    [collection setContentOffset:CGPointMake(0, 30000)];
    [collection layoutIfNeeded];
    source->count = 30;
    [collection reloadData];
    [collection layoutIfNeeded];
    EXPECT_EQ([collection contentOffset], CGPointMake(0, 10 * 100 - 10 - 290));
    EXPECT_EQ([[collection visibleCells] count], 9U);
    [collection setFrame:CGRectMake(0, 0, 300, 2000)];
    [collection layoutIfNeeded];
    EXPECT_EQ([collection contentOffset], CGPointZero);
    EXPECT_EQ([[collection visibleCells] count], 30U);
}

TEST_F(Lists, an_unregistered_cell_raises) {
    UICollectionView* collection = addCollection();
    EXPECT_EQ(exceptionOf([&] {
                  [collection dequeueReusableCellWithReuseIdentifier:@"unknown" forIndexPath:item(0)];
              }),
              "NSInternalInconsistencyException");
}

} // namespace

} // namespace simulator::test
