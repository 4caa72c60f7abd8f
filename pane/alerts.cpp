#include "alerts.h"

#include "bundle.h"
#include "common/sheets.h"

namespace rollkeeper::pane {

void showAlert(UIViewController page, NSString titleKey, NSString messageKey) {
    Alert alert(UIAlertControllerStyle::alert, text(titleKey), text(messageKey));
    alert.addCancel(text("ok"_ns));
    alert.present(page);
}

} // namespace rollkeeper::pane
