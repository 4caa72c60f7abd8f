#include "common/sheets.h"

namespace rollkeeper {

namespace {

bool isPad() {
    const UIDevice device = UIDevice::currentDevice();
    return device.respondsTo<"userInterfaceIdiom">() &&
           device.userInterfaceIdiom() == UIUserInterfaceIdiom::pad;
}

} // namespace

Alert::Alert(UIAlertControllerStyle style, NSString title, NSString message)
    : controller_(UIAlertController::alertController(title, message, style)), style_(style) {}

void Alert::addAction(NSString title, UIAlertActionStyle style, Block handler) {
    const UIAlertAction action = UIAlertAction::actionWithTitle(title, style, handler);
    if (action) controller_.addAction(action); // the platform raises for nil
}

void Alert::addCancel(NSString title) {
    addAction(title, UIAlertActionStyle::cancel, block<void(UIAlertAction)>([](UIAlertAction) {}).get());
}

UITextField Alert::addTextField(NSString placeholder, bool secure) {
    controller_.addTextField(block<void(UITextField)>(
        [](NSString text, bool hides, UITextField field) {
            field.setPlaceholder(text);
            if (hides) field.setSecureTextEntry(true);
        },
        share(placeholder), secure));
    const NSArray fields = controller_.textFields();
    const NSUInteger count = fields.count();
    return count > 0 ? cast<UITextField>(fields.objectAtIndex(count - 1)) : UITextField();
}

void Alert::point(UIView view, CGRect rect) const {
    controller_.setModalPresentationStyle(UIModalPresentationStyle::popover);
    const UIPopoverPresentationController popover = controller_.popoverPresentationController();
    popover.setSourceView(view);
    popover.setSourceRect(rect);
}

// A sheet that points at no view raises on a pad.
bool Alert::needsAnchor() const { return style_ == UIAlertControllerStyle::actionSheet && isPad(); }

void Alert::present(UIViewController presenter) const {
    present(presenter, needsAnchor() ? presenter.view() : UIView());
}

void Alert::present(UIViewController presenter, UIView anchor) const {
    if (!controller_) return;
    if (needsAnchor()) point(anchor ? anchor : presenter.view(), anchor.bounds());
    presenter.present(controller_, true, Block());
}

NSString localized(NSString key) { return NSBundle::mainBundle().localizedString(key, ""_ns, NSString()); }

} // namespace rollkeeper
