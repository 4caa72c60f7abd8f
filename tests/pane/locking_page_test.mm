// How locked albums open: the password, and warnings of settings that keep the user out or let everybody in.
#include "pane/pane_fixture.h"

#import "UIKit/ViewTree.h"

#include <gmock/gmock.h>
#include <objc/runtime.h>

namespace simulator::test {
namespace {

using nlohmann::json;
using testing::HasSubstr;

const std::map<std::string, std::string> fieldsOf = {
    {"Set Password", "New password/New password again/"},
    {"Change Password", "Old password/New password/New password again/"},
    {"Remove Password", "Old password/"},
};

class LockingPage : public PaneTest {
  protected:
    void openLocking(const std::string& password = "") {
        if (!password.empty()) device().writeFile(file::password, password);
        openPane({"Locked Albums"});
    }
    // Taps the row, types into the alert's fields from top to bottom, and answers it. Returns the message of
    // the alert that follows, which is dismissed.
    std::string prompt(const std::string& row, const std::vector<std::string>& typed,
                       const std::string& answer) {
        settings::tapRow(row);
        if (frontAlert() == nil) throw std::runtime_error(row + " shows no alert");
        EXPECT_EQ([[frontAlert() title] UTF8String], row);
        std::string fields;
        for (UITextField* field in [frontAlert() textFields]) {
            EXPECT_TRUE([field isSecureTextEntry]);
            fields += std::string([[field placeholder] UTF8String]) + "/";
        }
        EXPECT_EQ(fields, fieldsOf.at(row));
        for (std::size_t field = 0; field < typed.size(); ++field)
            typeText(field, typed[field]);
        tapAlertAction(answer);
        return dismissedMessage();
    }
    std::string password() const {
        return device().exists(file::password) ? device().readFile(file::password) : "(none)";
    }
    void expectPasswordRows(bool hasPassword) const {
        EXPECT_EQ(rowsLabelled("Set Password").size(), hasPassword ? 0U : 1U);
        EXPECT_EQ(rowsLabelled("Change Password").size(), hasPassword ? 1U : 0U);
        EXPECT_EQ(rowsLabelled("Remove Password").size(), hasPassword ? 1U : 0U);
    }
};

TEST_F(LockingPage, sets_changes_and_removes_the_password_and_refuses_what_does_not_fit) {
    const std::string wrong = "The old password is not right.";
    const std::string different = "The two new passwords are not the same.";
    const std::string empty = "A password must not be empty.";
    const std::string none = "(none)";
    const std::string first = "\U0001F512\U0001F468\u200D\U0001F469\u200D\U0001F467 p\u00e4ss w\u00f6rd ";
    const std::string signs = "\"'\\/<>&%@";
    const std::string endless(20000, 'x');
    const struct {
        const char* row;
        std::vector<std::string> typed;
        const char* answer;
        std::string message, password;
    } steps[] = {
        {"Set Password", {first, "other"}, "Save", different, none},
        {"Set Password", {"", ""}, "Save", empty, none},
        {"Set Password", {first, first}, "Cancel", "", none},
        {"Set Password", {first, first}, "Save", "", first},
        {"Change Password", {first, " ", " "}, "Save", "", " "},
        {"Change Password", {" ", signs, signs}, "Save", "", signs},
        {"Change Password", {signs, endless, endless}, "Save", "", endless},
        {"Change Password", {endless, "secret", "secret"}, "Save", "", "secret"},
        {"Change Password", {"Secret", "new", "new"}, "Save", wrong, "secret"},
        {"Change Password", {"secret\n", "new", "new"}, "Save", wrong, "secret"},
        {"Change Password", {"", "new", "new"}, "Save", wrong, "secret"},
        {"Change Password", {"secret", "new", "New"}, "Save", different, "secret"},
        {"Change Password", {"secret", "", ""}, "Save", empty, "secret"},
        {"Change Password", {"secret", "new", "new"}, "Cancel", "", "secret"},
        {"Remove Password", {"wrong"}, "Remove", wrong, "secret"},
        {"Remove Password", {"secret"}, "Cancel", "", "secret"},
        {"Remove Password", {"secret"}, "Remove", "", none},
    };
    ASSERT_FALSE(device().exists(file::stateFolder)) << "the pane may be the first to need the folder";
    openLocking();
    for (const auto& step : steps) {
        expectPasswordRows(password() != none);
        EXPECT_EQ(prompt(step.row, step.typed, step.answer), step.message) << step.row;
        EXPECT_EQ(password(), step.password);
    }
    expectPasswordRows(false);
}

TEST_F(LockingPage,
       says_when_the_password_cannot_be_written_or_removed_and_takes_an_unreadable_one_for_none) {
    change([](Conditions& conditions) { conditions.faults.unreadable = {file::password}; });
    openLocking("secret");
    expectPasswordRows(false);
    change([](Conditions& conditions) {
        conditions.faults.unreadable.clear();
        conditions.faults.diskFull = true;
    });
    openPage({"Locked Albums"});
    EXPECT_THAT(prompt("Change Password", {"secret", "new", "new"}, "Save"),
                HasSubstr("could not be written"));
    change([](Conditions& conditions) { conditions.faults.diskFull = false; });
    EXPECT_EQ(password(), "secret");
    device().remove(file::password);
    EXPECT_THAT(prompt("Remove Password", {""}, "Remove"), HasSubstr("could not be written"));
}

TEST_F(LockingPage, tells_how_a_locked_album_opens) {
    const struct {
        json passOption;
        BiometricOutcome biometry;
        const char* expected;
    } warnings[] = {
        {0, BiometricOutcome::success, "If Touch ID fails"},
        {0, BiometricOutcome::notAvailable, "Touch ID is not set up"},
        {1, BiometricOutcome::success, "The password does not open a locked album"},
        {2, BiometricOutcome::success, "open without being asked"},
        {"2", BiometricOutcome::success, "open without being asked"},
    };
    openPane();
    for (const bool hasPassword : {true, false})
        for (const auto& warning : warnings) {
            writePreferences({{"passOption", warning.passOption}});
            device().remove(file::password);
            if (hasPassword) device().writeFile(file::password, "secret");
            change([&](Conditions& conditions) { conditions.biometricOutcome = warning.biometry; });
            openPage({"Locked Albums"});
            const std::string footer = footerOf("Ask For");
            EXPECT_THAT(footer, HasSubstr(warning.expected));
            const bool asks = footer.find("without being asked") == std::string::npos;
            EXPECT_EQ(footer.find("No password is set") != std::string::npos, asks && !hasPassword);
        }
}

TEST_F(LockingPage, warns_anew_after_another_way_is_chosen) {
    openLocking("secret");
    EXPECT_THAT(footerOf("Ask For"), HasSubstr("If Touch ID fails"));
    settings::tapRow("Ask For");
    settings::tapRow("Nothing");
    static id appeared = nil;
    static IMP frameworks = nullptr;
    const Method method = class_getInstanceMethod([PSListController class], @selector(viewWillAppear:));
    frameworks = method_setImplementation(
        method, reinterpret_cast<IMP>(+[](id self, SEL command, BOOL animated) {
            appeared = self;
            reinterpret_cast<void (*)(id, SEL, BOOL)>(frameworks)(self, command, animated);
        }));
    [[settings::pane() navigationController] popViewControllerAnimated:NO];
    EXPECT_THAT(footerOf("Ask For"), HasSubstr("open without being asked"));
    EXPECT_EQ(appeared, settings::pane()) << "the framework is to hear of it, too";
}

} // namespace
} // namespace simulator::test
