#include "frameworks/ObjectiveC/Presence.h"

#include "device/releases.h"

#include <atomic>
#include <bitset>
#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <utility>

namespace simulator {
namespace {

// The runtime numbers the names of selectors, and a selector begins with the number of its name.
std::uintptr_t nameNumber(SEL selector) { return *reinterpret_cast<const std::uintptr_t*>(selector); }

struct ClassRule {
    std::string_view className;
    char kind;
    bool present;
};

// The selectors that some class lacks in this release. Nearly every message misses here, and must do so in a
// few instructions: hence the bits, which say where looking is of no use.
class AbsenceTable {
  public:
    AbsenceTable() {
        for (const SignatureRow& row : signatureTable())
            if (row.kind != 'c' && !row.existsIn(currentRelease())) m_rules[numberOf(row)];
        for (const auto& [number, rules] : m_rules)
            m_bits[bitOf(number)] = true;
        for (const SignatureRow& row : signatureTable())
            if (row.kind != 'c' && m_rules.contains(numberOf(row)))
                m_rules[numberOf(row)].push_back({row.className, row.kind, row.existsIn(currentRelease())});
    }

    const std::vector<ClassRule>* find(SEL selector) const {
        const std::uintptr_t number = nameNumber(selector);
        if (!m_bits[bitOf(number)]) return nullptr;
        const auto found = m_rules.find(number);
        return found == m_rules.end() ? nullptr : &found->second;
    }

  private:
    static constexpr std::size_t bits = 1 << 16;

    static std::uintptr_t numberOf(const SignatureRow& row) {
        return nameNumber(sel_registerName(row.selector.c_str()));
    }
    static std::size_t bitOf(std::uintptr_t number) { return (number ^ (number >> 16)) * 0x9E3779B1u % bits; }

    std::map<std::uintptr_t, std::vector<ClassRule>> m_rules;
    std::bitset<bits> m_bits;
};

std::atomic<const AbsenceTable*> table = nullptr;

const AbsenceTable& absenceTable() {
    const AbsenceTable* current = table.load(std::memory_order_acquire);
    if (current != nullptr) return *current;
    // One for each release that was asked about; kept, as another thread may be reading it.
    static std::mutex& lock = *new std::mutex;
    static auto& tables = *new std::map<Release, AbsenceTable>;
    const std::lock_guard guard(lock);
    const AbsenceTable& made = tables.try_emplace(currentRelease()).first->second;
    table.store(&made, std::memory_order_release);
    return made;
}

// Methods are added while libraries are being loaded, before the globals of this one are made.
class AddedMethods {
  public:
    void add(Class cls, SEL selector) {
        const std::lock_guard guard(m_lock);
        m_methods.insert({cls, nameNumber(selector)});
    }
    bool contain(Class cls, SEL selector) {
        const std::lock_guard guard(m_lock);
        return m_methods.contains({cls, nameNumber(selector)});
    }

  private:
    std::mutex m_lock;
    std::set<std::pair<Class, std::uintptr_t>> m_methods;
};

AddedMethods& addedMethods() {
    static auto& shared = *new AddedMethods;
    return shared;
}

} // namespace

bool methodIsPresent(Class cls, SEL selector) {
    const std::vector<ClassRule>* known = absenceTable().find(selector);
    if (known == nullptr) return true;
    const char kind = class_isMetaClass(cls) ? '+' : '-';
    for (Class each = cls; each != Nil; each = class_getSuperclass(each)) {
        if (addedMethods().contain(each, selector)) return true;
        for (const ClassRule& rule : *known)
            if (rule.kind == kind && rule.className == class_getName(each)) return rule.present;
    }
    return true;
}

void noteAddedMethod(Class cls, SEL selector) { addedMethods().add(cls, selector); }

void forgetMethodsAbsentBefore() { table = nullptr; }

} // namespace simulator
