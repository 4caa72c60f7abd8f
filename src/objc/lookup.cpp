#include "objc/lookup.h"

namespace rollkeeper::detail {

SEL lookUp(SelectorReference& reference) {
    SEL known = reference.found.load();
    if (!known) [[unlikely]] {
        known = sel_registerName(reference.name);
        reference.found.store(known);
    }
    return known;
}

Class lookUp(ClassReference& reference) {
    Class known = reference.found.load();
    if (!known) [[unlikely]] {
        known = objc_getClass(reference.name);
        if (known) reference.found.store(known);
    }
    return known;
}

} // namespace rollkeeper::detail
