#import "PhotosUI/PUAlbumListCell.h"

#include <objc/runtime.h>

namespace {

constexpr CGFloat titleHeight = 20;
constexpr CGFloat subtitleHeight = 16;
constexpr CGFloat gapBelowCover = 4;
constexpr CGRect deleteButtonFrame = {{-6, -6}, {29, 29}};

// Photos had a button class of its own only from iOS 10 on.
UIButton* makeDeleteButton() {
    Class buttonClass = objc_getClass("PXUIButton");
    return [buttonClass ? buttonClass : [UIButton class] buttonWithType:UIButtonTypeCustom];
}

} // namespace

@implementation PUAlbumListCellContentView

@synthesize title = _title, subtitle = _subtitle, editCapabilities = _editCapabilities, editing = _editing;
@synthesize delegate = _delegate, stackView = _stackView;

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
    for (UIView* view in @[ _stackView, _titleTextField, _subtitleLabel ])
        [self addSubview:view];
    return self;
}

- (void)dealloc {
    [_stackView release];
    [_titleTextField release];
    [_subtitleLabel release];
    [_deleteButton release];
    [_title release];
    [_subtitle release];
    [super dealloc];
}

- (void)setTitle:(NSString*)title {
    if (_title != title) {
        [_title release];
        _title = [title copy];
    }
    [_titleTextField setText:title];
}

- (void)setSubtitle:(NSString*)subtitle {
    if (_subtitle != subtitle) {
        [_subtitle release];
        _subtitle = [subtitle copy];
    }
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
    return (_editCapabilities & PUAlbumEditCapabilitiesDelete) != 0 ? YES : NO;
}

- (UIButton*)_deleteButton {
    return _deleteButton;
}

- (UITextField*)_titleTextField {
    return _titleTextField;
}

- (UILabel*)_subtitleLabel {
    return _subtitleLabel;
}

- (void)_updateDeleteButton {
    BOOL wanted = _editing && (_editCapabilities & PUAlbumEditCapabilitiesDelete) != 0 &&
                  [self showsDeleteButtonWhenEditing];
    if (wanted && _deleteButton == nil) {
        _deleteButton = [makeDeleteButton() retain];
        [_deleteButton setFrame:deleteButtonFrame];
        [_deleteButton setAccessibilityLabel:@"Delete"];
        [_deleteButton addTarget:self
                          action:@selector(_deleteAction:)
                forControlEvents:UIControlEventTouchUpInside];
        [self addSubview:_deleteButton];
    } else if (!wanted && _deleteButton != nil) {
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
    CGFloat side = [self bounds].size.width;
    CGFloat titleTop = side + gapBelowCover;
    [_stackView setFrame:CGRectMake(0, 0, side, side)];
    [_titleTextField setFrame:CGRectMake(0, titleTop, side, titleHeight)];
    [_subtitleLabel setFrame:CGRectMake(0, titleTop + titleHeight, side, subtitleHeight)];
    [_deleteButton setFrame:deleteButtonFrame];
}

@end
