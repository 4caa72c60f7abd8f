// Of a coverage build: the counters are mapped before the other constructors run, which else would not count.
extern "C" void __llvm_profile_initialize();

namespace {
[[gnu::constructor(101)]] void beginCounting() { __llvm_profile_initialize(); }
} // namespace
