// Preferences.framework: panes of rows, each described by a specifier. Main thread only.
#pragma once

#include "platform/uikit.h"

#include <cstddef>

extern "C" std::ptrdiff_t ivar_getOffset(rollkeeper::Ivar variable);

namespace rollkeeper {

enum class PSCellType : NSInteger { group = 0, titleValue = 4, switchCell = 6 };

struct PSSpecifier : NSObject {
    static constexpr FixedString className = "PSSpecifier";

    // A row whose target reads and writes its value by the methods that `get` and `set`, if any, name. The
    // target is not kept.
    static PSSpecifier rowNamed(NSString name, PSCellType cell, NSObject target, SEL set, SEL get) {
        return sendToClass<PSSpecifier, "preferenceSpecifierNamed:target:set:get:detail:cell:edit:",
                           PSSpecifier>(name, target, set, get, Class(), cell, Class());
    }

    NSObject property(NSString key) const {
        return send<PSSpecifier, "propertyForKey:", NSObject>(*this, key);
    }
    // Leaves nil out, for which the platform may raise.
    void setProperty(Object value, NSString key) const {
        if (value) send<PSSpecifier, "setProperty:forKey:", void>(*this, cast<NSObject>(value), key);
    }
    NSString identifier() const { return send<PSSpecifier, "identifier", NSString>(*this); }
    void setIdentifier(NSString identifier) const {
        send<PSSpecifier, "setIdentifier:", void>(*this, identifier);
    }
    NSString name() const { return send<PSSpecifier, "name", NSString>(*this); }
    void setName(NSString name) const { send<PSSpecifier, "setName:", void>(*this, name); }
    PSCellType cellType() const { return send<PSSpecifier, "cellType", PSCellType>(*this); }

    // What a row with a list of values offers, and the title of each value.
    NSArray values() const { return send<PSSpecifier, "values", NSArray>(*this); }
    NSDictionary titles() const { return send<PSSpecifier, "titleDictionary", NSDictionary>(*this); }
    void setValues(NSArray values, NSArray titles) const {
        send<PSSpecifier, "setValues:titles:", void>(*this, values, titles);
    }
};

struct PSListController : UIViewController {
    static constexpr FixedString className = "PSListController";

    // The row that opened this pane.
    PSSpecifier specifier() const { return send<PSListController, "specifier", PSSpecifier>(*this); }
    void setTitle(NSString title) const { send<PSListController, "setTitle:", void>(*this, title); }
    NSArray loadSpecifiers(NSString propertyList) const {
        return send<PSListController, "loadSpecifiersFromPlistName:target:", NSArray>(*this, propertyList,
                                                                                      NSObject(*this));
    }
    PSSpecifier specifierForID(NSString identifier) const {
        return send<PSListController, "specifierForID:", PSSpecifier>(*this, identifier);
    }
    // Forgets the rows and asks for them again.
    void reloadSpecifiers() const { send<PSListController, "reloadSpecifiers", void>(*this); }
    void reloadSpecifier(PSSpecifier specifier) const {
        send<PSListController, "reloadSpecifier:", void>(*this, specifier);
    }

    // The rows that the framework itself looks at; panes fill this variable, since there is no method for it.
    NSArray rows() const { return cast<NSArray>(Object{*rowsVariable()}); }
    void keepRows(Owner<NSArray> rows) const { *rowsVariable() = rows.leak().pointer; }

  private:
    id* rowsVariable() const {
        const Ivar variable = class_getInstanceVariable(classNamed<className>(), "_specifiers");
        return reinterpret_cast<id*>(reinterpret_cast<char*>(pointer) + ivar_getOffset(variable));
    }
};

} // namespace rollkeeper
