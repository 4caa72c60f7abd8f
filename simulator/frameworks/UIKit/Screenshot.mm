#import "UIKit/UIKit.h"
#import "UIKit/ViewTree.h"
#import "UIKit/internal/Bars.h"
#import "UIKit/internal/Casts.h"
#import "UIKit/internal/Containers.h"
#import "UIKit/internal/ListView.h"
#import "UIKit/internal/Palette.h"
#import "UIKit/internal/Panels.h"
#import "UIKit/internal/Text.h"
#import "UIKit/internal/ViewInternals.h"
#include "UIKit/model/Outlines.h"
#include "UIKit/model/SvgCanvas.h"
#include "device/strings.h"

namespace simulator {

namespace {

using namespace palette;

constexpr CGFloat leastVisibleAlpha = 0.01;

SvgColor asSvg(UIColor* color) {
    SvgColor result;
    [color getRed:&result.red green:&result.green blue:&result.blue alpha:&result.alpha];
    return result;
}

SvgFit fitOf(UIView* view) {
    if ([view contentMode] == UIViewContentModeScaleAspectFit) return SvgFit::whole;
    return [view contentMode] == UIViewContentModeScaleAspectFill ? SvgFit::fill : SvgFit::stretch;
}

void drawPicture(SvgCanvas& canvas, UIImageView* view) {
    UIImage* image = [view image];
    if (image == nil) return;
    if (const char* outline = [image outline])
        canvas.symbol([view bounds], outline, [view tintColor] != nil ? asSvg([view tintColor]) : blue);
    else if ([image sceneryNumber] >= 0)
        canvas.scenery([view bounds], fitOf(view), [image pixelSize],
                       static_cast<std::uint64_t>([image sceneryNumber]));
    else
        canvas.picture([view bounds], fitOf(view), [image pixelSize],
                       text([UIImagePNGRepresentation(image) base64EncodedStringWithOptions:0]));
}

// The lines stand one below the other in the vertical middle; text of one line is cut off, not wrapped.
void drawLabel(SvgCanvas& canvas, UILabel* label) {
    const CGRect bounds = [label bounds];
    NSArray* lines = [label numberOfLines] == 1 ? [NSArray arrayWithObjects:[label text], nil]
                                                : linesOfText([label text], [label font], bounds.size.width);
    const CGFloat height = [[label font] lineHeight];
    CGFloat y = CGRectGetMidY(bounds) - height * static_cast<CGFloat>([lines count]) / 2;
    for (NSString* line in lines) {
        canvas.line(CGRectMake(bounds.origin.x, y, bounds.size.width, height), text(line),
                    {.size = [[label font] pointSize],
                     .color = asSvg([label textColor]),
                     .alignment = static_cast<int>([label textAlignment]),
                     .bold = [[label font] isBold] != NO});
        y += height;
    }
}

void drawTextField(SvgCanvas& canvas, UITextField* field) {
    canvas.line([field bounds], shownText(field),
                { .size = [[field font] pointSize], .color = [[field text] length] == 0 ? gray : black });
}

void drawSwitch(SvgCanvas& canvas, UISwitch* control) {
    const CGRect bounds = [control bounds];
    canvas.rectangle(bounds, [control isOn] ? green : lightGray, bounds.size.height / 2);
    const CGFloat side = bounds.size.height - 4;
    canvas.rectangle(CGRectMake([control isOn] ? bounds.size.width - side - 2 : 2, 2, side, side), white,
                     side / 2);
}

void drawTableCell(SvgCanvas& canvas, UITableViewCell* cell) {
    const CGRect bounds = [cell bounds];
    constexpr CGFloat inset = 15;
    canvas.rectangle(bounds, white);
    canvas.rectangle(CGRectMake(inset, bounds.size.height - 0.5, bounds.size.width - inset, 0.5), separator);
    const CGRect accessory = CGRectMake(bounds.size.width - 30, 0, 18, bounds.size.height);
    if ([cell accessoryType] == UITableViewCellAccessoryDisclosureIndicator)
        canvas.symbol(accessory, outline::disclosure, lightGray);
    if ([cell accessoryType] == UITableViewCellAccessoryCheckmark)
        canvas.symbol(accessory, outline::check, blue);
}

// What a view shows of itself, below its subviews.
void drawContent(SvgCanvas& canvas, UIView* view) {
    const CGRect bounds = [view bounds];
    if (UIImageView* picture = as<UIImageView>(view)) drawPicture(canvas, picture);
    if (UILabel* label = as<UILabel>(view)) drawLabel(canvas, label);
    if (UITextField* field = as<UITextField>(view)) drawTextField(canvas, field);
    if (UISwitch* control = as<UISwitch>(view)) drawSwitch(canvas, control);
    if (UITableViewCell* cell = as<UITableViewCell>(view)) drawTableCell(canvas, cell);
    if (!buttonsOf(view).empty() || as<UINavigationBar>(view) != nil || as<UIToolbar>(view) != nil)
        drawBar(canvas, view);
    if (as<UIActivityIndicatorView>(view) != nil) canvas.border(bounds, lightGray, 2, bounds.size.width / 2);
    if (as<UIVisualEffectView>(view) != nil) canvas.rectangle(bounds, darkBlur, [[view layer] cornerRadius]);
}

// Alerts and share sheets show panels instead of a view of their own.
bool drawsPanels(SvgCanvas& canvas, UIView* view) {
    UIViewController* controller = [view _viewControllerForAncestor];
    return [controller viewIfLoaded] == view && drawPanels(canvas, controller, [view bounds].size);
}

// What a person reads in the view, the title of an album's cell first.
std::string wordsIn(UIView* view) {
    UILabel* label = as<UILabel>(view);
    UITextField* field = as<UITextField>(view);
    std::string words = label != nil ? text([label text]) : field != nil ? shownText(field) : "";
    for (UIView* subview in [view subviews]) {
        const bool isOnItsOwn = as<UIControl>(subview) != nil && as<UITextField>(subview) == nil;
        if ([subview isHidden] || isOnItsOwn) continue;
        const std::string more = wordsIn(subview);
        words += (words.empty() || more.empty() ? "" : ", ") + more;
    }
    return words;
}

UIImage* imageIn(UIView* view) {
    UIImage* image = [as<UIImageView>(view) image];
    for (UIView* subview in [view subviews])
        if (image == nil) image = imageIn(subview);
    return image;
}

// What a control says, or else its picture's name, and in whose row it stands.
std::string labelOf(UIView* control) {
    std::string words = wordsIn(control);
    if (words.empty()) words = text([control accessibilityLabel]);
    NSString* picture = [[[imageIn(control) fileName] stringByDeletingPathExtension]
        stringByReplacingOccurrencesOfString:@"@2x"
                                  withString:@""];
    if (words.empty()) words = text(picture);
    if (words.empty()) words = text(NSStringFromClass([control class]));
    UIView* row = control;
    while (row != nil && as<ListCell>(row) == nil)
        row = [row superview];
    if (row == nil) return words;
    return as<UISwitch>(control) != nil ? wordsIn(row) : words + ", " + wordsIn(row);
}

// Whether a finger can act on the view itself: a control, a cell or something with gestures of its own.
void addSpot(SvgCanvas& canvas, UIView* view) {
    const CGRect bounds = [view bounds];
    if (UISwitch* control = as<UISwitch>(view))
        canvas.spot(bounds, {.view = view,
                             .kind = "switch",
                             .label = labelOf(control),
                             .state = [control isOn] ? "on" : "off"});
    else if (UIControl* control = as<UIControl>(view))
        canvas.spot(bounds, {.view = view, .kind = "button", .label = labelOf(control)});
    else if (as<ListCell>(view) != nil)
        canvas.spot(bounds, {.view = view, .kind = "cell", .label = wordsIn(view)});
    else if (UINavigationBar* bar = as<UINavigationBar>(view))
        canvas.spot(bounds, {.view = view, .kind = "bar", .label = text([[bar topItem] title])});
    else if ([[view gestureRecognizers] count] > 0)
        canvas.spot(bounds, {.view = view, .kind = "button", .label = labelOf(view)});
}

void draw(SvgCanvas& canvas, UIView* view) {
    if ([view isHidden] || [view alpha] < leastVisibleAlpha || drawsPanels(canvas, view)) return;
    const CGRect bounds = [view bounds];
    const CGPoint origin = [view convertPoint:CGPointZero toView:[view superview]];
    const CGFloat radius = [[view layer] cornerRadius];
    const bool clips = [view clipsToBounds] || as<UIScrollView>(view) != nil || as<UILabel>(view) != nil;
    if (clips)
        canvas.beginGroup(origin, [view alpha], bounds, radius);
    else
        canvas.beginGroup(origin, [view alpha]);
    if (UIColor* color = [view backgroundColor]) canvas.rectangle(bounds, asSvg(color), radius);
    addSpot(canvas, view);
    drawContent(canvas, view);
    for (UIView* subview in [view subviews])
        draw(canvas, subview);
    canvas.endGroup();
}

// The controller whose wishes for the status bar count.
UIViewController* controllerInFront() {
    UIViewController* controller = frontController();
    while ([controller modalPresentationStyle] != UIModalPresentationFullScreen)
        controller = [controller presentingViewController];
    while (UIViewController* child = [controller shownChild])
        controller = child;
    return controller;
}

} // namespace

Picture screenPicture() {
    layoutWindows();
    const CGRect screen = [[UIScreen mainScreen] bounds];
    SvgCanvas canvas(screen.size);
    canvas.rectangle(screen, white);
    if (UIWindow* window = [[UIApplication sharedApplication] keyWindow]) draw(canvas, window);
    drawStatusBar(canvas, screen.size.width, controllerInFront());
    return {canvas.document(), canvas.spots()};
}

std::string screenshotAsSvg() { return screenPicture().svg; }

} // namespace simulator
