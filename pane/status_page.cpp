#include "status_page.h"

#include "alerts.h"
#include "bundle.h"
#include "password.h"
#include "preference_file.h"
#include "service_probe.h"
#include "state/paths.h"

#include <initializer_list>

namespace rollkeeper::pane {

namespace {

// Properties of a row: what it says, and for what answer of the service it waits (none: an empty text).
NSString statusKey() { return "status"_ns; }
NSString tokenKey() { return "token"_ns; }

NSString joined(std::initializer_list<NSString> parts) {
    NSString whole = ""_ns;
    for (const NSString part : parts)
        whole = whole.stringByAppendingString(part);
    return whole;
}

// ---- What holds now ----

NSString version() {
    const NSDictionary information =
        NSMutableDictionary::dictionaryWithContentsOfFile(fileInBundle("Info.plist"_ns));
    return cast<NSString>(information.objectForKey("CFBundleShortVersionString"_ns));
}

NSString systemVersion() { return UIDevice::currentDevice().systemVersion(); }

NSString answer(bool yes) { return text(yes ? "status.yes"_ns : "status.no"_ns); }

NSString masterSwitch() { return answer(storedSwitch("enabled"_ns, true)); }

// The library adds this method in every process, unless it was switched off when the process started.
NSString library() {
    return answer(
        class_getInstanceMethod(classNamed<"UISaveToCameraRollActivity">(), selector<"movePhoto">()));
}

NSString stateOf(NSString path, bool isReadable) {
    if (isReadable) return text("status.readable"_ns);
    const bool isThere = NSFileManager::defaultManager().fileExistsAtPath(path);
    return text(isThere ? "status.unreadable"_ns : "status.missing"_ns);
}

NSString stateFolder() {
    const NSString path = path::stateFolder();
    return stateOf(path, NSFileManager::defaultManager().isReadableFileAtPath(path));
}

NSString settingsFile() {
    const NSString path = path::preferences();
    return stateOf(path, static_cast<bool>(NSMutableDictionary::dictionaryWithContentsOfFile(path)));
}

NSString passwordFile() { return stateOf(path::password(), password::isSet()); }

NSString lockedAlbumsFile() {
    const NSString path = path::lockedAlbums();
    return stateOf(path, static_cast<bool>(NSMutableArray::withContentsOfFile(path)));
}

struct Line {
    const char* identifier;
    NSString (*status)();
};

// What the rows of the property list with these identifiers say.
constexpr Line lines[] = {
    {"version", version},           {"system", systemVersion},
    {"enabledNow", masterSwitch},   {"library", library},
    {"stateFolder", stateFolder},   {"settingsFile", settingsFile},
    {"passwordFile", passwordFile}, {"lockedAlbumsFile", lockedAlbumsFile},
};

void fillIn(PSSpecifier row) {
    for (const Line& line : lines)
        if (row.identifier().isEqualToString(NSString::stringWithUTF8String(line.identifier)))
            row.setProperty(line.status(), statusKey());
}

// ---- What the system has for each feature ----

// "10.3.3" counts as 10.3: no release that matters here has a second number above 9.
NSString availability(NSString first, NSString gone) {
    const double present = systemVersion().doubleValue();
    if (present < first.doubleValue()) return joined({text("status.needs"_ns), " "_ns, first});
    if (gone && present >= gone.doubleValue()) return joined({text("status.gone"_ns), " "_ns, gone});
    return answer(true);
}

void addFeatures(PSListController page, NSMutableArray rows) {
    const auto table = NSMutableArray::withContentsOfFile(fileInBundle("Features.plist"_ns));
    for (NSDictionary feature : each<NSDictionary>(table.get())) {
        const auto name = cast<NSString>(feature.objectForKey("name"_ns));
        const auto first = cast<NSString>(feature.objectForKey("first"_ns));
        const auto gone = cast<NSString>(feature.objectForKey("gone"_ns));
        const PSSpecifier row = PSSpecifier::rowNamed(text(name), PSCellType::titleValue, page, SEL(),
                                                      selector<"readPreferenceValue:">());
        row.setProperty(availability(first, gone), statusKey());
        rows.addObject(row);
    }
}

// ---- Whether the service answers ----

// When to look for the answer, and when to stop waiting for it, in seconds.
constexpr NSTimeInterval looks[] = {0.1, 0.3, 0.6, 1, 2, 3};
constexpr NSTimeInterval patience = 4;

PSSpecifier serviceRow(PSListController page) { return page.specifierForID("service"_ns); }

NSString awaitedToken(PSListController page) { return cast<NSString>(serviceRow(page).property(tokenKey())); }

void setService(PSSpecifier row, NSString token, NSString key) {
    row.setProperty(token, tokenKey());
    row.setProperty(text(key), statusKey());
}

void askService(PSListController page, PSSpecifier row) {
    const NSString token = serviceProbe::ask();
    if (!token) return setService(row, ""_ns, "status.unaskable"_ns);
    setService(row, token, "status.asking"_ns);
    for (const NSTimeInterval delay : looks)
        NSTimer::sendOnce(delay, page, selector<"lookForAnswer:">());
    NSTimer::sendOnce(patience, page, selector<"giveUp:">());
}

void endWaiting(PSListController page, NSString key) {
    setService(serviceRow(page), ""_ns, key);
    page.reloadSpecifier(serviceRow(page));
}

void lookForAnswer(PSListController self, SEL, NSTimer) {
    const NSString token = awaitedToken(self);
    if (token.length() > 0 && serviceProbe::isAnswered(token)) endWaiting(self, "status.answers"_ns);
}

void giveUp(PSListController self, SEL, NSTimer) {
    if (awaitedToken(self).length() > 0) endWaiting(self, "status.silent"_ns);
}

// ---- The report ----

NSString lineOf(PSSpecifier row) {
    if (!row.name()) return ""_ns;
    if (row.cellType() == PSCellType::group) return joined({"\n"_ns, row.name(), "\n"_ns});
    const auto status = cast<NSString>(row.property(statusKey()));
    return status ? joined({row.name(), ": "_ns, status, "\n"_ns}) : ""_ns;
}

void copyStatus(PSListController self, SEL, PSSpecifier) {
    NSString report = ""_ns;
    for (PSSpecifier row : each<PSSpecifier>(self.rows()))
        report = report.stringByAppendingString(lineOf(row));
    UIPasteboard::generalPasteboard().setString(report);
    showAlert(self, "status.copied.title"_ns, "status.copied"_ns);
}

NSObject readPreferenceValue(PSListController, SEL, PSSpecifier row) { return row.property(statusKey()); }

constexpr PageMethod methods[] = {
    {"specifiers", addition<"@@:", specifiers<statusPageRows>>()},
    {"readPreferenceValue:", addition<"@@:@", readPreferenceValue>()},
    {"lookForAnswer:", addition<"v@:@", lookForAnswer>()},
    {"giveUp:", addition<"v@:@", giveUp>()},
    {"copyStatus:", addition<"v@:@", copyStatus>()},
};

} // namespace

Owner<NSMutableArray> statusPageRows(PSListController page) {
    const Owner<NSMutableArray> fixed = rowsFromPropertyList(page);
    Owner<NSMutableArray> rows = make<NSMutableArray>();
    for (PSSpecifier row : each<PSSpecifier>(fixed.get())) {
        fillIn(row);
        rows->addObject(row);
        if (row.identifier().isEqualToString("service"_ns)) askService(page, row);
        if (row.identifier().isEqualToString("features"_ns)) addFeatures(page, rows.get());
    }
    return rows;
}

std::span<const PageMethod> statusPageMethods() { return methods; }

} // namespace rollkeeper::pane
