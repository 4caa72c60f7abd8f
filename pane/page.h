// A page of the pane: rows from a property list, with their texts, values and what a change does.
#pragma once

#include "preferences.h"

#include "objc/replacement.h"

#include <span>

namespace rollkeeper::pane {

// Makes the rows of a page; runs when the framework asks for them first and after each reload.
using RowMaker = Owner<NSMutableArray> (*)(PSListController page);

// The rows of the page's property list, in the user's language. Also names the page.
Owner<NSMutableArray> rowsFromPropertyList(PSListController page);

// -specifiers of a page.
template <RowMaker makeRows> NSArray specifiers(PSListController self, SEL) {
    if (!self.rows()) self.keepRows(Owner<NSArray>::adopting(makeRows(self).leak()));
    return self.rows();
}

struct PageMethod {
    const char* selector;
    HookFunction function;
};

// Registers a class of pages with the given methods and, where these are silent, what all pages do. Nothing
// happens where the framework is missing or the pane is loaded twice.
void registerPage(const char* className, std::span<const PageMethod> methods);

} // namespace rollkeeper::pane
