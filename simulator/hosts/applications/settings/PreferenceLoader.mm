#import "hosts/applications/settings/PreferenceLoader.h"

#import "CoreFoundation/CoreFoundation.h"

namespace {

NSString* const entryFolder = @"/Library/PreferenceLoader/Preferences";
NSString* const bundleFolders[] = {@"/Library/PreferenceBundles", @"/System/Library/PreferenceBundles"};
NSString* const entryFileKey = @"pl-entry-file";

NSDictionary* dictionaryIn(NSDictionary* dictionary, NSString* key) {
    id value = [dictionary objectForKey:key];
    return [value isKindOfClass:[NSDictionary class]] ? value : nil;
}

// [lowest, first that is too high], the second one optional.
BOOL meetsVersion(NSArray* range) {
    if (![range isKindOfClass:[NSArray class]] || [range count] == 0) return YES;
    if (kCFCoreFoundationVersionNumber < [[range objectAtIndex:0] doubleValue]) return NO;
    return [range count] < 2 || kCFCoreFoundationVersionNumber < [[range objectAtIndex:1] doubleValue] ? YES
                                                                                                       : NO;
}

BOOL meetsConditions(NSDictionary* file, NSDictionary* entry) {
    for (NSDictionary* filter :
         {dictionaryIn(file, @"filter"), dictionaryIn(file, @"pl_filter"), dictionaryIn(entry, @"pl_filter")})
        if (!meetsVersion([filter objectForKey:@"CoreFoundationVersion"])) return NO;
    return YES;
}

NSString* pathOfBundle(NSDictionary* entry) {
    NSString* name = [[entry objectForKey:PSBundlePathKey] stringByAppendingPathExtension:@"bundle"];
    NSMutableArray* candidates = [NSMutableArray array];
    if (NSString* given = [entry objectForKey:@"bundlePath"]) [candidates addObject:given];
    for (NSString* folder : bundleFolders)
        [candidates addObject:[folder stringByAppendingPathComponent:name]];
    for (NSString* path in candidates)
        if ([[NSFileManager defaultManager] fileExistsAtPath:path]) return path;
    return nil;
}

PSSpecifier* rowFor(NSDictionary* entry, id target) {
    NSArray* rows = PSSpecifiersFromPropertyList(@{@"items" : @[ entry ]}, target, nil, nil);
    return [rows firstObject];
}

PSSpecifier* specifierFromFile(NSString* path, id target) {
    NSDictionary* file = [NSDictionary dictionaryWithContentsOfFile:path];
    NSDictionary* entry = dictionaryIn(file, @"entry");
    if (entry == nil || !meetsConditions(file, entry)) return nil;
    PSSpecifier* row = rowFor(entry, target);
    if ([entry objectForKey:PSBundlePathKey] == nil) {
        [row setProperty:path forKey:entryFileKey];
        [row setDetailControllerClass:[PLCustomListController class]];
        return row;
    }
    NSString* bundle = pathOfBundle(entry);
    if (bundle == nil) {
        NSLog(@"Settings: the bundle of the entry %@ is missing", path);
        return nil;
    }
    [row setProperty:bundle forKey:PSLazilyLoadedBundleKey];
    [row setupIconImageWithBundle:[NSBundle bundleWithPath:bundle]];
    return row;
}

} // namespace

NSArray* PLLoadEntries(id target) {
    NSMutableArray* rows = [NSMutableArray array];
    for (NSString* name in [[NSFileManager defaultManager] subpathsAtPath:entryFolder]) {
        if (![[name pathExtension] isEqualToString:@"plist"]) continue;
        PSSpecifier* row = specifierFromFile([entryFolder stringByAppendingPathComponent:name], target);
        if (row) [rows addObject:row];
    }
    NSSortDescriptor* byName = [NSSortDescriptor sortDescriptorWithKey:@"name" ascending:YES];
    [rows sortUsingDescriptors:@[ byName ]];
    return rows;
}

@implementation PLCustomListController

- (NSArray*)specifiers {
    if (_specifiers == nil) {
        NSDictionary* file =
            [NSDictionary dictionaryWithContentsOfFile:[[self specifier] propertyForKey:entryFileKey]];
        _specifiers = [PSSpecifiersFromPropertyList(file, self, nil, nil) retain];
        if (NSString* title = [file objectForKey:@"title"]) [self setTitle:title];
    }
    return _specifiers;
}

@end
