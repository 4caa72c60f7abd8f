#import "UIKit/DisplayViews.h"
#import "UIKit/UIImage.h"
#import "UIKit/UITableView.h"

#include <algorithm>

namespace {

constexpr CGFloat margin = 15;
constexpr CGFloat accessoryWidth = 33;
constexpr CGFloat defaultHeight = 44;

} // namespace

@implementation UITableViewCell

@synthesize accessoryType = _accessoryType, accessoryView = _accessoryView;

- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString*)reuseIdentifier {
    self = [self initWithFrame:CGRectMake(0, 0, 320, defaultHeight)];
    _cellStyle = style;
    [self setReuseIdentifier:reuseIdentifier];
    return self;
}

- (void)dealloc {
    [_textLabel release];
    [_imageView release];
    [_detailTextLabel release];
    [_accessoryView release];
    [super dealloc];
}

- (UILabel*)textLabel {
    if (_textLabel == nil) _textLabel = [self newLabelOfSize:17];
    return _textLabel;
}

- (UIImageView*)imageView {
    if (_imageView == nil) {
        _imageView = [[UIImageView alloc] initWithFrame:CGRectZero];
        [[self contentView] addSubview:_imageView];
    }
    return _imageView;
}

- (UILabel*)detailTextLabel {
    if (_detailTextLabel == nil && _cellStyle != UITableViewCellStyleDefault)
        _detailTextLabel = [self newLabelOfSize:_cellStyle == UITableViewCellStyleValue1 ? 17 : 12];
    return _detailTextLabel;
}

- (UILabel*)newLabelOfSize:(CGFloat)pointSize {
    UILabel* label = [[UILabel alloc] initWithFrame:CGRectZero];
    [label setFont:[UIFont systemFontOfSize:pointSize]];
    [[self contentView] addSubview:label];
    [self setNeedsLayout];
    return label;
}

- (void)setAccessoryView:(UIView*)view {
    [_accessoryView removeFromSuperview];
    [_accessoryView autorelease];
    _accessoryView = [view retain];
    [self addSubview:view];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    const CGSize size = [self bounds].size;
    const CGSize accessory = _accessoryView != nil ? [_accessoryView bounds].size : CGSizeZero;
    [_accessoryView setCenter:CGPointMake(size.width - margin - accessory.width / 2, size.height / 2)];
    const CGSize picture = [_imageView image] != nil ? [[_imageView image] size] : CGSizeZero;
    [_imageView
        setFrame:CGRectMake(margin, (size.height - picture.height) / 2, picture.width, picture.height)];
    const CGFloat left = picture.width > 0 ? 2 * margin + picture.width : margin;
    const CGFloat width = std::max<CGFloat>(size.width - left - accessoryWidth, 0);
    if ([[_detailTextLabel text] length] == 0) {
        [_textLabel setFrame:CGRectMake(left, 0, width, size.height)];
        [_detailTextLabel setFrame:CGRectZero];
    } else if (_cellStyle == UITableViewCellStyleValue1) {
        const CGFloat detailWidth = std::min([_detailTextLabel sizeThatFits:CGSizeZero].width, width / 2);
        [_textLabel setFrame:CGRectMake(left, 0, width - detailWidth, size.height)];
        [_detailTextLabel setFrame:CGRectMake(left + width - detailWidth, 0, detailWidth, size.height)];
    } else {
        const CGFloat titleHeight = size.height * 0.6;
        [_textLabel setFrame:CGRectMake(left, 0, width, titleHeight)];
        [_detailTextLabel setFrame:CGRectMake(left, titleHeight, width, size.height - titleHeight)];
    }
}

@end
