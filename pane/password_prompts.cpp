#include "password_prompts.h"

#include "alerts.h"
#include "bundle.h"
#include "common/sheets.h"
#include "password.h"

namespace rollkeeper::pane {

namespace {

using password::Outcome;

struct Refusal {
    Outcome outcome;
    NSString (*messageKey)();
};

constexpr Refusal refusals[] = {
    {Outcome::wrongOldPassword, [] { return "password.wrong"_ns; }},
    {Outcome::repeatedDifferently, [] { return "password.different"_ns; }},
    {Outcome::empty, [] { return "password.empty"_ns; }},
    {Outcome::notWritten, [] { return "password.notWritten"_ns; }},
};

void finish(PSListController page, Outcome outcome) {
    for (const Refusal& refusal : refusals)
        if (refusal.outcome == outcome) return showAlert(page, "password.refused"_ns, refusal.messageKey());
    page.reloadSpecifiers();
}

NSString titleKey(PasswordPrompt prompt) {
    switch (prompt) {
    case PasswordPrompt::set:
        return "password.set"_ns;
    case PasswordPrompt::change:
        return "password.change"_ns;
    default:
        return "password.remove"_ns;
    }
}

// A field that the prompt does not have is nil, and so is its text.
struct Fields {
    UITextField old, fresh, repeated;
};

Fields addFields(Alert& alert, PasswordPrompt prompt) {
    Fields fields;
    if (prompt != PasswordPrompt::set) fields.old = alert.addTextField(text("password.old"_ns), true);
    if (prompt == PasswordPrompt::remove) return fields;
    fields.fresh = alert.addTextField(text("password.new"_ns), true);
    fields.repeated = alert.addTextField(text("password.repeat"_ns), true);
    return fields;
}

} // namespace

void promptForPassword(PSListController page, PasswordPrompt prompt) {
    Alert alert(UIAlertControllerStyle::alert, text(titleKey(prompt)), NSString());
    const Fields fields = addFields(alert, prompt);
    alert.addCancel(text("cancel"_ns));
    alert.addAction(
        text(prompt == PasswordPrompt::remove ? "remove"_ns : "save"_ns),
        [](PSListController asked, PasswordPrompt what, UITextField old, UITextField fresh,
           UITextField repeated, UIAlertAction) {
            finish(asked, what == PasswordPrompt::remove
                              ? password::remove(old.text())
                              : password::set(old.text(), fresh.text(), repeated.text()));
        },
        share(page), prompt, share(fields.old), share(fields.fresh), share(fields.repeated));
    alert.present(page);
}

} // namespace rollkeeper::pane
