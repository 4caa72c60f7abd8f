#include "hosts/applications/settings/settings_app.h"

#import "UIKit/ViewTree.h"

#include "hosts/applications/common/screen.h"
#include "hosts/host.h"

#include <stdexcept>

namespace simulator::settings {

namespace {

using nlohmann::json;

PreferencesAppController* application() {
    return static_cast<PreferencesAppController*>([UIApplication sharedApplication]);
}

json describe(PSSpecifier* specifier) {
    if ([specifier cellType] == PSGroupCell)
        return {{"group", text([specifier name])},
                {"footer", text([specifier propertyForKey:PSFooterTextGroupKey])}};
    id value = [specifier performGetter];
    const bool isText = [value isKindOfClass:[NSString class]];
    return {{"label", text([specifier name])},
            {"cell", text([PSTableCell stringFromCellType:[specifier cellType]])},
            {"key", text([specifier propertyForKey:PSKeyNameKey])},
            {"value", isText         ? json(text(value))
                      : value != nil ? json([value longLongValue])
                                     : json()}};
}

NSIndexPath* pathOfRow(PSListController* list, const std::string& label) {
    for (PSSpecifier* specifier in [list specifiers])
        if ([specifier cellType] != PSGroupCell && text([specifier name]) == label)
            return [list indexPathForSpecifier:specifier];
    throw std::runtime_error("the pane \"" + text([list title]) + "\" has no row \"" + label + "\"");
}

} // namespace

json listWallpapers() { return describePicker([[application() rootListController] openWallpaperPicker]); }

PSListController* pane() {
    UIViewController* front = controllerOnScreen();
    if (![front isKindOfClass:[PSListController class]])
        throw std::runtime_error("no preference pane is on the screen");
    return static_cast<PSListController*>(front);
}

void openEntry(const std::string& label) {
    [[application() rootController] popToRootViewControllerAnimated:NO];
    [[application() rootListController] reloadSpecifiers];
    tapRow(label);
}

json describePane(PSListController* pane) {
    auto rows = json::array();
    for (PSSpecifier* specifier in [pane specifiers])
        rows.push_back(describe(specifier));
    return rows;
}

void setControl(const std::string& label, bool on) {
    PSListController* list = pane();
    UITableViewCell* cell = [list tableView:[list table] cellForRowAtIndexPath:pathOfRow(list, label)];
    if (![cell isKindOfClass:[PSSwitchTableCell class]])
        throw std::runtime_error("the row \"" + label + "\" has no switch");
    UISwitch* control = [static_cast<PSSwitchTableCell*>(cell) control];
    noteTouch(control);
    [control setOn:on ? YES : NO animated:NO];
    [control sendActionsForControlEvents:UIControlEventValueChanged];
}

void tapRow(const std::string& label) {
    PSListController* list = pane();
    NSIndexPath* path = pathOfRow(list, label);
    layOutScreen();
    noteTouch([list tableView:[list table] cellForRowAtIndexPath:path]);
    [list tableView:[list table] didSelectRowAtIndexPath:path];
    layOutScreen();
}

void addVerbs() {
    registerVerb("listPicker", listWallpapers);
    registerVerb("openEntry", [](const json& request) { openEntry(request.at("label")); });
    registerVerb("setControl",
                 [](const json& request) { setControl(request.at("label"), request.at("value")); });
    registerVerb("tapRow", [](const json& request) { tapRow(request.at("label")); });
}

} // namespace simulator::settings
