// Counts the records of each position.

#include "building/builtelements.h"

#include "building/buildstate.h"
#include "building/designfiles.h"
#include "building/layouts.h"
#include "building/records.h"
#include "core/failure.h"
#include "core/textfiles.h"

#include <array>
#include <filesystem>
#include <map>
#include <optional>

namespace tessaly {

namespace {

// Fields of a record, from 0.
constexpr std::size_t kindfield = 0, codefield = 4, rotzfield = 6, xfield = 7, yfield = 8;

using placement = std::array<double, 4>;  // code of a girder, 0 of any other kind; rotz, x and y

struct planpositions {
    const buttonfamily* family;        // one of the plan's: all have the same kind and file
    std::map<placement, int> numbers;  // element number by placement
    int maxnumber = 0;
};

double codeof(const buttonfamily& f) { return &f.record == &girderfiles ? f.code : 0; }

planpositions positionsof(const window& plan) {
    planpositions found{};
    for (const buttonposition& p : allbuttonpositions()) {
        if (p.family->layout != &plan) continue;
        found.family = p.family;
        found.numbers[{codeof(*p.family), double(p.family->rotz), double(p.x), double(p.y)}] = p.number;
        found.maxnumber = std::max(found.maxnumber, p.number);
    }
    return found;
}

// The number of a field; nothing for a text that is none or is beyond double precision.
std::optional<double> numberin(const value& field) {
    if (!field.istext()) return field;
    try {
        return strictnumber(field.text());
    } catch (const failure&) {
        return std::nullopt;
    }
}

// The element number of a record's position, 0 if it is at none.
int elementof(const std::vector<value>& record, const planpositions& plan) {
    if (!record[kindfield].is(plan.family->record.kind)) return 0;
    placement at{};
    constexpr std::size_t fields[] = {codefield, rotzfield, xfield, yfield};
    for (std::size_t k = codeof(*plan.family) == 0 ? 1 : 0; k < at.size(); ++k) {
        const auto number = numberin(record[fields[k]]);
        if (!number) return 0;
        at[k] = *number;
    }
    const auto found = plan.numbers.find(at);
    return found == plan.numbers.end() ? 0 : found->second;
}

// A file that cannot be opened, or a record that breaks off, ends the count.
void count(builtelements& built, const planpositions& plan) {
    built.times.assign(static_cast<std::size_t>(plan.maxnumber) + 1, 0);
    try {
        textinput in{designpath(built.file), filebytes(designpath(built.file), "design file")};
        const std::vector<recordcolumn> columns = unstoredcolumns();
        for (;;) ++built.times[static_cast<std::size_t>(elementof(readrecord(in, columns), plan))];
    } catch (const failure&) {
    }
}

// Size and time of a file, by which a change is recognised; both zero if the file does not exist.
struct filestamp {
    std::uintmax_t size = 0;
    std::filesystem::file_time_type time = {};
    bool operator==(const filestamp&) const = default;
};

filestamp stampof(const std::string& file) {
    const std::string path = systempath(designpath(file));
    std::error_code missing;
    filestamp stamp{std::filesystem::file_size(path, missing), {}};
    stamp.time = std::filesystem::last_write_time(path, missing);
    return missing ? filestamp{} : stamp;
}

struct remembered {
    planpositions positions;
    builtelements built;
    filestamp stamp;
};

}  // namespace

const builtelements& builton(const window& plan) {
    static std::map<const window*, remembered> plans;
    const auto [found, fresh] = plans.try_emplace(&plan);
    remembered& r = found->second;
    if (fresh) r.positions = positionsof(plan);
    const std::string file = recordfile(r.positions.family->record, nextfloorname());
    const filestamp stamp = stampof(file);
    if (fresh || file != r.built.file || stamp != r.stamp) {
        r.built.file = file;
        r.stamp = stamp;
        count(r.built, r.positions);
    }
    return r.built;
}

std::string builttooltip(const control& positionbutton, const builtelements& built) {
    const int times = built.timesof(positionbutton);
    const std::string& name = positionbutton.tooltip;
    if (times == 0) return name;
    return name + ", built " + (times == 1 ? "once" : std::to_string(times) + " times") + " in " + built.file;
}

}  // namespace tessaly
