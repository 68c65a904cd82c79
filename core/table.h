// The checked table: a fixed number of elements starting at index 0. The world tables are accessible only through it.
// Every access checks the index and fails with "subscript out of range", naming the table.
#pragma once

#include "core/value.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <vector>

namespace tessaly {

// The slow path of indexof: rounds v to the nearest whole number. Call indexof instead.
int roundedindex(const value& v, const char* tablename, int last);

// Returns a value as an index, rounded to the nearest whole number. Fails with subscript out of range if it is not
// within 0..last, with type mismatch if it is a text that is not a number.
inline int indexof(const value& v, const char* tablename, int last) {
    const double number = v.isnumber() ? double(v) : -1;
    if (number >= 0 && number <= last && number == static_cast<int>(number)) return static_cast<int>(number);
    return roundedindex(v, tablename, last);
}

// If true, all shortcuts are disabled: those of this file, core/fields, render/quadsort and render/raster. Tests and
// benchmarks compare runs with and without them; the program never sets it.
extern bool noshortcuts;

[[noreturn]] void subscriptfailure(const char* tablename, double index, int last);

// The base of all tables, linked into a list so that the whole world can be reset and inspected.
class tablebase {
  public:
    virtual ~tablebase() = default;
    virtual void reset() = 0;  // sets every element to its initial state
    virtual std::vector<value> elements() const = 0;
    static tablebase* first;
    tablebase* next;
    const char* const name;

  protected:
    explicit tablebase(const char* itsname) : next(first), name(itsname) { first = this; }
    tablebase(const tablebase&) = delete;
    tablebase& operator=(const tablebase&) = delete;
};

// Records which indexes of a table were written, in pages of 64 elements: page p has the indexes 64p to 64p + 63.
class writtenpages {
  public:
    static constexpr int pagesize = 64, maxpages = 128;

    void mark(int index) {
        const std::uint64_t page = std::uint64_t(1) << (index / pagesize % 64);
        if (!(words[word(index)] & page))
            words[word(index)] |= page;  // an unconditional store would delay the next load
    }
    void markall() { words.fill(~std::uint64_t(0)); }
    void reset() { words.fill(0); }
    void operator|=(const writtenpages& other) {
        for (std::size_t w = 0; w < words.size(); ++w) words[w] |= other.words[w];
    }
    // For each written page in ascending order, calls call(first, last) with its range of indexes within 1..end. With
    // noshortcuts, all pages are visited.
    template <class procedure>
    void visit(int end, procedure call) const {
        for (std::size_t w = 0; w < words.size(); ++w)
            for (std::uint64_t left = noshortcuts ? ~std::uint64_t(0) : words[w]; left != 0; left &= left - 1) {
                const int page = static_cast<int>(w) * 64 + std::countr_zero(left);
                const int first = std::max(page * pagesize, 1), last = std::min(page * pagesize + pagesize - 1, end);
                if (first > last) return;
                call(first, last);
            }
    }

  private:
    static std::size_t word(int index) { return static_cast<std::size_t>(index / pagesize / 64); }
    std::array<std::uint64_t, maxpages / 64> words{};
};

// cleared: the last index that clear() sets to 0; elements above it are never cleared.
template <class element, int last, int cleared = 0>
class table final : public tablebase {
  public:
    explicit table(const char* itsname) : tablebase(itsname) { pages.markall(); }

    const element& operator[](int index) const { return held[checked(index)]; }
    const element& operator[](const value& index) const { return held[checked(indexof(index, name, last))]; }

    void set(int index, element e) { held[mark(index)] = e; }
    void set(const value& index, element e) { held[mark(indexof(index, name, last))] = e; }

    // Sets the indexes 1..cleared to 0. Touches only pages written since the last call; all others are 0 already.
    void clear() {
        pages.visit(cleared, [this](int from, int to) { zero(from, to); });
        pages.reset();
    }
    // The pages within 1..cleared that may hold something other than 0.
    const writtenpages& written() const { return pages; }

    void reset() override {
        held = {};
        pages.markall();
    }
    std::vector<value> elements() const override { return {held.begin(), held.end()}; }

  private:
    static_assert(cleared < writtenpages::pagesize * writtenpages::maxpages);

    std::size_t checked(int index) const {
        if (static_cast<unsigned>(index) > static_cast<unsigned>(last)) [[unlikely]]
            subscriptfailure(name, index, last);
        return static_cast<std::size_t>(index);
    }
    std::size_t mark(int index) {
        const std::size_t slot = checked(index);
        if constexpr (cleared > 0)
            if (index <= cleared) pages.mark(index);
        return slot;
    }
    void zero(int from, int to) { std::fill(held.begin() + from, held.begin() + to + 1, element(0)); }

    writtenpages pages;  // at the start all pages count as written, because empty elements are not 0
    std::array<element, static_cast<std::size_t>(last) + 1> held{};
};

}  // namespace tessaly
