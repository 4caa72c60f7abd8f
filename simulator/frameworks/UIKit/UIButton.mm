#import "UIKit/UIButton.h"

#import "UIKit/UIColor.h"
#import "UIKit/UIFont.h"
#import "UIKit/UIImage.h"
#import "UIKit/UIImageView.h"
#import "UIKit/UILabel.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/Ownership.h"

#include <map>

using simulator::mainThreadOnly;
using simulator::Retained;

namespace simulator {

// What a button shows in each of its states; what a state does not say is as in the normal state.
template <typename Object> class ByControlState {
  public:
    void set(Object object, UIControlState state) { m_objects[state] = object; }

    Object get(UIControlState state) const {
        const auto own = m_objects.find(state);
        if (own != m_objects.end() && own->second) return own->second.autoreleased();
        return state == UIControlStateNormal ? nil : get(UIControlStateNormal);
    }

  private:
    std::map<UIControlState, Retained<Object>> m_objects;
};

struct ButtonState {
    UIButtonType type = UIButtonTypeCustom;
    ByControlState<NSString*> titles;
    ByControlState<UIColor*> titleColors;
    ByControlState<UIImage*> images;
    ByControlState<UIImage*> backgroundImages;
    Retained<UILabel*> titleLabel;
    Retained<UIImageView*> imageView;
};

} // namespace simulator

@implementation UIButton

+ (instancetype)buttonWithType:(UIButtonType)type {
    UIButton* button = [[[self alloc] initWithFrame:CGRectZero] autorelease];
    button->_buttonState->type = type;
    return button;
}

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _buttonState = new simulator::ButtonState;
    return self;
}

- (void)dealloc {
    delete _buttonState;
    [super dealloc];
}

- (UIButtonType)buttonType {
    mainThreadOnly(self, _cmd);
    return _buttonState->type;
}

- (void)setTitle:(NSString*)title forState:(UIControlState)state {
    mainThreadOnly(self, _cmd);
    _buttonState->titles.set([[title copy] autorelease], state);
    [self setNeedsLayout];
}

- (NSString*)titleForState:(UIControlState)state {
    mainThreadOnly(self, _cmd);
    return _buttonState->titles.get(state);
}

- (void)setTitleColor:(UIColor*)color forState:(UIControlState)state {
    mainThreadOnly(self, _cmd);
    _buttonState->titleColors.set(color, state);
    [self setNeedsLayout];
}

- (UIColor*)titleColorForState:(UIControlState)state {
    mainThreadOnly(self, _cmd);
    return _buttonState->titleColors.get(state);
}

- (void)setImage:(UIImage*)image forState:(UIControlState)state {
    mainThreadOnly(self, _cmd);
    _buttonState->images.set(image, state);
    [self setNeedsLayout];
}

- (UIImage*)imageForState:(UIControlState)state {
    mainThreadOnly(self, _cmd);
    return _buttonState->images.get(state);
}

- (void)setBackgroundImage:(UIImage*)image forState:(UIControlState)state {
    mainThreadOnly(self, _cmd);
    _buttonState->backgroundImages.set(image, state);
}

- (UIImage*)backgroundImageForState:(UIControlState)state {
    mainThreadOnly(self, _cmd);
    return _buttonState->backgroundImages.get(state);
}

- (NSString*)currentTitle {
    return [self titleForState:[self state]];
}

- (UIImage*)currentImage {
    return [self imageForState:[self state]];
}

- (UIImage*)currentBackgroundImage {
    return [self backgroundImageForState:[self state]];
}

- (UILabel*)titleLabel {
    mainThreadOnly(self, _cmd);
    if (!_buttonState->titleLabel) {
        _buttonState->titleLabel = Retained<UILabel*>::adopted([[UILabel alloc] initWithFrame:CGRectZero]);
        [self addSubview:_buttonState->titleLabel.get()];
    }
    return _buttonState->titleLabel.get();
}

- (UIImageView*)imageView {
    mainThreadOnly(self, _cmd);
    if (!_buttonState->imageView) {
        _buttonState->imageView =
            Retained<UIImageView*>::adopted([[UIImageView alloc] initWithFrame:CGRectZero]);
        [self addSubview:_buttonState->imageView.get()];
    }
    return _buttonState->imageView.get();
}

- (CGSize)sizeThatFits:(CGSize)size {
    const CGSize image = [self currentImage] ? [[self currentImage] size] : CGSizeZero;
    const CGSize title =
        [self currentTitle] ? [[self currentTitle] sizeWithFont:[[self titleLabel] font]] : CGSizeZero;
    return {image.width + title.width, std::max(image.height, title.height)};
}

// Picture and title stand side by side in the middle.
- (void)layoutSubviews {
    [super layoutSubviews];
    const CGSize size = [self bounds].size;
    CGSize image = CGSizeZero;
    if ([self currentImage] || _buttonState->imageView) {
        [[self imageView] setImage:[self currentImage]];
        image = [self currentImage] ? [[self currentImage] size] : CGSizeZero;
    }
    CGSize title = CGSizeZero;
    if ([self currentTitle] || _buttonState->titleLabel) {
        UILabel* label = [self titleLabel];
        [label setText:[self currentTitle]];
        if (UIColor* color = [self titleColorForState:[self state]]) [label setTextColor:color];
        title = [self currentTitle] ? [[self currentTitle] sizeWithFont:[label font]] : CGSizeZero;
        title.width = std::min(title.width, std::max<CGFloat>(size.width - image.width, 0));
    }
    const CGFloat left = (size.width - image.width - title.width) / 2;
    [_buttonState->imageView.get()
        setFrame:CGRectMake(left, (size.height - image.height) / 2, image.width, image.height)];
    [_buttonState->titleLabel.get()
        setFrame:CGRectMake(left + image.width, (size.height - title.height) / 2, title.width, title.height)];
}

@end
