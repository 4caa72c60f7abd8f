#import "UIKit/UITableView.h"

#import "UIKit/UIFont.h"
#import "UIKit/UIImageView.h"
#import "UIKit/UILabel.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/Ownership.h"

using simulator::mainThreadOnly;
using simulator::Retained;

namespace {

constexpr CGFloat margin = 15;
constexpr CGFloat accessoryWidth = 33;
constexpr CGFloat defaultHeight = 44;

} // namespace

namespace simulator {

struct TableCellState {
    Retained<NSString*> reuseIdentifier;
    Retained<UIView*> contentView;
    Retained<UILabel*> textLabel;
    Retained<UILabel*> detailLabel;
    Retained<UIImageView*> imageView;
    Retained<UIView*> accessoryView;
    UITableViewCellStyle style = UITableViewCellStyleDefault;
    UITableViewCellAccessoryType accessoryType = UITableViewCellAccessoryNone;
    bool selected = false;
};

} // namespace simulator

@implementation UITableViewCell

- (instancetype)initWithFrame:(CGRect)frame {
    return [self initWithStyle:UITableViewCellStyleDefault reuseIdentifier:nil];
}

- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString*)reuseIdentifier {
    self = [super initWithFrame:CGRectMake(0, 0, 320, defaultHeight)];
    _cellState = new simulator::TableCellState;
    _cellState->style = style;
    _cellState->reuseIdentifier = Retained<NSString*>::copyOf(reuseIdentifier);
    _cellState->contentView = Retained<UIView*>::adopted([[UIView alloc] initWithFrame:[self bounds]]);
    [_cellState->contentView.get()
        setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [self addSubview:_cellState->contentView.get()];
    return self;
}

- (void)dealloc {
    delete _cellState;
    [super dealloc];
}

- (NSString*)reuseIdentifier {
    mainThreadOnly(self, _cmd);
    return _cellState->reuseIdentifier.get();
}

- (UIView*)contentView {
    mainThreadOnly(self, _cmd);
    return _cellState->contentView.get();
}

- (UILabel*)textLabel {
    mainThreadOnly(self, _cmd);
    if (!_cellState->textLabel) _cellState->textLabel = [self newLabelOfSize:17];
    return _cellState->textLabel.get();
}

- (UILabel*)detailTextLabel {
    mainThreadOnly(self, _cmd);
    if (_cellState->style == UITableViewCellStyleDefault) return nil;
    if (!_cellState->detailLabel)
        _cellState->detailLabel =
            [self newLabelOfSize:_cellState->style == UITableViewCellStyleValue1 ? 17 : 12];
    return _cellState->detailLabel.get();
}

- (Retained<UILabel*>)newLabelOfSize:(CGFloat)pointSize {
    UILabel* label = [[UILabel alloc] initWithFrame:CGRectZero];
    [label setFont:[UIFont systemFontOfSize:pointSize]];
    [[self contentView] addSubview:label];
    [self setNeedsLayout];
    return Retained<UILabel*>::adopted(label);
}

- (UIImageView*)imageView {
    mainThreadOnly(self, _cmd);
    if (!_cellState->imageView) {
        _cellState->imageView =
            Retained<UIImageView*>::adopted([[UIImageView alloc] initWithFrame:CGRectZero]);
        [[self contentView] addSubview:_cellState->imageView.get()];
    }
    return _cellState->imageView.get();
}

- (UITableViewCellAccessoryType)accessoryType {
    mainThreadOnly(self, _cmd);
    return _cellState->accessoryType;
}

- (void)setAccessoryType:(UITableViewCellAccessoryType)type {
    mainThreadOnly(self, _cmd);
    _cellState->accessoryType = type;
}

- (UIView*)accessoryView {
    mainThreadOnly(self, _cmd);
    return _cellState->accessoryView.get();
}

- (void)setAccessoryView:(UIView*)view {
    mainThreadOnly(self, _cmd);
    [_cellState->accessoryView.get() removeFromSuperview];
    _cellState->accessoryView = view;
    [self addSubview:view];
}

- (BOOL)isSelected {
    mainThreadOnly(self, _cmd);
    return _cellState->selected ? YES : NO;
}

- (void)setSelected:(BOOL)selected {
    mainThreadOnly(self, _cmd);
    _cellState->selected = selected;
}

- (void)prepareForReuse {
    mainThreadOnly(self, _cmd);
    _cellState->selected = false;
}

- (void)layoutSubviews {
    [super layoutSubviews];
    const CGSize size = [self bounds].size;
    if (UIView* accessory = [self accessoryView]) {
        const CGSize own = [accessory bounds].size;
        [accessory setCenter:CGPointMake(size.width - margin - own.width / 2, size.height / 2)];
    }
    CGFloat left = margin;
    if (UIImage* image = [_cellState->imageView.get() image]) {
        const CGSize own = [_cellState->imageView.get() sizeThatFits:CGSizeZero];
        [_cellState->imageView.get()
            setFrame:CGRectMake(left, (size.height - own.height) / 2, own.width, own.height)];
        left += image ? own.width + margin : 0;
    }
    const CGFloat width = std::max<CGFloat>(size.width - left - accessoryWidth, 0);
    UILabel* title = _cellState->textLabel.get();
    UILabel* detail = _cellState->detailLabel.get();
    if ([[detail text] length] == 0) {
        [title setFrame:CGRectMake(left, 0, width, size.height)];
        [detail setFrame:CGRectZero];
    } else if (_cellState->style == UITableViewCellStyleValue1) {
        const CGFloat detailWidth = std::min([detail sizeThatFits:CGSizeZero].width, width / 2);
        [title setFrame:CGRectMake(left, 0, width - detailWidth, size.height)];
        [detail setFrame:CGRectMake(left + width - detailWidth, 0, detailWidth, size.height)];
    } else {
        const CGFloat titleHeight = size.height * 0.6;
        [title setFrame:CGRectMake(left, 0, width, titleHeight)];
        [detail setFrame:CGRectMake(left, titleHeight, width, size.height - titleHeight)];
    }
}

@end
