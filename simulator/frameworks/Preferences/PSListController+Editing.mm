#import "Preferences/PSListController.h"
#import "Preferences/PSSpecifier.h"

@implementation PSListController (Editing)

// Every change below comes down to this one.
- (void)_replaceRange:(NSRange)range withSpecifiers:(NSArray*)specifiers {
    NSArray* current = [self specifiers];
    NSMutableArray* all = current ? [NSMutableArray arrayWithArray:current] : [NSMutableArray array];
    if (NSMaxRange(range) > [all count]) return;
    [all replaceObjectsInRange:range withObjectsFromArray:specifiers ? specifiers : @[]];
    [self setSpecifiers:all];
}

- (void)beginUpdates {
}
- (void)endUpdates {
}

- (void)insertContiguousSpecifiers:(NSArray*)specifiers atIndex:(NSInteger)index animated:(BOOL)animated {
    if (index != NSNotFound && index >= 0)
        [self _replaceRange:NSMakeRange(static_cast<NSUInteger>(index), 0) withSpecifiers:specifiers];
}

- (void)insertContiguousSpecifiers:(NSArray*)specifiers
                    afterSpecifier:(PSSpecifier*)other
                          animated:(BOOL)animated {
    NSInteger index = [self indexOfSpecifier:other];
    if (index != NSNotFound) [self insertContiguousSpecifiers:specifiers atIndex:index + 1 animated:animated];
}

- (void)insertContiguousSpecifiers:(NSArray*)specifiers
                  afterSpecifierID:(NSString*)identifier
                          animated:(BOOL)animated {
    [self insertContiguousSpecifiers:specifiers
                      afterSpecifier:[self specifierForID:identifier]
                            animated:animated];
}

- (void)addSpecifiersFromArray:(NSArray*)specifiers animated:(BOOL)animated {
    NSInteger end = static_cast<NSInteger>([[self specifiers] count]);
    [self insertContiguousSpecifiers:specifiers atIndex:end animated:animated];
}

- (void)insertSpecifier:(PSSpecifier*)specifier atEndOfGroup:(NSInteger)group animated:(BOOL)animated {
    PSSpecifier* last = [[self specifiersInGroup:group] lastObject];
    [self insertContiguousSpecifiers:@[ specifier ] afterSpecifier:last animated:animated];
}

- (void)removeContiguousSpecifiers:(NSArray*)specifiers animated:(BOOL)animated {
    [self replaceContiguousSpecifiers:specifiers withSpecifiers:nil animated:animated];
}

- (void)replaceContiguousSpecifiers:(NSArray*)old
                     withSpecifiers:(NSArray*)specifiers
                           animated:(BOOL)animated {
    NSInteger index = [self indexOfSpecifier:[old firstObject]];
    if (index != NSNotFound)
        [self _replaceRange:NSMakeRange(static_cast<NSUInteger>(index), [old count])
             withSpecifiers:specifiers];
}

#pragma mark One row

- (void)addSpecifier:(PSSpecifier*)specifier animated:(BOOL)animated {
    [self addSpecifiersFromArray:@[ specifier ] animated:animated];
}

- (void)insertSpecifier:(PSSpecifier*)specifier atIndex:(NSInteger)index animated:(BOOL)animated {
    [self insertContiguousSpecifiers:@[ specifier ] atIndex:index animated:animated];
}

- (void)insertSpecifier:(PSSpecifier*)specifier afterSpecifier:(PSSpecifier*)other animated:(BOOL)animated {
    [self insertContiguousSpecifiers:@[ specifier ] afterSpecifier:other animated:animated];
}

- (void)insertSpecifier:(PSSpecifier*)specifier
       afterSpecifierID:(NSString*)identifier
               animated:(BOOL)animated {
    [self insertContiguousSpecifiers:@[ specifier ] afterSpecifierID:identifier animated:animated];
}

- (void)removeSpecifier:(PSSpecifier*)specifier animated:(BOOL)animated {
    if (specifier) [self removeContiguousSpecifiers:@[ specifier ] animated:animated];
}

- (void)removeSpecifierID:(NSString*)identifier animated:(BOOL)animated {
    [self removeSpecifier:[self specifierForID:identifier] animated:animated];
}

#pragma mark Without animation

- (void)addSpecifier:(PSSpecifier*)specifier {
    [self addSpecifier:specifier animated:NO];
}

- (void)addSpecifiersFromArray:(NSArray*)specifiers {
    [self addSpecifiersFromArray:specifiers animated:NO];
}

- (void)insertSpecifier:(PSSpecifier*)specifier atIndex:(NSInteger)index {
    [self insertSpecifier:specifier atIndex:index animated:NO];
}

- (void)insertSpecifier:(PSSpecifier*)specifier afterSpecifier:(PSSpecifier*)other {
    [self insertSpecifier:specifier afterSpecifier:other animated:NO];
}

- (void)insertSpecifier:(PSSpecifier*)specifier afterSpecifierID:(NSString*)identifier {
    [self insertSpecifier:specifier afterSpecifierID:identifier animated:NO];
}

- (void)insertSpecifier:(PSSpecifier*)specifier atEndOfGroup:(NSInteger)group {
    [self insertSpecifier:specifier atEndOfGroup:group animated:NO];
}

- (void)insertContiguousSpecifiers:(NSArray*)specifiers afterSpecifierID:(NSString*)identifier {
    [self insertContiguousSpecifiers:specifiers afterSpecifierID:identifier animated:NO];
}

- (void)insertContiguousSpecifiers:(NSArray*)specifiers afterSpecifier:(PSSpecifier*)other {
    [self insertContiguousSpecifiers:specifiers afterSpecifier:other animated:NO];
}

- (void)insertContiguousSpecifiers:(NSArray*)specifiers atIndex:(NSInteger)index {
    [self insertContiguousSpecifiers:specifiers atIndex:index animated:NO];
}

- (void)removeSpecifier:(PSSpecifier*)specifier {
    [self removeSpecifier:specifier animated:NO];
}

- (void)removeSpecifierID:(NSString*)identifier {
    [self removeSpecifierID:identifier animated:NO];
}

- (void)removeContiguousSpecifiers:(NSArray*)specifiers {
    [self removeContiguousSpecifiers:specifiers animated:NO];
}

- (void)replaceContiguousSpecifiers:(NSArray*)old withSpecifiers:(NSArray*)specifiers {
    [self replaceContiguousSpecifiers:old withSpecifiers:specifiers animated:NO];
}

@end
