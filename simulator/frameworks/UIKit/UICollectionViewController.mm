#import "UIKit/UICollectionViewController.h"

#import "UIKit/internal/MainThread.h"

@implementation UICollectionViewController

- (instancetype)init {
    return [self initWithCollectionViewLayout:[[[UICollectionViewFlowLayout alloc] init] autorelease]];
}

- (instancetype)initWithCollectionViewLayout:(UICollectionViewLayout*)layout {
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
    UICollectionView* collection = [[[UICollectionView alloc] initWithFrame:[[self view] bounds]
                                                       collectionViewLayout:_layout] autorelease];
    [self setCollectionView:collection];
}

- (UICollectionView*)collectionView {
    simulator::mainThreadOnly(self, _cmd);
    [self loadViewIfNeeded];
    return _collectionView;
}

- (void)setCollectionView:(UICollectionView*)collection {
    simulator::mainThreadOnly(self, _cmd);
    [_collectionView removeFromSuperview];
    [_collectionView autorelease];
    _collectionView = [collection retain];
    [collection setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [collection setDataSource:self];
    [collection setDelegate:self];
    if (collection) [[self view] addSubview:collection];
}

- (UICollectionViewLayout*)collectionViewLayout {
    simulator::mainThreadOnly(self, _cmd);
    return _layout;
}

- (NSInteger)collectionView:(UICollectionView*)collection numberOfItemsInSection:(NSInteger)section {
    return 0;
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)collection
                 cellForItemAtIndexPath:(NSIndexPath*)path {
    return nil;
}

@end
