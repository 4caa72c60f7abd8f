#import "Preferences/PSRootController.h"

#import "CoreFoundation/CoreFoundation.h"
#import "Preferences/PSKeys.h"
#import "Preferences/PSSpecifier.h"

namespace {

NSString* fileOf(NSString* domain) {
    return [NSString stringWithFormat:@"/var/mobile/Library/Preferences/%@.plist", domain];
}

id negatedIfWanted(id value, PSSpecifier* specifier) {
    if (value == nil || ![[specifier propertyForKey:PSNegateValueKey] boolValue]) return value;
    return [NSNumber numberWithBool:[value boolValue] ? NO : YES];
}

void post(NSString* name) {
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         reinterpret_cast<CFStringRef>(name), nullptr, nullptr, true);
}

} // namespace

@implementation PSRootController

+ (id)readPreferenceValue:(PSSpecifier*)specifier {
    NSString* key = [specifier propertyForKey:PSKeyNameKey];
    NSString* domain = [specifier propertyForKey:PSDefaultsKey];
    if (key == nil || domain == nil) return nil;
    id value = [[NSDictionary dictionaryWithContentsOfFile:fileOf(domain)] objectForKey:key];
    if (value == nil) value = [specifier propertyForKey:PSDefaultValueKey];
    value = negatedIfWanted(value, specifier);
    [specifier setProperty:value forKey:PSValueKey];
    return value;
}

+ (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier {
    if (value == nil || [value isEqual:[specifier propertyForKey:PSValueKey]]) return;
    [specifier setProperty:value forKey:PSValueKey];
    [self writePreference:specifier];
}

+ (void)writePreference:(PSSpecifier*)specifier {
    NSString* key = [specifier propertyForKey:PSKeyNameKey];
    NSString* domain = [specifier propertyForKey:PSDefaultsKey];
    id value = negatedIfWanted([specifier propertyForKey:PSValueKey], specifier);
    if (key == nil || domain == nil || value == nil) return;
    NSMutableDictionary* stored = [NSMutableDictionary dictionaryWithContentsOfFile:fileOf(domain)];
    if (stored == nil) stored = [NSMutableDictionary dictionary];
    [stored setObject:value forKey:key];
    [stored writeToFile:fileOf(domain) atomically:YES];
    if (NSString* name = [specifier propertyForKey:PSValueChangedNotificationKey]) post(name);
}

- (id)readPreferenceValue:(PSSpecifier*)specifier {
    return [PSRootController readPreferenceValue:specifier];
}

- (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier {
    [PSRootController setPreferenceValue:value specifier:specifier];
}

@end
