#include "page.h"

#include "alerts.h"
#include "bundle.h"
#include "preference_file.h"

namespace rollkeeper::pane {

namespace {

NSBundle pageBundle(PSListController, SEL) { return bundle(); }

NSNumber readPreferenceValue(PSListController, SEL, PSSpecifier specifier) { return storedValue(specifier); }

void setPreferenceValue(PSListController self, SEL, NSObject value, PSSpecifier specifier) {
    if (store(value, specifier)) return;
    showAlert(self, "write.title"_ns, "write.settings"_ns);
    self.reloadSpecifier(specifier); // shows what the file still says
}

constexpr PageMethod commonMethods[] = {
    {"bundle", addition<"@@:", pageBundle>()},
    {"readPreferenceValue:", addition<"@@:@", readPreferenceValue>()},
    {"setPreferenceValue:specifier:", addition<"v@:@@", setPreferenceValue>()},
};

void translateProperty(PSSpecifier specifier, NSString key) {
    if (const auto known = ifKindOf<NSString>(specifier.property(key)))
        specifier.setProperty(text(known), key);
}

void translateValues(PSSpecifier specifier) {
    const NSArray values = specifier.values();
    if (!values) return;
    Owner<NSMutableArray> titles = make<NSMutableArray>();
    for (NSObject value : each<NSObject>(values))
        titles->addObject(text(cast<NSString>(specifier.titles().objectForKey(value))));
    specifier.setValues(values, titles.get());
}

// All texts stand in one file, while the framework would look for one beside each property list.
void translate(PSSpecifier specifier) {
    if (specifier.name()) specifier.setName(text(specifier.name()));
    translateProperty(specifier, "footerText"_ns);
    translateValues(specifier);
}

void addMethods(Class target, std::span<const PageMethod> methods) {
    for (const PageMethod& method : methods)
        class_addMethod(target, sel_registerName(method.selector), method.function.implementation(),
                        method.function.encoding);
}

} // namespace

Owner<NSMutableArray> rowsFromPropertyList(PSListController page) {
    const PSSpecifier opener = page.specifier();
    const auto named = ifKindOf<NSString>(opener.property("page"_ns));
    Owner<NSMutableArray> rows = make<NSMutableArray>();
    for (PSSpecifier specifier : each<PSSpecifier>(page.loadSpecifiers(named ? named : firstPage()))) {
        translate(specifier);
        rows->addObject(specifier);
    }
    if (opener.name()) page.setTitle(opener.name());
    return rows;
}

void registerPage(const char* className, std::span<const PageMethod> methods) {
    const Class superclass = classNamed<PSListController::className>();
    if (!superclass) return; // the new class would become a root class
    const Class page = objc_allocateClassPair(superclass, className, 0);
    if (!page) return;
    addMethods(page, methods); // come first: what a class has already is not added again
    addMethods(page, commonMethods);
    objc_registerClassPair(page);
}

} // namespace rollkeeper::pane
