#import "PhotosUI/PUAlbumListCell.h"

#include "UIKit/model/Outlines.h"

#include <objc/runtime.h>

namespace {

constexpr CGFloat coverCornerRadius = 5;
constexpr CGFloat titleHeight = 20;
constexpr CGFloat subtitleHeight = 16;
constexpr CGFloat gapBelowCover = 4;
constexpr CGRect deleteButtonFrame = {{-6, -6}, {29, 29}};

} // namespace

@implementation PUStackView

@synthesize coverView = _coverView;

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _coverView = [[UIImageView alloc] initWithFrame:[self bounds]];
    [_coverView setContentMode:UIViewContentModeScaleAspectFill];
    [_coverView setBackgroundColor:[UIColor colorWithWhite:0.92 alpha:1]];
    [_coverView setClipsToBounds:YES];
    [[_coverView layer] setCornerRadius:coverCornerRadius];
    _symbolView = [[UIImageView alloc] initWithFrame:CGRectZero];
    [_symbolView setTintColor:[UIColor colorWithWhite:0.75 alpha:1]];
    [_coverView addSubview:_symbolView];
    [self addSubview:_coverView];
    // nil before iOS 10, when the corners were part of the picture.
    _cornerOverlayView = [[objc_getClass("PXRoundedCornerOverlayView") alloc] initWithFrame:[self bounds]];
    if (_cornerOverlayView != nil) [self addSubview:_cornerOverlayView];
    return self;
}

- (void)dealloc {
    [_coverView release];
    [_symbolView release];
    [_cornerOverlayView release];
    [super dealloc];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [_coverView setFrame:[self bounds]];
    [_symbolView
        setFrame:CGRectInset([self bounds], [self bounds].size.width / 3, [self bounds].size.height / 3)];
    [_cornerOverlayView setFrame:[self bounds]];
}

- (void)setCover:(UIImage*)cover orSymbol:(const char*)outline {
    [_coverView setImage:cover];
    [_symbolView setImage:cover == nil ? [UIImage imageWithOutline:outline] : nil];
}

@end

@implementation PUAlbumListCellContentView

@synthesize editCapabilities = _editCapabilities, editing = _editing, delegate = _delegate;
@synthesize stackView = _stackView, _titleTextField = _titleTextField, _subtitleLabel = _subtitleLabel,
            _deleteButton = _deleteButton;

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _stackView = [[PUStackView alloc] initWithFrame:CGRectMake(0, 0, frame.size.width, frame.size.width)];
    _titleTextField = [[UITextField alloc] initWithFrame:CGRectZero];
    [_titleTextField setFont:[UIFont systemFontOfSize:15]];
    // The title is typed into only while the album is being renamed; until then touches belong to the cell.
    [_titleTextField setUserInteractionEnabled:NO];
    _subtitleLabel = [[UILabel alloc] initWithFrame:CGRectZero];
    [_subtitleLabel setFont:[UIFont systemFontOfSize:12]];
    [_subtitleLabel setTextColor:[UIColor colorWithWhite:0.55 alpha:1]];
    for (UIView* view in @[ _stackView, _titleTextField, _subtitleLabel ])
        [self addSubview:view];
    return self;
}

- (void)dealloc {
    [_stackView release];
    [_titleTextField release];
    [_subtitleLabel release];
    [_deleteButton release];
    [super dealloc];
}

- (NSString*)title {
    return [_titleTextField text];
}

- (void)setTitle:(NSString*)title {
    [_titleTextField setText:title];
}

- (NSString*)subtitle {
    return [_subtitleLabel text];
}

- (void)setSubtitle:(NSString*)subtitle {
    [_subtitleLabel setText:subtitle];
}

- (void)setEditCapabilities:(NSUInteger)capabilities {
    _editCapabilities = capabilities;
    [self _updateDeleteButton];
}

- (void)setEditing:(BOOL)editing {
    _editing = editing;
    [self _updateDeleteButton];
    [self setNeedsLayout];
}

- (BOOL)showsDeleteButtonWhenEditing {
    return (_editCapabilities & PUAlbumEditCapabilitiesDelete) != 0;
}

- (void)_updateDeleteButton {
    const bool mayBeDeleted = (_editCapabilities & PUAlbumEditCapabilitiesDelete) != 0;
    const bool isWanted = _editing && mayBeDeleted && [self showsDeleteButtonWhenEditing];
    if (isWanted == (_deleteButton != nil)) return;
    if (isWanted) {
        // Photos has a button class of its own from iOS 10 on.
        Class ownClass = objc_getClass("PXUIButton");
        Class buttonClass = ownClass != Nil ? ownClass : [UIButton class];
        _deleteButton = [[buttonClass buttonWithType:UIButtonTypeCustom] retain];
        [_deleteButton setFrame:deleteButtonFrame];
        [_deleteButton setBackgroundColor:[UIColor colorWithWhite:0.5 alpha:1]];
        [[_deleteButton layer] setCornerRadius:deleteButtonFrame.size.width / 2];
        [_deleteButton setTintColor:[UIColor whiteColor]];
        [_deleteButton setImage:[UIImage imageWithOutline:simulator::outline::cross]
                       forState:UIControlStateNormal];
        [_deleteButton setAccessibilityLabel:@"Delete"];
        [_deleteButton addTarget:self
                          action:@selector(_deleteAction:)
                forControlEvents:UIControlEventTouchUpInside];
        [self addSubview:_deleteButton];
    } else {
        [_deleteButton removeFromSuperview];
        [_deleteButton release];
        _deleteButton = nil;
    }
}

- (void)_deleteAction:(id)sender {
    [_delegate albumListCellContentView:self performDeleteAction:sender];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [self _updateDeleteButton];
    const CGFloat side = [self bounds].size.width;
    const CGFloat titleTop = side + gapBelowCover;
    [_stackView setFrame:CGRectMake(0, 0, side, side)];
    [_titleTextField setFrame:CGRectMake(0, titleTop, side, titleHeight)];
    [_subtitleLabel setFrame:CGRectMake(0, titleTop + titleHeight, side, subtitleHeight)];
    [_deleteButton setFrame:deleteButtonFrame];
}

@end

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
