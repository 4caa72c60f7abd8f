#import "PhotosUI/PUAlbumListCell.h"

@implementation PUAlbumListCell

@synthesize albumListCellContentView = _albumListCellContentView;

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _albumListCellContentView =
        [[PUAlbumListCellContentView alloc] initWithFrame:[[self contentView] bounds]];
    [[self contentView] addSubview:_albumListCellContentView];
    return self;
}

- (void)dealloc {
    [_albumListCellContentView release];
    [super dealloc];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [_albumListCellContentView setFrame:[[self contentView] bounds]];
}

@end

@implementation PUAlbumListTableViewCell

@synthesize albumListCellContentView = _albumListCellContentView;

- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString*)reuseIdentifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier];
    if (!self) return nil;
    _albumListCellContentView =
        [[PUAlbumListCellContentView alloc] initWithFrame:[[self contentView] bounds]];
    [[self contentView] addSubview:_albumListCellContentView];
    return self;
}

- (void)dealloc {
    [_albumListCellContentView release];
    [super dealloc];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [_albumListCellContentView setFrame:[[self contentView] bounds]];
}

@end
