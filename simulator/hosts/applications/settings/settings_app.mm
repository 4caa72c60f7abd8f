#include "hosts/applications/settings/settings_app.h"

#include "hosts/applications/common/screen.h"
#include "hosts/host.h"

#include <stdexcept>

namespace simulator::settings {

namespace {

using nlohmann::json;

PreferencesAppController* application() {
    return static_cast<PreferencesAppController*>([UIApplication sharedApplication]);
}

json asJson(id value) {
    if ([value isKindOfClass:[NSString class]]) return text(value);
    if (![value isKindOfClass:[NSNumber class]]) return nullptr;
    double number = [value doubleValue];
    return number == static_cast<double>([value longLongValue]) ? json([value longLongValue]) : json(number);
}

id asObject(const json& value) {
    if (value.is_boolean()) return [NSNumber numberWithBool:value.get<bool>() ? YES : NO];
    if (value.is_number_integer()) return [NSNumber numberWithLongLong:value.get<long long>()];
    if (value.is_number()) return [NSNumber numberWithDouble:value.get<double>()];
    if (value.is_string()) return string(value.get<std::string>());
    throw std::runtime_error("a control cannot be set to " + value.dump());
}

json describe(PSSpecifier* specifier) {
    if ([specifier cellType] == PSGroupCell)
        return {{"group", asJson([specifier name])},
                {"footer", asJson([specifier propertyForKey:PSFooterTextGroupKey])}};
    return {{"label", text([specifier name])},
            {"cell", text([PSTableCell stringFromCellType:[specifier cellType]])},
            {"key", asJson([specifier propertyForKey:PSKeyNameKey])},
            {"value", asJson([specifier performGetter])}};
}

NSIndexPath* pathOfRow(PSListController* list, const std::string& label) {
    for (PSSpecifier* specifier in [list specifiers]) {
        if ([specifier cellType] == PSGroupCell || text([specifier name]) != label) continue;
        return [list indexPathForSpecifier:specifier];
    }
    throw std::runtime_error("the pane \"" + text([list title]) + "\" has no row \"" + label + "\"");
}

void change(PSTableCell* cell, id value) {
    if ([cell isKindOfClass:[PSSwitchTableCell class]]) {
        auto control = static_cast<UISwitch*>([static_cast<PSSwitchTableCell*>(cell) control]);
        [control setOn:[value boolValue] ? YES : NO animated:NO];
        [control sendActionsForControlEvents:UIControlEventValueChanged];
    } else if ([cell isKindOfClass:[PSControlTableCell class]]) {
        auto control = static_cast<PSValueControl*>([static_cast<PSControlTableCell*>(cell) control]);
        [control setValue:value];
        [control sendActionsForControlEvents:UIControlEventValueChanged];
    } else if ([cell isKindOfClass:[PSEditableTableCell class]]) {
        UITextField* field = [static_cast<PSEditableTableCell*>(cell) textField];
        [field setText:[value description]];
        [[field delegate] textFieldDidEndEditing:field];
    } else {
        throw std::runtime_error("the row \"" + text([[cell specifier] name]) + "\" has no control");
    }
}

} // namespace

json listWallpapers() { return describePicker([[application() rootListController] openWallpaperPicker]); }

PSListController* pane() {
    UIViewController* front = controllerOnScreen();
    if (![front isKindOfClass:[PSListController class]])
        throw std::runtime_error("no preference pane is on the screen");
    return static_cast<PSListController*>(front);
}

PSListController* openEntry(const std::string& label) {
    [[application() rootController] popToRootViewControllerAnimated:NO];
    [[application() rootListController] reloadSpecifiers];
    tapRow(label);
    if (pane() == [application() rootListController])
        throw std::runtime_error("the row \"" + label + "\" opened no pane");
    return pane();
}

json describePane(PSListController* pane) {
    auto rows = json::array();
    for (PSSpecifier* specifier in [pane specifiers])
        rows.push_back(describe(specifier));
    return rows;
}

void setControl(const std::string& label, const json& value) {
    PSListController* list = pane();
    PSTableCell* cell = [list tableView:[list table] cellForRowAtIndexPath:pathOfRow(list, label)];
    if (![cell cellEnabled]) throw std::runtime_error("the row \"" + label + "\" is not enabled");
    change(cell, asObject(value));
}

void tapRow(const std::string& label) {
    PSListController* list = pane();
    [list tableView:[list table] didSelectRowAtIndexPath:pathOfRow(list, label)];
    layOutScreen();
}

void addVerbs() {
    registerVerb("listPicker", [](const json&) { return listWallpapers(); });
    registerVerb("pane", [](const json&) { return describePane(pane()); });
    registerVerb("openEntry", [](const json& request) {
        return describePane(openEntry(request.at("label").get<std::string>()));
    });
    registerVerb("setControl", [](const json& request) {
        setControl(request.at("label").get<std::string>(), request.at("value"));
        return json::object();
    });
    registerVerb("tapRow", [](const json& request) {
        tapRow(request.at("label").get<std::string>());
        return json::object();
    });
}

} // namespace simulator::settings
