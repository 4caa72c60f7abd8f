// An autorelease pool for a scope.
#pragma once

#include "objc/runtime.h"

namespace rollkeeper {

class AutoreleasePool {
  public:
    AutoreleasePool() : pool_(objc_autoreleasePoolPush()) {}
    ~AutoreleasePool() { objc_autoreleasePoolPop(pool_); }
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;

  private:
    void* pool_;
};

} // namespace rollkeeper
