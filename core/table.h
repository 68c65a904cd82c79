// The checked table: a fixed number of elements starting at index 0. All tables of core/world.h are checked tables. An
// access with an index outside the table fails with subscript out of range and names the table.
#pragma once

#include "core/value.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cstddef>
#include <vector>

namespace tessaly {

// The slow path of indexof, for values that are not whole numbers within 0..last. Call indexof instead.
int roundedindex(const value& v, const char* tablename, int last);

// Returns a value as an index, rounded to the nearest whole number. Fails with subscript out of range if the result is
// not within 0..last, and with type mismatch for a text that is not a number.
inline int indexof(const value& v, const char* tablename, int last) {
    const double number = v.isnumber() ? double(v) : -1;
    if (number >= 0 && number <= last && number == static_cast<int>(number)) return static_cast<int>(number);
    return roundedindex(v, tablename, last);
}

// Disables all shortcuts: those of this file, core/fields, render/quadsort and render/raster. Tests and benchmarks
// compare runs with and without shortcuts; the program never sets this flag.
inline bool noshortcuts = false;

[[noreturn]] void subscriptfailure(const char* tablename, double index, int last);

// The base of all tables. They form a linked list, through which all of them can be reset and inspected.
class tablebase {
  public:
    virtual ~tablebase() = default;
    virtual void reset() = 0;  // sets every element to its initial state
    virtual void clear() = 0;  // sets to 0 the elements that must be 0 before the next element file is read
    virtual std::vector<value> elements() const = 0;
    static inline tablebase* first = nullptr;
    tablebase* next;
    const char* const name;

  protected:
    explicit tablebase(const char* itsname) : next(first), name(itsname) { first = this; }
    tablebase(const tablebase&) = delete;
};

// A set of pages of a table. Page p has the indexes pagesize * p to pagesize * p + pagesize - 1. Only the indexes that
// clear() sets to 0 need pages.
constexpr int pagesize = 64, maxpages = 128;
using pageset = std::bitset<maxpages>;

// For each page of the set in ascending order, calls action(first, last) with its range of indexes within 1..end. With
// noshortcuts, visits all pages.
template <class procedure>
void visitpages(pageset pages, int end, procedure action) {
    if (noshortcuts) pages.set();
    for (int first = 0; pages.any() && first <= end; first += pagesize, pages >>= 1)
        if (pages[0]) action(std::max(first, 1), std::min(first + pagesize - 1, end));
}

// last: the highest index. cleared: clear() sets the indexes 1..cleared to 0, and no others.
template <class element, int last, int cleared = 0>
class table final : public tablebase {
  public:
    explicit table(const char* itsname) : tablebase(itsname) { writtenpages.set(); }

    const element& operator[](int index) const { return stored[checked(index)]; }
    const element& operator[](const value& index) const { return stored[checked(indexof(index, name, last))]; }

    void set(int index, element e) { stored[markedslot(index)] = e; }
    void set(const value& index, element e) { stored[markedslot(indexof(index, name, last))] = e; }

    // Returns the pages within 1..cleared that may hold something other than 0.
    const pageset& written() const { return writtenpages; }

    // Visits only the pages written since the last call, because all others are 0.
    void clear() override {
        if constexpr (cleared == 0) return;
        visitpages(writtenpages, cleared,
                   [this](int from, int to) { std::fill(stored.begin() + from, stored.begin() + to + 1, element(0)); });
        writtenpages.reset();
    }
    void reset() override {
        stored = {};
        writtenpages.set();
    }
    std::vector<value> elements() const override { return {stored.begin(), stored.end()}; }

  private:
    static_assert(cleared < maxpages * pagesize);

    std::size_t checked(int index) const {
        if (static_cast<unsigned>(index) > static_cast<unsigned>(last)) [[unlikely]]
            subscriptfailure(name, index, last);
        return static_cast<std::size_t>(index);
    }
    // Checks an index and marks its page as written.
    std::size_t markedslot(int index) {
        const std::size_t slot = checked(index), page = slot / pagesize;
        if constexpr (cleared > 0)
            if (index <= cleared && !writtenpages[page])
                writtenpages[page] = true;  // an unconditional store would delay the next load
        return slot;
    }

    pageset writtenpages;  // at the start all pages count as written, because an empty element is not 0
    std::array<element, static_cast<std::size_t>(last) + 1> stored{};
};

}  // namespace tessaly
