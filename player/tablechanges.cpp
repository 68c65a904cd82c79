// Compares two copies of the tables element by element.

#include "player/tablechanges.h"

#include "player/checksum.h"
#include "player/programstate.h"

#include <algorithm>
#include <bit>
#include <map>

namespace tessaly {

namespace {

// A table belongs to the group of the first row that its name starts with.
constexpr struct {
    std::string_view prefix, group;
} groups[] = {
    // clang-format off
    {"base",    "points"},
    {"pt",      "points"},
    {"save",    "points"},
    {"plane",   "plane"},
    {"screen",  "screen"},
    {"line",    "lines"},
    {"group",   "lines"},
    {"quad",    "quads"},
    {"framing", "quads"},
    {"cube",    "cubes"},
    {"pal",     "palette"},
    {"rd",      "records"},
    // clang-format on
};

std::string_view groupof(std::string_view table) {
    for (const auto& row : groups)
        if (table.starts_with(row.prefix)) return row.group;
    return table;
}

std::uint64_t bits(double number) { return std::bit_cast<std::uint64_t>(number + 0.0); }  // 0 and -0 are equal

bool same(const value& a, const value& b) {
    if (a.isnumber() && b.isnumber()) return bits(a) == bits(b);
    return a.isnumber() == b.isnumber() && a.empty() == b.empty() && a.text() == b.text();
}

void addelement(checksum& sum, std::size_t index, const value& v) {
    sum.addword(index);
    if (v.isnumber())
        sum.addword(bits(v));
    else
        sum.add(statetext(v));
}

}  // namespace

tablesnapshot::tablesnapshot() {
    for (const tablebase* t = tablebase::first; t != nullptr; t = t->next) tables.emplace(t->name, t->elements());
}

std::string tablesnapshot::changes(const tablesnapshot& later) const {
    std::map<std::string_view, checksum> sums;
    for (const auto& [name, after] : later.tables) {
        const std::vector<value>& before = tables.at(name);
        checksum* sum = nullptr;
        for (std::size_t i = 0; i < after.size(); ++i) {
            if (same(before[i], after[i])) continue;
            if (sum == nullptr) {
                sum = &sums[groupof(name)];
                sum->add(name);
            }
            addelement(*sum, i, after[i]);
        }
    }
    std::string text;
    for (const auto& [group, sum] : sums)
        text += (text.empty() ? "" : ", ") + std::string(group) + ' ' + sum.shorttext();
    return text;
}

std::string tablesums() {
    std::string text;
    for (const tablebase* t = tablebase::first; t != nullptr; t = t->next) {
        checksum sum;
        std::size_t index = 0;
        for (const value& v : t->elements()) addelement(sum, index++, v);
        text += std::string(t->name) + ' ' + sum.text() + '\n';
    }
    return text;
}

std::optional<std::string> tabletext(std::string_view name, std::size_t from, std::size_t to) {
    const tablebase* t = tablebase::first;
    while (t != nullptr && t->name != name) t = t->next;
    if (t == nullptr) return std::nullopt;
    const auto elements = t->elements();
    if (to >= elements.size()) return std::nullopt;
    std::string text;
    for (std::size_t i = from; i <= to; ++i) text += ' ' + statetext(elements[i]);
    return text;
}

}  // namespace tessaly
