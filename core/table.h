// The checked table: a fixed run of elements with index 0 present, and the only way into the world tables.
// Every access is checked; a miss is the failure "subscript out of range" that names the table.
#pragma once

#include "core/value.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <vector>

namespace tessaly {

// The nearest whole number, which v is not already; indexof is the one to call.
int roundedindex(const value& v, const char* tablename, int last);

// The whole number that a value is when it stands as an index: rounded to the nearest; fails with subscript out
// of range where it is not within 0..last, with type mismatch where it is a text.
inline int indexof(const value& v, const char* tablename, int last) {
    const double number = v.isnumber() ? double(v) : -1;
    if (number >= 0 && number <= last && number == static_cast<int>(number)) return static_cast<int>(number);
    return roundedindex(v, tablename, last);
}

// true: every shortcut gives way to the plain way that it stands for, this one and those of core/fields and
// render/raster. Tests and benchmarks compare the two; the program never sets it.
extern bool noshortcuts;

[[noreturn]] void subscriptfailure(const char* tablename, double index, int last);

// What all tables share, so that the whole world can be put back to its first state.
class tablebase {
  public:
    virtual ~tablebase() = default;
    virtual void forget() = 0;  // every element back to what it is before anything was read
    virtual std::vector<value> elements() const = 0;
    static tablebase* first;
    tablebase* next;
    const char* const name;

  protected:
    explicit tablebase(const char* itsname) : next(first), name(itsname) { first = this; }
    tablebase(const tablebase&) = delete;
    tablebase& operator=(const tablebase&) = delete;
};

// Which indexes of a table were written, by pages of 64 elements: page p holds the indexes 64p to 64p + 63.
class writtenpages {
  public:
    static constexpr int pagesize = 64, maxpages = 128;

    void mark(int index) {
        const std::uint64_t page = std::uint64_t(1) << (index / pagesize % 64);
        if (!(words[word(index)] & page)) words[word(index)] |= page;  // a store each time would hold up the next
    }
    void markall() { words.fill(~std::uint64_t(0)); }
    void forget() { words.fill(0); }
    void operator|=(const writtenpages& other) {
        for (std::size_t w = 0; w < words.size(); ++w) words[w] |= other.words[w];
    }
    // Runs visit(first, last) for each written page's indexes within 1..end, ascending; the plain way takes every page.
    template <class procedure>
    void over(int end, procedure visit) const {
        for (std::size_t w = 0; w < words.size(); ++w)
            for (std::uint64_t left = noshortcuts ? ~std::uint64_t(0) : words[w]; left != 0; left &= left - 1) {
                const int page = static_cast<int>(w) * 64 + std::countr_zero(left);
                const int first = std::max(page * pagesize, 1), last = std::min(page * pagesize + pagesize - 1, end);
                if (first > last) return;
                visit(first, last);
            }
    }

  private:
    static std::size_t word(int index) { return static_cast<std::size_t>(index / pagesize / 64); }
    std::array<std::uint64_t, maxpages / 64> words{};
};

// cleared: the last index that clear() puts to 0; nothing above it is ever cleared.
template <class element, int last, int cleared = 0>
class table final : public tablebase {
  public:
    explicit table(const char* itsname) : tablebase(itsname) { pages.markall(); }

    const element& operator[](int index) const { return held[checked(index)]; }
    const element& operator[](const value& index) const { return held[checked(indexof(index, name, last))]; }

    void set(int index, element e) { held[mark(index)] = e; }
    void set(const value& index, element e) { held[mark(indexof(index, name, last))] = e; }

    // Every index 1..cleared becomes 0. Only pages written since the last call are touched: the rest is 0 already.
    void clear() {
        pages.over(cleared, [this](int from, int to) { zero(from, to); });
        pages.forget();
    }
    // What may be other than 0 in 1..cleared.
    const writtenpages& written() const { return pages; }

    void forget() override {
        held = {};
        pages.markall();
    }
    std::vector<value> elements() const override { return {held.begin(), held.end()}; }

    static constexpr int lastindex = last;

  private:
    static_assert(cleared < writtenpages::pagesize * writtenpages::maxpages);

    std::size_t checked(int index) const {
        if (static_cast<unsigned>(index) > static_cast<unsigned>(last)) [[unlikely]]
            subscriptfailure(name, index, last);
        return static_cast<std::size_t>(index);
    }
    std::size_t mark(int index) {
        const std::size_t place = checked(index);
        if constexpr (cleared > 0)
            if (index <= cleared) pages.mark(index);
        return place;
    }
    void zero(int from, int to) { std::fill(held.begin() + from, held.begin() + to + 1, element(0)); }

    writtenpages pages;  // at first all counts as written: empty is not 0
    std::array<element, static_cast<std::size_t>(last) + 1> held{};
};

}  // namespace tessaly
