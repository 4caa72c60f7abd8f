#include "locking_page.h"

#include "bundle.h"
#include "password.h"
#include "password_prompts.h"
#include "platform/local_authentication.h"
#include "preference_file.h"
#include "settings/settings.h"

namespace rollkeeper::pane {

namespace {

bool hasTouchId() {
    return make<LAContext>()->canEvaluatePolicy(LAPolicy::deviceOwnerAuthenticationWithBiometrics);
}

NSString footerKeyFor(std::int32_t passOption) {
    switch (passOption) {
    case settings::ask::touchId:
        return hasTouchId() ? "locking.touchId.footer"_ns : "locking.noTouchId.footer"_ns;
    case settings::ask::password:
        return "locking.password.footer"_ns;
    default:
        return "locking.never.footer"_ns;
    }
}

NSString footerFor(std::int32_t passOption) {
    const NSString footer = text(footerKeyFor(passOption));
    const bool isAnyoneLetIn = passOption != settings::ask::never && !password::isSet();
    if (!isAnyoneLetIn) return footer;
    return footer.stringByAppendingString("\n\n"_ns).stringByAppendingString(
        text("locking.noPassword.footer"_ns));
}

// The buttons that make sense with, and without, a password.
bool isShown(NSString identifier) {
    if (identifier.isEqualToString("setPassword"_ns)) return !password::isSet();
    if (identifier.isEqualToString("changePassword"_ns)) return password::isSet();
    if (identifier.isEqualToString("removePassword"_ns)) return password::isSet();
    return true;
}

PSSpecifier rowWithIdentifier(NSArray rows, NSString identifier) {
    for (PSSpecifier row : each<PSSpecifier>(rows))
        if (row.identifier().isEqualToString(identifier)) return row;
    return PSSpecifier();
}

// The way to open is chosen on a page of its own: coming back from there, the warnings may be others.
void viewWillAppear(PSListController self, SEL command, bool animated) {
    self.reloadSpecifiers();
    const Method inherited = class_getInstanceMethod(classNamed<PSListController::className>(), command);
    using ViewWillAppear = void (*)(PSListController, SEL, bool);
    reinterpret_cast<ViewWillAppear>(method_getImplementation(inherited))(self, command, animated);
}

void setPassword(PSListController self, SEL, PSSpecifier) { promptForPassword(self, PasswordPrompt::set); }
void changePassword(PSListController self, SEL, PSSpecifier) {
    promptForPassword(self, PasswordPrompt::change);
}
void removePassword(PSListController self, SEL, PSSpecifier) {
    promptForPassword(self, PasswordPrompt::remove);
}

constexpr PageMethod methods[] = {
    {"specifiers", addition<"@@:", specifiers<lockingPageRows>>()},
    {"viewWillAppear:", addition<"v@:B", viewWillAppear>()},
    {"setPassword:", addition<"v@:@", setPassword>()},
    {"changePassword:", addition<"v@:@", changePassword>()},
    {"removePassword:", addition<"v@:@", removePassword>()},
};

} // namespace

Owner<NSMutableArray> lockingPageRows(PSListController page) {
    const Owner<NSMutableArray> all = rowsFromPropertyList(page);
    Owner<NSMutableArray> rows = make<NSMutableArray>();
    for (PSSpecifier row : each<PSSpecifier>(all.get()))
        if (isShown(row.identifier())) rows->addObject(row);
    const PSSpecifier wayToOpen = rowWithIdentifier(rows.get(), "passOption"_ns);
    rowWithIdentifier(rows.get(), "wayToOpen"_ns)
        .setProperty(footerFor(storedValue(wayToOpen).intValue()), "footerText"_ns);
    return rows;
}

std::span<const PageMethod> lockingPageMethods() { return methods; }

} // namespace rollkeeper::pane
