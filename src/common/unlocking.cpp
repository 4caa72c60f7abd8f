#include "common/unlocking.h"

#include "common/sheets.h"
#include "common/status_banner.h"
#include "platform/local_authentication.h"
#include "settings/settings.h"
#include "state/paths.h"

namespace rollkeeper {

namespace {

// The methods that startup adds to the classes that ask.
struct UnlockAsker {
    static constexpr FixedString className = "UnlockAsker";
    static void requestPassword(NSObject asker, int purpose) {
        send<UnlockAsker, "requestPassword:", void>(asker, purpose);
    }
    static void unlockAuthorised(NSObject asker, int purpose) {
        send<UnlockAsker, "unlockAuthorised:", void>(asker, purpose);
    }
};

enum class After { nothing, carryOn };

// How the flows differ. In the album list a right password only closes the alert: such an album opens by
// Touch ID, or after its cell's lock button has unlocked it.
struct Policy {
    bool everyErrorAsksForPassword;  // or only the user's wish for the fallback
    bool passwordFollowsOnMainQueue; // where Touch ID is not available
    After rightPassword;
    After noPasswordSet;
    NSString (*wrongPasswordMessage)();
};

constexpr Policy policies[] = {
    {.everyErrorAsksForPassword = true,
     .passwordFollowsOnMainQueue = true,
     .rightPassword = After::nothing,
     .noPasswordSet = After::nothing,
     .wrongPasswordMessage = [] { return "Incorrect password"_ns; }},
    {.everyErrorAsksForPassword = false,
     .passwordFollowsOnMainQueue = false,
     .rightPassword = After::carryOn,
     .noPasswordSet = After::carryOn,
     .wrongPasswordMessage = [] { return "Incorrect password."_ns; }},
    {.everyErrorAsksForPassword = true,
     .passwordFollowsOnMainQueue = true,
     .rightPassword = After::carryOn,
     .noPasswordSet = After::nothing,
     .wrongPasswordMessage = [] { return "Incorrect password"_ns; }},
};

const Policy& policyOf(UnlockFlow flow) { return policies[static_cast<std::size_t>(flow)]; }

void carryOn(After decision, NSObject asker, int purpose) {
    if (decision == After::carryOn) UnlockAsker::unlockAuthorised(asker, purpose);
}

// Runs on a queue of the authentication framework and touches nothing there.
void answerOfTouchId(UnlockFlow flow, Owner<NSObject> asker, int purpose, bool success, NSError error) {
    const bool asksForPassword =
        error && (policyOf(flow).everyErrorAsksForPassword || error.code() == laError::userFallback);
    if (asksForPassword) {
        onMainQueue(UnlockAsker::requestPassword, asker, purpose);
    } else if (success) {
        onMainQueue(UnlockAsker::unlockAuthorised, asker, purpose);
    }
}

// A device with Face ID ends an application that asks for a face and does not describe why it does so.
bool wouldEndApplication(LAContext context) {
    return context.respondsTo<"biometryType">() && context.biometryType() == LABiometryType::faceId &&
           !NSBundle::mainBundle().objectForInfoDictionaryKey("NSFaceIDUsageDescription"_ns);
}

void askTouchId(UnlockFlow flow, NSObject asker, int purpose, NSString albumTitle) {
    const Owner<LAContext> context = make<LAContext>();
    constexpr LAPolicy policy = LAPolicy::deviceOwnerAuthenticationWithBiometrics;
    const NSString title = albumTitle ? albumTitle : ""_ns;
    const NSString reason = title.stringByAppendingString(" needs to be unlocked."_ns);
    // The platform raises where there is no reason.
    if (reason && context->canEvaluatePolicy(policy) && !wouldEndApplication(context)) {
        context->evaluatePolicy(
            policy, reason,
            block<void(bool, NSError)>(
                [](UnlockFlow asked, NSObject who, int what, LAContext, bool success, NSError error) {
                    answerOfTouchId(asked, share(who), what, success, error);
                },
                flow, share(asker), purpose, context));
    } else if (policyOf(flow).passwordFollowsOnMainQueue) {
        onMainQueue(UnlockAsker::requestPassword, share(asker), purpose);
    } else {
        UnlockAsker::requestPassword(asker, purpose);
    }
}

void checkPassword(UnlockFlow flow, NSObject asker, int purpose, UITextField field) {
    const Policy& policy = policyOf(flow);
    const NSString stored = NSString::stringWithContentsOfFile(path::password(), NSStringEncoding::utf8);
    if (!stored) {
        carryOn(policy.noPasswordSet, asker, purpose);
        showStatusBanner("No password set"_ns, BannerLife::hidesItself);
    } else if (stored.isEqualToString(field.text())) {
        carryOn(policy.rightPassword, asker, purpose);
    } else {
        showStatusBanner(policy.wrongPasswordMessage(), BannerLife::hidesItself);
    }
}

} // namespace

void unlock(UnlockFlow flow, NSObject asker, int purpose, NSString albumTitle) {
    switch (settings::passOption) {
    case settings::ask::touchId:
        return askTouchId(flow, asker, purpose, albumTitle);
    case settings::ask::password:
        return UnlockAsker::requestPassword(asker, purpose);
    default:
        return UnlockAsker::unlockAuthorised(asker, purpose);
    }
}

void requestPassword(UnlockFlow flow, NSObject asker, int purpose, UIViewController presenter) {
    Alert alert(UIAlertControllerStyle::alert, "Unlock album"_ns, "Enter password to unlock album."_ns);
    // The action keeps the field and not the alert, which keeps the action.
    const UITextField field = alert.addTextField(localized("Password"_ns), true);
    alert.addAction(
        localized("OK"_ns),
        [](UnlockFlow asked, NSObject who, int what, UITextField typed, UIAlertAction) {
            checkPassword(asked, who, what, typed);
        },
        flow, share(asker), purpose, share(field));
    alert.addCancel(localized("Cancel"_ns));
    alert.present(presenter);
}

} // namespace rollkeeper
