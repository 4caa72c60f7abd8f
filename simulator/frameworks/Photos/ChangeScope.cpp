#include "frameworks/Photos/ChangeScope.h"

#include <atomic>

namespace simulator {

namespace {

thread_local ChangeScope* currentScope = nullptr;
std::atomic<std::uint64_t> lastNumber = 0;

} // namespace

ChangeScope::ChangeScope() : m_number(++lastNumber) { currentScope = this; }

ChangeScope::~ChangeScope() { currentScope = nullptr; }

ChangeScope* ChangeScope::current() { return currentScope; }

} // namespace simulator
