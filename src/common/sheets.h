// Alerts and action sheets: one way to build and present them. Main thread.
#pragma once

#include "platform/uikit.h"

namespace rollkeeper {

// Where the platform has no alert controllers (iOS 7) it presents nothing.
class Alert {
  public:
    Alert(UIAlertControllerStyle style, NSString title, NSString message);

    // The function receives the kept values and then the UIAlertAction; see objc/block.h.
    template <typename Function, typename... Kept>
    void addAction(NSString title, Function function, Kept... kept) {
        addAction(title, UIAlertActionStyle::normal,
                  block<void(UIAlertAction)>(function, std::move(kept)...).get());
    }

    // An action that only closes the alert.
    void addCancel(NSString title);

    // Returns the field that was added, kept by the alert.
    UITextField addTextField(NSString placeholder, bool secure = false);

    // On a pad an action sheet points at the anchor; without one, at the corner of the presenter's view.
    // Elsewhere the anchor is not looked at.
    void present(UIViewController presenter, UIView anchor) const;
    // The same with the presenter's view for an anchor.
    void present(UIViewController presenter) const;

  private:
    bool needsAnchor() const;
    void addAction(NSString title, UIAlertActionStyle style, Block handler);
    void point(UIView view, CGRect rect) const;

    UIAlertController controller_;
    UIAlertControllerStyle style_;
};

// The main bundle's text for a key, with an empty default.
NSString localized(NSString key);

} // namespace rollkeeper
