#import "PhotosUICore/PXGadgets.h"

namespace {

NSString* const cellIdentifier = @"item";
constexpr CGFloat margin = 16;
constexpr CGFloat spacing = 12;
constexpr CGFloat rowHeight = 44;

} // namespace

@implementation PXGadgetViewController
@end

@implementation PXHorizontalCollectionGadget

- (void)dealloc {
    [_collectionView setDataSource:nil];
    [_collectionView setDelegate:nil];
    [_collectionView release];
    [super dealloc];
}

- (UICollectionView*)collectionView {
    [self view];
    return _collectionView;
}

- (CGSize)itemSize {
    return CGSizeZero;
}

- (Class)cellClass {
    return [UICollectionViewCell class];
}

- (void)configureCell:(UICollectionViewCell*)cell atIndexPath:(NSIndexPath*)path {
}

- (void)viewDidLoad {
    [super viewDidLoad];
    UICollectionViewFlowLayout* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
    [layout setScrollDirection:UICollectionViewScrollDirectionHorizontal];
    [layout setSectionInset:UIEdgeInsets{0, margin, 0, margin}];
    [layout setMinimumLineSpacing:spacing];
    _collectionView = [[UICollectionView alloc] initWithFrame:[[self view] bounds]
                                         collectionViewLayout:layout];
    [_collectionView setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [_collectionView registerClass:[self cellClass] forCellWithReuseIdentifier:cellIdentifier];
    [_collectionView setDataSource:self];
    [_collectionView setDelegate:self];
    [[self view] addSubview:_collectionView];
}

- (void)viewWillLayoutSubviews {
    [super viewWillLayoutSubviews];
    [[_collectionView collectionViewLayout] setItemSize:[self itemSize]];
}

- (NSInteger)collectionView:(UICollectionView*)collectionView numberOfItemsInSection:(NSInteger)section {
    return 0;
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)collectionView
                 cellForItemAtIndexPath:(NSIndexPath*)path {
    UICollectionViewCell* cell = [collectionView dequeueReusableCellWithReuseIdentifier:cellIdentifier
                                                                           forIndexPath:path];
    [self configureCell:cell atIndexPath:path];
    return cell;
}

- (UIViewController*)previewViewControllerForItemAtIndexPath:(NSIndexPath*)path {
    return nil;
}

- (UIViewController*)previewViewControllerAtLocation:(CGPoint)location
                                      fromSourceView:(UIView*)sourceView
                                       outSourceRect:(CGRect*)sourceRect {
    const CGPoint place = [_collectionView convertPoint:location fromView:sourceView];
    NSIndexPath* path = [_collectionView indexPathForItemAtPoint:place];
    if (path == nil) return nil;
    const CGRect frame = [[_collectionView cellForItemAtIndexPath:path] frame];
    *sourceRect = {[_collectionView convertPoint:frame.origin toView:sourceView], frame.size};
    return [self previewViewControllerForItemAtIndexPath:path];
}

@end

@implementation PXNavigationListGadget

@synthesize table = _table, collections = _collections, delegate = _delegate;

- (instancetype)init {
    self = [super init];
    _table = [[UITableView alloc] initWithFrame:CGRectZero style:UITableViewStylePlain];
    [_table setDataSource:self];
    [_table setDelegate:self];
    return self;
}

- (void)dealloc {
    [_table setDataSource:nil];
    [_table setDelegate:nil];
    [_table release];
    [_collections release];
    [_details release];
    [super dealloc];
}

- (void)showCollections:(NSArray*)collections details:(NSArray*)details {
    [_collections autorelease];
    _collections = [collections copy];
    [_details autorelease];
    _details = [details copy];
    [_table reloadData];
}

- (CGFloat)height {
    return static_cast<CGFloat>([_collections count]) * rowHeight;
}

- (NSInteger)tableView:(UITableView*)table numberOfRowsInSection:(NSInteger)section {
    return static_cast<NSInteger>([_collections count]);
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path {
    UITableViewCell* cell = [table dequeueReusableCellWithIdentifier:cellIdentifier];
    if (cell == nil)
        cell = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleValue1
                                       reuseIdentifier:cellIdentifier] autorelease];
    const auto row = static_cast<NSUInteger>([path row]);
    [[cell textLabel] setText:[[_collections objectAtIndex:row] localizedTitle]];
    [[cell detailTextLabel] setText:[_details objectAtIndex:row]];
    [cell setAccessoryType:UITableViewCellAccessoryDisclosureIndicator];
    return cell;
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path {
    [self navigateToCollection:[_collections objectAtIndex:static_cast<NSUInteger>([path row])]
                      animated:YES
                    completion:nil];
}

- (void)navigateToCollection:(PHCollection*)collection
                    animated:(BOOL)animated
                  completion:(void (^)(BOOL success))completion {
    [_delegate navigateToCollection:collection animated:animated completion:completion];
}

@end
