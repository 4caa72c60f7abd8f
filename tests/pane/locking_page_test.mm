// How locked albums open: the password, and warnings of settings that keep the user out or let everybody in.
#include "pane/pane_test.h"

#import "UIKit/ViewTree.h"

#include <gmock/gmock.h>

namespace simulator::test {
namespace {

using testing::HasSubstr;

class LockingPage : public PaneTest {
  protected:
    void openLocking() {
        openPane();
        openPage({"Locked Albums"});
    }
    // Taps the row, types into the alert's fields from top to bottom, and answers it.
    void prompt(const std::string& row, const std::vector<std::string>& typed, const std::string& answer) {
        settings::tapRow(row);
        if (frontAlert() == nil) throw std::runtime_error(row + " shows no alert");
        for (std::size_t field = 0; field < typed.size(); ++field)
            typeText(field, typed[field]);
        tapAlertAction(answer);
    }
    // The message of the alert on the screen, which is answered; empty when there is none.
    std::string dismissedMessage() {
        if (frontAlert() == nil) return {};
        const char* message = [[frontAlert() message] UTF8String];
        const std::string text = message ? message : "";
        tapAlertAction("OK");
        return text;
    }
    std::string password() const {
        return device().exists(file::password) ? device().readFile(file::password) : "(none)";
    }
};

TEST_F(LockingPage, SetsChangesAndRemovesThePassword) {
    openLocking();
    EXPECT_TRUE(hasRow("Set Password"));
    EXPECT_FALSE(hasRow("Change Password"));
    prompt("Set Password", {"secret", "secret"}, "Save");
    EXPECT_EQ(dismissedMessage(), "");
    EXPECT_EQ(password(), "secret");

    EXPECT_FALSE(hasRow("Set Password"));
    prompt("Change Password", {"secret", "better", "better"}, "Save");
    EXPECT_EQ(dismissedMessage(), "");
    EXPECT_EQ(password(), "better");

    prompt("Remove Password", {"better"}, "Remove");
    EXPECT_EQ(dismissedMessage(), "");
    EXPECT_EQ(password(), "(none)");
    EXPECT_TRUE(hasRow("Set Password"));
    EXPECT_FALSE(hasRow("Remove Password"));
}

TEST_F(LockingPage, HidesWhatIsTyped) {
    device().writeFile(file::password, "secret");
    openLocking();
    settings::tapRow("Change Password");
    ASSERT_EQ([[frontAlert() textFields] count], 3U);
    for (UITextField* field in [frontAlert() textFields])
        EXPECT_TRUE([field isSecureTextEntry]);
}

struct Refusal {
    const char* row;
    std::vector<std::string> typed;
    const char* answer;
    const char* message;
};

TEST_F(LockingPage, RefusesWhatDoesNotFit) {
    device().writeFile(file::password, "secret");
    openLocking();
    const Refusal refusals[] = {
        {"Change Password", {"Secret", "new", "new"}, "Save", "The old password is not right."},
        {"Change Password", {"secret\n", "new", "new"}, "Save", "The old password is not right."},
        {"Change Password", {"", "new", "new"}, "Save", "The old password is not right."},
        {"Change Password", {"secret", "new", "New"}, "Save", "The two new passwords are not the same."},
        {"Change Password", {"secret", "", ""}, "Save", "A password must not be empty."},
        {"Remove Password", {"wrong"}, "Remove", "The old password is not right."},
        {"Change Password", {"secret", "new", "new"}, "Cancel", ""},
        {"Remove Password", {"secret"}, "Cancel", ""},
    };
    for (const Refusal& refusal : refusals) {
        prompt(refusal.row, refusal.typed, refusal.answer);
        EXPECT_EQ(dismissedMessage(), refusal.message) << refusal.row << " " << refusal.message;
        EXPECT_EQ(password(), "secret");
    }
}

TEST_F(LockingPage, RefusesAFirstPasswordThatIsRepeatedDifferently) {
    openLocking();
    prompt("Set Password", {"secret", "secert"}, "Save");
    EXPECT_EQ(dismissedMessage(), "The two new passwords are not the same.");
    EXPECT_EQ(password(), "(none)");
}

TEST_F(LockingPage, WritesAnyTextAsItIs) {
    openLocking();
    std::string long_;
    for (int part = 0; part < 2000; ++part)
        long_ += "0123456789";
    std::string old = "\U0001F512\U0001F468\u200D\U0001F469\u200D\U0001F467 p\u00e4ss w\u00f6rd ";
    prompt("Set Password", {old, old}, "Save");
    EXPECT_EQ(password(), old);
    for (const std::string& fresh : {std::string(" "), std::string("\"'\\/<>&%@"), long_}) {
        prompt("Change Password", {old, fresh, fresh}, "Save");
        EXPECT_EQ(password(), fresh);
        old = fresh;
    }
}

TEST_F(LockingPage, CreatesTheFolder) {
    ASSERT_FALSE(device().exists(file::stateFolder));
    openLocking();
    prompt("Set Password", {"secret", "secret"}, "Save");
    EXPECT_EQ(password(), "secret");
}

TEST_F(LockingPage, SaysWhenThePasswordCannotBeWritten) {
    device().writeFile(file::password, "secret");
    openLocking();
    change([](Conditions& conditions) { conditions.faults.diskFull = true; });
    prompt("Change Password", {"secret", "new", "new"}, "Save");
    EXPECT_THAT(dismissedMessage(), HasSubstr("could not be written"));
    change([](Conditions& conditions) { conditions.faults.diskFull = false; });
    EXPECT_EQ(password(), "secret");
}

TEST_F(LockingPage, TakesAnUnreadablePasswordForNoneAsTheLibraryDoes) {
    device().writeFile(file::password, "secret");
    change([](Conditions& conditions) { conditions.faults.unreadable = {file::password}; });
    openLocking();
    EXPECT_TRUE(hasRow("Set Password"));
}

struct Warning {
    int passOption;
    BiometricOutcome biometry;
    bool hasPassword;
    const char* expected;
};

TEST_F(LockingPage, TellsHowALockedAlbumOpens) {
    const Warning warnings[] = {
        {0, BiometricOutcome::success, true, "If Touch ID fails"},
        {0, BiometricOutcome::success, false, "If Touch ID fails"},
        {0, BiometricOutcome::notAvailable, true, "Touch ID is not set up"},
        {0, BiometricOutcome::notAvailable, false, "Touch ID is not set up"},
        {1, BiometricOutcome::success, true, "The password does not open a locked album"},
        {1, BiometricOutcome::success, false, "lock button in Edit"},
        {2, BiometricOutcome::success, true, "open without being asked"},
        {2, BiometricOutcome::success, false, "open without being asked"},
    };
    openPane();
    for (const Warning& warning : warnings) {
        writePreferences({{"passOption", warning.passOption}});
        device().remove(file::password);
        if (warning.hasPassword) device().writeFile(file::password, "secret");
        change([&](Conditions& conditions) { conditions.biometricOutcome = warning.biometry; });
        openPage({"Locked Albums"});
        const std::string footer = footerOf("Ask For");
        EXPECT_THAT(footer, HasSubstr(warning.expected));
        const bool letsAnyoneIn = warning.passOption != 2 && !warning.hasPassword;
        EXPECT_EQ(footer.find("No password is set") != std::string::npos, letsAnyoneIn) << footer;
    }
}

TEST_F(LockingPage, WarnsAnewAfterAnotherWayIsChosen) {
    device().writeFile(file::password, "secret");
    openLocking();
    EXPECT_THAT(footerOf("Ask For"), HasSubstr("If Touch ID fails"));
    settings::tapRow("Ask For");
    settings::tapRow("Nothing");
    [[settings::pane() navigationController] popViewControllerAnimated:NO];
    EXPECT_THAT(footerOf("Ask For"), HasSubstr("open without being asked"));
}

} // namespace
} // namespace simulator::test
