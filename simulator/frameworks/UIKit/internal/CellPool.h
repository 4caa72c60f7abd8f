// The cells of a table or collection: which are on the screen for which index paths, and those that wait for
// reuse.
#pragma once

#import "UIKit/UIView.h"
#import "UIKit/internal/Ownership.h"

#include <map>
#include <string>
#include <vector>

namespace simulator {

struct IndexPair {
    NSInteger section = 0;
    NSInteger item = 0;

    auto operator<=>(const IndexPair&) const = default;
};

IndexPair indexPair(NSIndexPath* path);
NSIndexPath* indexPath(IndexPair pair);

// Cell is UITableViewCell* or UICollectionViewCell*. Both answer reuseIdentifier and prepareForReuse.
template <typename Cell> class CellPool {
  public:
    void registerClass(Class cellClass, NSString* identifier) {
        m_classes[[identifier UTF8String]] = cellClass;
    }

    Class classFor(NSString* identifier) const {
        const auto found = m_classes.find([identifier UTF8String]);
        return found == m_classes.end() ? nil : found->second;
    }

    // nil when none waits.
    Cell dequeue(NSString* identifier) {
        auto& waiting = m_waiting[[identifier UTF8String]];
        if (waiting.empty()) return nil;
        const Retained<Cell> cell = waiting.back();
        waiting.pop_back();
        [cell.get() prepareForReuse];
        return cell.autoreleased();
    }

    Cell shownAt(IndexPair index) const {
        const auto found = m_shown.find(index);
        return found == m_shown.end() ? nil : found->second.get();
    }

    const std::map<IndexPair, Retained<Cell>>& shown() const { return m_shown; }
    void show(Cell cell, IndexPair index) { m_shown[index] = cell; }

    // Takes those cells from the screen whose index does not satisfy `stays`.
    template <typename Predicate> void recycleUnless(Predicate stays) {
        for (auto each = m_shown.begin(); each != m_shown.end();) {
            if (stays(each->first)) {
                ++each;
                continue;
            }
            Cell cell = each->second.get();
            [cell removeFromSuperview];
            if (NSString* identifier = [cell reuseIdentifier])
                m_waiting[[identifier UTF8String]].push_back(cell);
            each = m_shown.erase(each);
        }
    }

    NSIndexPath* pathOf(Cell cell) const {
        for (const auto& [index, shown] : m_shown)
            if (shown.get() == cell) return indexPath(index);
        return nil;
    }

    NSArray* cells() const {
        NSMutableArray* cells = [NSMutableArray array];
        for (const auto& [index, cell] : m_shown)
            [cells addObject:cell.get()];
        return cells;
    }

  private:
    std::map<IndexPair, Retained<Cell>> m_shown;
    std::map<std::string, std::vector<Retained<Cell>>> m_waiting;
    std::map<std::string, Class> m_classes;
};

} // namespace simulator
