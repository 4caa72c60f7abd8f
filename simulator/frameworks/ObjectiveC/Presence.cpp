#include "frameworks/ObjectiveC/Presence.h"

#include "device/releases.h"

#include <array>
#include <atomic>
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

struct SelectorRules {
    std::uintptr_t nameNumber = 0;
    std::vector<ClassRule> rules;
};

// The selectors that some class lacks in this release. Nearly every message misses here, and must do so in a
// few instructions: hence open addressing over the number of the name.
class AbsenceTable {
  public:
    AbsenceTable() {
        for (const SignatureRow& row : signatureTable())
            if (row.kind != 'c' && !row.existsIn(currentRelease()))
                slotFor(nameNumber(sel_registerName(row.selector.c_str())));
        for (const SignatureRow& row : signatureTable())
            if (row.kind != 'c') addRule(row);
    }

    const SelectorRules* find(SEL selector) const {
        const std::uintptr_t number = nameNumber(selector);
        for (std::size_t i = hash(number);; ++i) {
            const SelectorRules& slot = m_slots[i % m_slots.size()];
            if (slot.nameNumber == number) return &slot;
            if (slot.nameNumber == 0) return nullptr;
        }
    }

  private:
    static std::size_t hash(std::uintptr_t number) { return (number ^ (number >> 16)) * 0x9E3779B1u >> 8; }

    SelectorRules& slotFor(std::uintptr_t number) {
        for (std::size_t i = hash(number);; ++i) {
            SelectorRules& slot = m_slots[i % m_slots.size()];
            if (slot.nameNumber == 0) slot.nameNumber = number;
            if (slot.nameNumber == number) return slot;
        }
    }

    void addRule(const SignatureRow& row) {
        SEL selector = sel_registerName(row.selector.c_str());
        if (find(selector) != nullptr)
            slotFor(nameNumber(selector))
                .rules.push_back({row.className, row.kind, row.existsIn(currentRelease())});
    }

    std::array<SelectorRules, 2048> m_slots; // several times the rows of the table
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

struct AddedMethods {
    std::mutex lock;
    std::set<std::pair<Class, std::uintptr_t>> methods;
};

AddedMethods& addedMethods() {
    static auto* shared = new AddedMethods;
    return *shared;
}

bool wasAdded(Class cls, SEL selector) {
    AddedMethods& added = addedMethods();
    const std::lock_guard guard(added.lock);
    return added.methods.contains({cls, nameNumber(selector)});
}

} // namespace

bool methodIsPresent(Class cls, SEL selector) {
    const SelectorRules* known = absenceTable().find(selector);
    if (known == nullptr) return true;
    const char kind = class_isMetaClass(cls) ? '+' : '-';
    for (Class each = cls; each != Nil; each = class_getSuperclass(each)) {
        if (wasAdded(each, selector)) return true;
        for (const ClassRule& rule : known->rules)
            if (rule.kind == kind && rule.className == class_getName(each)) return rule.present;
    }
    return true;
}

void noteAddedMethod(Class cls, SEL selector) {
    AddedMethods& added = addedMethods();
    const std::lock_guard guard(added.lock);
    added.methods.insert({cls, nameNumber(selector)});
}

void forgetMethodsAbsentBefore() { table = nullptr; }

} // namespace simulator
