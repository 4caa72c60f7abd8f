// expect: stack arguments differ between phone and Linux
// The phone packs a small argument that finds no register, Linux gives it eight bytes.
#include "platform/foundation.h"

namespace rollkeeper {

#ifdef MUST_FAIL
using Last = bool;
#else
using Last = NSObject;
#endif

void tell(NSObject receiver, NSObject x, Last last) {
    send<NSObject, "a:b:c:d:e:f:g:", void>(receiver, x, x, x, x, x, x, last);
}

} // namespace rollkeeper
