// The checked table: a fixed run of elements with index 0 present, and the only way into the world tables.
// Every access is checked; a miss is the failure "subscript out of range" that names the table.
#pragma once

#include "core/value.h"

#include <array>
#include <string>
#include <type_traits>

namespace tessaly {

// The whole number that a value is when it stands as an index: rounded to the nearest; fails with subscript out
// of range where it is beyond any table, with type mismatch where it is a text.
int indexof(const value& v, const char* tablename);

[[noreturn]] void subscriptfailure(const char* tablename, double index, int last);

// What all tables share, so that the whole world can be put back to its first state.
class tablebase {
  public:
    virtual ~tablebase() = default;
    virtual void forget() = 0;  // every element back to what it is before anything was read
    static tablebase* first;
    tablebase* next;

  protected:
    tablebase() : next(first) { first = this; }
    tablebase(const tablebase&) = delete;
    tablebase& operator=(const tablebase&) = delete;
};

// cleared: the last index that clear() puts to 0; nothing above it is ever cleared.
template <class element, int last, int cleared = 0>
class table final : public tablebase {
  public:
    explicit table(const char* itsname) : name(itsname) {}

    const element& operator[](int index) const { return held[checked(index)]; }
    const element& operator[](const value& index) const { return held[checked(indexof(index, name))]; }

    void set(int index, element e) { held[mark(index)] = e; }
    void set(const value& index, element e) { held[mark(indexof(index, name))] = e; }

    // Every index 1..cleared becomes 0. Only what was written since the last call is touched: the rest is 0 already.
    void clear() {
        for (std::size_t i = 1; i <= static_cast<std::size_t>(highest); ++i) held[i] = element(0);
        highest = 0;
    }

    void forget() override {
        held.fill(element{});
        highest = cleared;
    }

    static constexpr int lastindex = last;

  private:
    std::size_t checked(int index) const {
        if (static_cast<unsigned>(index) > static_cast<unsigned>(last)) [[unlikely]]
            subscriptfailure(name, index, last);
        return static_cast<std::size_t>(index);
    }
    std::size_t mark(int index) {
        const std::size_t place = checked(index);
        if (index > highest && index <= cleared) highest = index;
        return place;
    }

    const char* name;
    int highest = cleared;  // above it 1..cleared was not written since the last clear; at first all counts as written
    std::array<element, static_cast<std::size_t>(last) + 1> held{};
};

}  // namespace tessaly
