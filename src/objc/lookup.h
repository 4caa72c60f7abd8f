// Selectors and classes by name, looked up once for each name and safe to use from any thread.
#pragma once

#include "objc/cached_pointer.h"
#include "objc/fixed_string.h"
#include "objc/runtime.h"

namespace rollkeeper {

namespace detail {

struct SelectorReference {
    const char* name;
    CachedPointer<SEL> found;
};

struct ClassReference {
    const char* name;
    CachedPointer<Class> found;
};

template <FixedString name> inline constinit SelectorReference selectorReference{name.text, {}};
template <FixedString name> inline constinit ClassReference classReference{name.text, {}};

// Out of line on purpose: hundreds of messages share them, and the library has to stay small.
SEL lookUp(SelectorReference& reference);
Class lookUp(ClassReference& reference);

} // namespace detail

template <FixedString name> SEL selector() { return detail::lookUp(detail::selectorReference<name>); }

// Nil where the process has no class of that name. A miss is asked again the next time, since the framework
// that holds the class may be loaded later.
template <FixedString name> Class classNamed() { return detail::lookUp(detail::classReference<name>); }

} // namespace rollkeeper
