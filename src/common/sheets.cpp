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
    controller_.addAction(UIAlertAction::actionWithTitle(title, style, handler));
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
    return fields ? cast<UITextField>(fields.objectAtIndex(fields.count() - 1)) : UITextField();
}

// A sheet without an anchor raises on a pad.
void Alert::anchorAt(UIView anchor) const {
    controller_.setModalPresentationStyle(UIModalPresentationStyle::popover);
    const UIPopoverPresentationController popover = controller_.popoverPresentationController();
    popover.setSourceView(anchor);
    popover.setSourceRect(anchor.bounds());
}

void Alert::present(UIViewController presenter, UIView anchor) const {
    if (!controller_) return;
    if (style_ == UIAlertControllerStyle::actionSheet && isPad())
        anchorAt(anchor ? anchor : presenter.view());
    presenter.present(controller_, true, Block());
}

NSString localized(NSString key) { return NSBundle::mainBundle().localizedString(key, ""_ns, NSString()); }

} // namespace rollkeeper
