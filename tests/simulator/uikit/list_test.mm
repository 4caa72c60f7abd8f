#include "simulator/uikit/uikit_fixture.h"

@interface ThousandItems : NSObject <UICollectionViewDataSource>
@end

@implementation ThousandItems

- (NSInteger)collectionView:(UICollectionView*)collection numberOfItemsInSection:(NSInteger)section {
    return 1000;
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)collection
                 cellForItemAtIndexPath:(NSIndexPath*)path {
    return [collection dequeueReusableCellWithReuseIdentifier:@"item" forIndexPath:path];
}

@end

namespace simulator::test {

namespace {

TEST_F(UIKitTest, a_list_makes_only_the_cells_in_sight_and_uses_them_again) {
    UICollectionViewFlowLayout* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
    [layout setItemSize:CGSizeMake(90, 90)];
    UICollectionView* list = [[[UICollectionView alloc] initWithFrame:CGRectMake(0, 0, 300, 290)
                                                 collectionViewLayout:layout] autorelease];
    [list registerClass:[UICollectionViewCell class] forCellWithReuseIdentifier:@"item"];
    ThousandItems* source = [[[ThousandItems alloc] init] autorelease];
    [list setDataSource:source];
    [screen() addSubview:list];
    [list layoutIfNeeded];
    NSSet* cells = [NSSet setWithArray:[list visibleCells]];
    EXPECT_EQ([cells count], 9U);
    [list setContentOffset:CGPointMake(0, 20000)];
    [list layoutIfNeeded];
    EXPECT_TRUE([[NSSet setWithArray:[list visibleCells]] isEqual:cells]);
    EXPECT_EQ([list cellForItemAtIndexPath:[NSIndexPath indexPathForItem:0 inSection:0]], nil);
}

} // namespace

} // namespace simulator::test
