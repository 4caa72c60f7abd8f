#include "first_page.h"

#include "alerts.h"
#include "bundle.h"
#include "common/sheets.h"
#include "preference_file.h"

namespace rollkeeper::pane {

namespace {

void resetAndShow(PSListController page) {
    if (!reset()) return showAlert(page, "write.title"_ns, "write.settings"_ns);
    page.reloadSpecifiers();
}

void resetSettings(PSListController self, SEL, PSSpecifier) {
    Alert alert(UIAlertControllerStyle::alert, text("reset.title"_ns), text("reset.question"_ns));
    alert.addCancel(text("cancel"_ns));
    alert.addAction(
        text("reset"_ns), [](PSListController page, UIAlertAction) { resetAndShow(page); }, share(self));
    alert.present(self);
}

constexpr PageMethod methods[] = {
    {"specifiers", addition<"@@:", specifiers<rowsFromPropertyList>>()},
    {"resetSettings:", addition<"v@:@", resetSettings>()},
};

} // namespace

std::span<const PageMethod> firstPageMethods() { return methods; }

} // namespace rollkeeper::pane
