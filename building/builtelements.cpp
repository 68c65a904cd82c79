// Counts the records of each position of a plan in a design file.

#include "building/builtelements.h"

#include "building/buildstate.h"
#include "building/designfiles.h"
#include "building/layouts.h"
#include "building/replay.h"
#include "core/failure.h"
#include "core/textfiles.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <map>
#include <optional>
#include <utility>

namespace tessaly {

namespace {

// Returns a field as a number; no value if it is a text that is not a number or is too large for a double.
std::optional<double> fieldnumber(const value& field) {
    if (!field.istext()) return field;
    try {
        return strictnumber(field.text());
    } catch (const failure&) {
        return std::nullopt;
    }
}

// Returns the element number of a record's position, 0 if the plan has no such position.
int elementnumberof(const std::vector<value>& record, const window& plan) {
    const value& kind = record[0];
    const auto code = fieldnumber(record[4]), rotz = fieldnumber(record[6]), x = fieldnumber(record[7]),
               y = fieldnumber(record[8]);
    for (const buttonposition& p : allbuttonpositions()) {
        const buttonfamily& f = *p.family;
        if (f.layout == &plan && x == p.x && y == p.y && rotz == f.rotz && kind.is(f.files.kind) &&
            (&f.files != &girderfiles || code == f.code))
            return p.number;
    }
    return 0;
}

void count(builtelements& built, const window& plan) {
    built.counts.assign(allbuttonpositions().size() + 1, 0);
    try {
        foreachrecord(built.file, std::numeric_limits<int>::max(), [&](const std::vector<value>& record) {
            ++built.counts[static_cast<std::size_t>(elementnumberof(record, plan))];
        });
    } catch (const failure&) {  // the file cannot be read
    }
}

const fileclass& classof(const window& plan) {
    const auto families = allbuttonfamilies();
    return std::find_if(families.begin(), families.end(), [&](const buttonfamily& f) { return f.layout == &plan; })
        ->files;
}

// Size and time of a file, which a change of the file alters; both are zero if it does not exist.
using filestamp = std::pair<std::uintmax_t, std::filesystem::file_time_type>;

filestamp stampof(const std::string& file) {
    const std::string path = systempath(designpath(file));
    std::error_code missing;
    const filestamp stamp{std::filesystem::file_size(path, missing), std::filesystem::last_write_time(path, missing)};
    return missing ? filestamp{} : stamp;
}

}  // namespace

const builtelements& builtelementsof(const window& plan) {
    static std::map<const window*, std::pair<builtelements, filestamp>> plans;
    auto& [built, stamp] = plans[&plan];
    const std::string file = recordfile(classof(plan), nextfloorname());
    const filestamp current = stampof(file);
    if (file != built.file || current != stamp) {
        built.file = file;
        stamp = current;
        count(built, plan);
    }
    return built;
}

std::string builtsuffix(const control& positionbutton, const builtelements& built) {
    const int count = built.countof(positionbutton);
    if (count == 0) return {};
    return ", built " + (count == 1 ? "once" : std::to_string(count) + " times") + " in " + built.file;
}

}  // namespace tessaly
