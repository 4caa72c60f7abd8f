// UIKit: views, controllers, alerts, gestures, the device. Main thread only, fonts and images excepted.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper {

struct UIView;
struct UIViewController;
struct UINavigationController;

// ---- Colours, fonts, images ----

struct UIColor : NSObject {
    static constexpr FixedString className = "UIColor";

    static UIColor clearColor() { return sendToClass<UIColor, "clearColor", UIColor>(); }
    static UIColor blackColor() { return sendToClass<UIColor, "blackColor", UIColor>(); }
    static UIColor whiteColor() { return sendToClass<UIColor, "whiteColor", UIColor>(); }

    UIColor colorWithAlphaComponent(CGFloat alpha) const {
        return send<UIColor, "colorWithAlphaComponent:", UIColor>(*this, alpha);
    }
};

struct UIFont : NSObject {
    static constexpr FixedString className = "UIFont";

    static UIFont systemFontOfSize(CGFloat points) {
        return sendToClass<UIFont, "systemFontOfSize:", UIFont>(points);
    }
};

struct UIImage : NSObject {
    static constexpr FixedString className = "UIImage";

    // Nil when the file is missing or no image.
    static Owner<UIImage> withContentsOfFile(NSString path) {
        return adopt(send<UIImage, "initWithContentsOfFile:", UIImage>(allocate<UIImage>(), path));
    }
};

enum class NSLineBreakMode : NSInteger { byTruncatingTail = 4 };
enum class NSTextAlignment : NSInteger { center = 1 };

struct NSStringDrawing {
    static constexpr FixedString className = "NSString";
};

inline CGSize sizeOfText(NSString text, UIFont font, CGSize constraint, NSLineBreakMode mode) {
    return send<NSStringDrawing, "sizeWithFont:constrainedToSize:lineBreakMode:", CGSize>(text, font,
                                                                                          constraint, mode);
}

// ---- Gestures ----

enum class UIGestureRecognizerState : NSInteger { possible = 0, began = 1 };

struct UIGestureRecognizer : NSObject {
    static constexpr FixedString className = "UIGestureRecognizer";

    // The delegate is not kept.
    void setDelegate(NSObject delegate) const {
        send<UIGestureRecognizer, "setDelegate:", void>(*this, delegate);
    }
    UIGestureRecognizerState state() const {
        return send<UIGestureRecognizer, "state", UIGestureRecognizerState>(*this);
    }
    UIView view() const;
};

struct UITapGestureRecognizer : UIGestureRecognizer {
    static constexpr FixedString className = "UITapGestureRecognizer";

    static Owner<UITapGestureRecognizer> withTarget(NSObject target, SEL action) {
        return adopt(send<UITapGestureRecognizer, "initWithTarget:action:", UITapGestureRecognizer>(
            allocate<UITapGestureRecognizer>(), target, action));
    }
    void setNumberOfTapsRequired(NSUInteger count) const {
        send<UITapGestureRecognizer, "setNumberOfTapsRequired:", void>(*this, count);
    }
};

struct UILongPressGestureRecognizer : UIGestureRecognizer {
    static constexpr FixedString className = "UILongPressGestureRecognizer";

    static Owner<UILongPressGestureRecognizer> withTarget(NSObject target, SEL action) {
        return adopt(
            send<UILongPressGestureRecognizer, "initWithTarget:action:", UILongPressGestureRecognizer>(
                allocate<UILongPressGestureRecognizer>(), target, action));
    }
    void setMinimumPressDuration(NSTimeInterval seconds) const {
        send<UILongPressGestureRecognizer, "setMinimumPressDuration:", void>(*this, seconds);
    }
};

// ---- Views ----

struct CALayer : NSObject {
    static constexpr FixedString className = "CALayer";

    void setCornerRadius(CGFloat radius) const { send<CALayer, "setCornerRadius:", void>(*this, radius); }
    void setMasksToBounds(bool masks) const { send<CALayer, "setMasksToBounds:", void>(*this, masks); }
};

enum class UIViewAutoresizing : NSUInteger {
    flexibleWidthAndHeight = 2 + 16,
    flexibleMargins = 1 + 4 + 8 + 32,
};
enum class UIViewAnimationOptions : NSUInteger { allowUserInteraction = 2 };

struct UIView : NSObject {
    static constexpr FixedString className = "UIView";

    static Owner<UIView> withFrame(CGRect frame) { return withFrame<UIView>(frame); }

    // `animations` is void(); `completion`, void(bool finished), may be nil.
    static void animate(NSTimeInterval duration, NSTimeInterval delay, UIViewAnimationOptions options,
                        Block animations, Block completion) {
        sendToClass<UIView, "animateWithDuration:delay:options:animations:completion:", void>(
            duration, delay, options, animations, completion);
    }

    CGRect frame() const { return send<UIView, "frame", CGRect>(*this); }
    void setFrame(CGRect frame) const { send<UIView, "setFrame:", void>(*this, frame); }
    CGRect bounds() const { return send<UIView, "bounds", CGRect>(*this); }
    CGPoint center() const { return send<UIView, "center", CGPoint>(*this); }
    void setCenter(CGPoint center) const { send<UIView, "setCenter:", void>(*this, center); }
    void setTag(NSInteger tag) const { send<UIView, "setTag:", void>(*this, tag); }
    // Searches the receiver itself and its subviews at any depth.
    UIView viewWithTag(NSInteger tag) const { return send<UIView, "viewWithTag:", UIView>(*this, tag); }
    void addSubview(UIView view) const { send<UIView, "addSubview:", void>(*this, view); }
    NSArray subviews() const { return send<UIView, "subviews", NSArray>(*this); }
    UIView superview() const { return send<UIView, "superview", UIView>(*this); }
    void removeFromSuperview() const { send<UIView, "removeFromSuperview", void>(*this); }
    void bringSubviewToFront(UIView view) const { send<UIView, "bringSubviewToFront:", void>(*this, view); }
    CALayer layer() const { return send<UIView, "layer", CALayer>(*this); }
    void setHidden(bool hidden) const { send<UIView, "setHidden:", void>(*this, hidden); }
    void setAlpha(CGFloat alpha) const { send<UIView, "setAlpha:", void>(*this, alpha); }
    void setOpaque(bool opaque) const { send<UIView, "setOpaque:", void>(*this, opaque); }
    void setBackgroundColor(UIColor color) const { send<UIView, "setBackgroundColor:", void>(*this, color); }
    void setClipsToBounds(bool clips) const { send<UIView, "setClipsToBounds:", void>(*this, clips); }
    void setUserInteractionEnabled(bool enabled) const {
        send<UIView, "setUserInteractionEnabled:", void>(*this, enabled);
    }
    void setAutoresizingMask(UIViewAutoresizing mask) const {
        send<UIView, "setAutoresizingMask:", void>(*this, mask);
    }
    void setAutoresizesSubviews(bool resizes) const {
        send<UIView, "setAutoresizesSubviews:", void>(*this, resizes);
    }
    void addGestureRecognizer(UIGestureRecognizer recognizer) const {
        send<UIView, "addGestureRecognizer:", void>(*this, recognizer);
    }
    // Private: the controller whose view holds this one.
    UIViewController viewControllerForAncestor() const;

  protected:
    template <ObjectHandle Wrapper> static Owner<Wrapper> withFrame(CGRect frame) {
        return adopt(send<UIView, "initWithFrame:", Wrapper>(allocate<Wrapper>(), frame));
    }
};

inline UIView UIGestureRecognizer::view() const { return send<UIGestureRecognizer, "view", UIView>(*this); }

struct UIImageView : UIView {
    static constexpr FixedString className = "UIImageView";

    static Owner<UIImageView> withFrame(CGRect frame) { return UIView::withFrame<UIImageView>(frame); }
    static Owner<UIImageView> withImage(UIImage image) {
        return adopt(send<UIImageView, "initWithImage:", UIImageView>(allocate<UIImageView>(), image));
    }
};

enum class UIBaselineAdjustment : NSInteger { alignBaselines = 0 };

struct UILabel : UIView {
    static constexpr FixedString className = "UILabel";

    static Owner<UILabel> withFrame(CGRect frame) { return UIView::withFrame<UILabel>(frame); }

    NSString text() const { return send<UILabel, "text", NSString>(*this); }
    void setText(NSString text) const { send<UILabel, "setText:", void>(*this, text); }
    void setFont(UIFont font) const { send<UILabel, "setFont:", void>(*this, font); }
    void setTextColor(UIColor color) const { send<UILabel, "setTextColor:", void>(*this, color); }
    void setTextAlignment(NSTextAlignment alignment) const {
        send<UILabel, "setTextAlignment:", void>(*this, alignment);
    }
    void setNumberOfLines(NSInteger lines) const { send<UILabel, "setNumberOfLines:", void>(*this, lines); }
    void setBaselineAdjustment(UIBaselineAdjustment adjustment) const {
        send<UILabel, "setBaselineAdjustment:", void>(*this, adjustment);
    }
    void setAdjustsFontSizeToFitWidth(bool adjusts) const {
        send<UILabel, "setAdjustsFontSizeToFitWidth:", void>(*this, adjusts);
    }
    void setAdjustsLetterSpacingToFitWidth(bool adjusts) const {
        send<UILabel, "setAdjustsLetterSpacingToFitWidth:", void>(*this, adjusts);
    }
    void setMinimumScaleFactor(CGFloat factor) const {
        send<UILabel, "setMinimumScaleFactor:", void>(*this, factor);
    }
};

struct UITextField : UIView {
    static constexpr FixedString className = "UITextField";

    NSString text() const { return send<UITextField, "text", NSString>(*this); }
    void setPlaceholder(NSString text) const { send<UITextField, "setPlaceholder:", void>(*this, text); }
    void setSecureTextEntry(bool secure) const {
        send<UITextField, "setSecureTextEntry:", void>(*this, secure);
    }
    void setFont(UIFont font) const { send<UITextField, "setFont:", void>(*this, font); }
};

enum class UIBlurEffectStyle : NSInteger { dark = 2 };

struct UIBlurEffect : NSObject {
    static constexpr FixedString className = "UIBlurEffect";

    static UIBlurEffect effectWithStyle(UIBlurEffectStyle style) {
        return sendToClass<UIBlurEffect, "effectWithStyle:", UIBlurEffect>(style);
    }
};

struct UIVisualEffectView : UIView {
    static constexpr FixedString className = "UIVisualEffectView";

    static Owner<UIVisualEffectView> withEffect(UIBlurEffect effect) {
        return adopt(send<UIVisualEffectView, "initWithEffect:", UIVisualEffectView>(
            allocate<UIVisualEffectView>(), effect));
    }
};

enum class UIActivityIndicatorViewStyle : NSInteger { white = 1 };

struct UIActivityIndicatorView : UIView {
    static constexpr FixedString className = "UIActivityIndicatorView";

    static Owner<UIActivityIndicatorView> withStyle(UIActivityIndicatorViewStyle style) {
        return adopt(
            send<UIActivityIndicatorView, "initWithActivityIndicatorStyle:", UIActivityIndicatorView>(
                allocate<UIActivityIndicatorView>(), style));
    }
    void setHidesWhenStopped(bool hides) const {
        send<UIActivityIndicatorView, "setHidesWhenStopped:", void>(*this, hides);
    }
    void startAnimating() const { send<UIActivityIndicatorView, "startAnimating", void>(*this); }
    void stopAnimating() const { send<UIActivityIndicatorView, "stopAnimating", void>(*this); }
};

struct UITableViewCell : UIView {
    static constexpr FixedString className = "UITableViewCell";

    UILabel textLabel() const { return send<UITableViewCell, "textLabel", UILabel>(*this); }
};

struct UICollectionView : UIView {
    static constexpr FixedString className = "UICollectionView";

    // Nil for an item that is not on the screen.
    UIView cellForItem(NSIndexPath path) const {
        return send<UICollectionView, "cellForItemAtIndexPath:", UIView>(*this, path);
    }
};

struct UITabBar : UIView {
    static constexpr FixedString className = "UITabBar";

    NSArray items() const { return send<UITabBar, "items", NSArray>(*this); }
};

// ---- Controllers ----

enum class UIModalPresentationStyle : NSInteger { popover = 7 };

struct UIPopoverPresentationController : NSObject {
    static constexpr FixedString className = "UIPopoverPresentationController";

    void setSourceView(UIView view) const {
        send<UIPopoverPresentationController, "setSourceView:", void>(*this, view);
    }
    void setSourceRect(CGRect rect) const {
        send<UIPopoverPresentationController, "setSourceRect:", void>(*this, rect);
    }
};

enum class UIBarButtonItemStyle : NSInteger { plain = 0 };

struct UIBarButtonItem : NSObject {
    static constexpr FixedString className = "UIBarButtonItem";

    static Owner<UIBarButtonItem> withTitle(NSString title, UIBarButtonItemStyle style, NSObject target,
                                            SEL action) {
        return adopt(send<UIBarButtonItem, "initWithTitle:style:target:action:", UIBarButtonItem>(
            allocate<UIBarButtonItem>(), title, style, target, action));
    }
};

struct UINavigationItem : NSObject {
    static constexpr FixedString className = "UINavigationItem";

    NSArray leftBarButtonItems() const {
        return send<UINavigationItem, "leftBarButtonItems", NSArray>(*this);
    }
    void setLeftBarButtonItems(NSArray items) const {
        send<UINavigationItem, "setLeftBarButtonItems:", void>(*this, items);
    }
};

struct UINavigationBar : UIView {
    static constexpr FixedString className = "UINavigationBar";

    UINavigationItem topItem() const { return send<UINavigationBar, "topItem", UINavigationItem>(*this); }
};

struct UIViewController : NSObject {
    static constexpr FixedString className = "UIViewController";

    UIView view() const { return send<UIViewController, "view", UIView>(*this); }
    UINavigationController navigationController() const;
    void present(UIViewController presented, bool animated, Block completion) const {
        send<UIViewController, "presentViewController:animated:completion:", void>(*this, presented, animated,
                                                                                   completion);
    }
    void setModalPresentationStyle(UIModalPresentationStyle style) const {
        send<UIViewController, "setModalPresentationStyle:", void>(*this, style);
    }
    UIPopoverPresentationController popoverPresentationController() const {
        return send<UIViewController, "popoverPresentationController", UIPopoverPresentationController>(
            *this);
    }
};

inline UIViewController UIView::viewControllerForAncestor() const {
    return send<UIView, "_viewControllerForAncestor", UIViewController>(*this);
}

struct UINavigationController : UIViewController {
    static constexpr FixedString className = "UINavigationController";

    UINavigationBar navigationBar() const {
        return send<UINavigationController, "navigationBar", UINavigationBar>(*this);
    }
    void popToRootViewController(bool animated) const {
        send<UINavigationController, "popToRootViewControllerAnimated:", NSArray>(*this, animated);
    }
};

inline UINavigationController UIViewController::navigationController() const {
    return send<UIViewController, "navigationController", UINavigationController>(*this);
}

enum class UIAlertControllerStyle : NSInteger { actionSheet = 0, alert = 1 };
enum class UIAlertActionStyle : NSInteger { normal = 0, cancel = 1 };

struct UIAlertAction : NSObject {
    static constexpr FixedString className = "UIAlertAction";

    // The handler is void(UIAlertAction action); it may be nil.
    static UIAlertAction actionWithTitle(NSString title, UIAlertActionStyle style, Block handler) {
        return sendToClass<UIAlertAction, "actionWithTitle:style:handler:", UIAlertAction>(title, style,
                                                                                           handler);
    }
};

struct UIAlertController : UIViewController {
    static constexpr FixedString className = "UIAlertController";

    static UIAlertController alertController(NSString title, NSString message, UIAlertControllerStyle style) {
        return sendToClass<UIAlertController, "alertControllerWithTitle:message:preferredStyle:",
                           UIAlertController>(title, message, style);
    }
    void addAction(UIAlertAction action) const { send<UIAlertController, "addAction:", void>(*this, action); }
    // The handler is void(UITextField field).
    void addTextField(Block configuration) const {
        send<UIAlertController, "addTextFieldWithConfigurationHandler:", void>(*this, configuration);
    }
    NSArray textFields() const { return send<UIAlertController, "textFields", NSArray>(*this); }
};

// ---- Application, screen, device ----

struct UIScreen : NSObject {
    static constexpr FixedString className = "UIScreen";

    static UIScreen mainScreen() { return sendToClass<UIScreen, "mainScreen", UIScreen>(); }

    CGRect bounds() const { return send<UIScreen, "bounds", CGRect>(*this); }
};

struct UIWindow : UIView {
    static constexpr FixedString className = "UIWindow";

    UIViewController rootViewController() const {
        return send<UIWindow, "rootViewController", UIViewController>(*this);
    }
};

struct UIApplication : NSObject {
    static constexpr FixedString className = "UIApplication";

    static UIApplication sharedApplication() {
        return sendToClass<UIApplication, "sharedApplication", UIApplication>();
    }

    UIWindow keyWindow() const { return send<UIApplication, "keyWindow", UIWindow>(*this); }
};

struct UITapticEngine : NSObject {
    static constexpr FixedString className = "_UITapticEngine";

    void actuateFeedback(NSInteger feedback) const {
        send<UITapticEngine, "actuateFeedback:", void>(*this, feedback);
    }
};

enum class UIUserInterfaceIdiom : NSInteger { phone = 0, pad = 1 };

struct UIDevice : NSObject {
    static constexpr FixedString className = "UIDevice";

    static UIDevice currentDevice() { return sendToClass<UIDevice, "currentDevice", UIDevice>(); }

    NSString systemVersion() const { return send<UIDevice, "systemVersion", NSString>(*this); }
    UIUserInterfaceIdiom userInterfaceIdiom() const {
        return send<UIDevice, "userInterfaceIdiom", UIUserInterfaceIdiom>(*this);
    }
    // Private, and missing on older systems: ask respondsTo first.
    UITapticEngine tapticEngine() const { return send<UIDevice, "_tapticEngine", UITapticEngine>(*this); }
};

struct UIPasteboard : NSObject {
    static constexpr FixedString className = "UIPasteboard";

    static UIPasteboard generalPasteboard() {
        return sendToClass<UIPasteboard, "generalPasteboard", UIPasteboard>();
    }
    void setString(NSString text) const { send<UIPasteboard, "setString:", void>(*this, text); }
};

struct UICollectionViewFlowLayout : NSObject {
    static constexpr FixedString className = "UICollectionViewFlowLayout";
};

struct UIActivity : NSObject {
    static constexpr FixedString className = "UIActivity";
};

struct UISaveToCameraRollActivity : UIActivity {
    static constexpr FixedString className = "UISaveToCameraRollActivity";

    NSInteger imageCount() const { return send<UISaveToCameraRollActivity, "imageCount", NSInteger>(*this); }
};

} // namespace rollkeeper
