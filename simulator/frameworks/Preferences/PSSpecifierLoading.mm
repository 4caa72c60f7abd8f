#import "Preferences/PSKeys.h"
#import "Preferences/PSListController.h"
#import "Preferences/PSSpecifier.h"
#import "Preferences/PSTableCell.h"

#include <objc/runtime.h>

namespace {

// A property list may hold anything: what is no string counts as missing.
NSString* stringIn(NSDictionary* item, NSString* key) {
    id value = [item objectForKey:key];
    return [value isKindOfClass:[NSString class]] ? value : nil;
}

NSArray* arrayIn(NSDictionary* item, NSString* key) {
    id value = [item objectForKey:key];
    return [value isKindOfClass:[NSArray class]] ? value : nil;
}

Class classIn(NSDictionary* item, NSString* key) {
    NSString* name = stringIn(item, key);
    return name ? objc_getClass([name UTF8String]) : Nil;
}

SEL selectorIn(NSDictionary* item, NSString* key) {
    NSString* name = stringIn(item, key);
    return name ? NSSelectorFromString(name) : nullptr;
}

// One file's texts in the user's language.
struct Strings {
    NSBundle* bundle;
    NSString* table;

    NSString* localized(NSString* text) const {
        if (text == nil || bundle == nil) return text;
        return [bundle localizedStringForKey:text value:text table:table];
    }
    NSArray* localizedArray(NSArray* texts) const {
        NSMutableArray* all = [NSMutableArray array];
        for (id text in texts)
            [all addObject:[text isKindOfClass:[NSString class]] ? localized(text) : text];
        return all;
    }
};

void readActions(PSSpecifier* specifier, NSDictionary* item) {
    specifier->cancel = selectorIn(item, PSCancelKey);
    [specifier setLegacyAction:selectorIn(item, PSActionKey)];
    [specifier setButtonAction:selectorIn(item, PSButtonActionKey)];
    [specifier setConfirmationAction:selectorIn(item, PSConfirmationActionKey)];
    [specifier setControllerLoadAction:selectorIn(item, PSControllerLoadActionKey)];
}

void readProperties(PSSpecifier* specifier, NSDictionary* item, const Strings& strings) {
    [specifier setProperties:item];
    Class cellClass = classIn(item, PSCellClassKey);
    [specifier setProperty:cellClass forKey:PSCellClassKey];
    if ([specifier identifier] == nil) [specifier setIdentifier:stringIn(item, PSTitleKey)];
    for (NSString* key in @[ PSFooterTextGroupKey, PSPlaceholderKey, PSStaticTextMessageKey ])
        if (NSString* text = stringIn(item, key)) [specifier setProperty:strings.localized(text) forKey:key];
}

void readValues(PSSpecifier* specifier, NSDictionary* item, const Strings& strings) {
    NSArray* values = arrayIn(item, PSValidValuesKey);
    NSArray* titles = arrayIn(item, PSValidTitlesKey);
    if (values && titles)
        [specifier setValues:values
                      titles:strings.localizedArray(titles)
                 shortTitles:arrayIn(item, PSShortTitlesKey)];
    else
        [specifier loadValuesAndTitlesFromDataSource];
}

// A row that opens a bundle's pane loads the bundle only when it is tapped.
void prepareBundle(PSSpecifier* specifier, NSDictionary* item) {
    NSString* name = stringIn(item, PSBundlePathKey);
    if (name == nil || ![[item objectForKey:PSBundleIsControllerKey] boolValue]) return;
    NSString* path = [name isAbsolutePath]
                         ? name
                         : [NSString stringWithFormat:@"/Library/PreferenceBundles/%@.bundle", name];
    [specifier setProperty:path forKey:PSLazilyLoadedBundleKey];
    if (![specifier controllerLoadAction]) [specifier setControllerLoadAction:@selector(lazyLoadBundle:)];
}

PSSpecifier* specifierFrom(NSDictionary* item, id target, const Strings& strings) {
    SEL setter = selectorIn(item, PSSetterKey);
    SEL getter = selectorIn(item, PSGetterKey);
    PSSpecifier* specifier = [PSSpecifier
        preferenceSpecifierNamed:strings.localized(stringIn(item, PSTitleKey))
                          target:target
                             set:setter ? setter : @selector(setPreferenceValue:specifier:)
                             get:getter ? getter : @selector(readPreferenceValue:)
                          detail:classIn(item, PSDetailControllerClassKey)
                            cell:[PSTableCell cellTypeFromString:stringIn(item, PSTableCellClassKey)]
                            edit:classIn(item, PSEditPaneClassKey)];
    readProperties(specifier, item, strings);
    readActions(specifier, item);
    readValues(specifier, item, strings);
    prepareBundle(specifier, item);
    return specifier;
}

} // namespace

NSArray* PSSpecifiersFromPropertyList(NSDictionary* list, id target, NSBundle* bundle,
                                      NSString* stringsTable) {
    const Strings strings{bundle, stringsTable};
    NSMutableArray* specifiers = [NSMutableArray array];
    for (id item in arrayIn(list, @"items"))
        if ([item isKindOfClass:[NSDictionary class]])
            [specifiers addObject:specifierFrom(item, target, strings)];
    return specifiers;
}
