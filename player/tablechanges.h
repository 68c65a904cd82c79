// What a step changed in the tables of the world: a checksum for each group of tables, over the changed elements only,
// so that a wrong element shows only at the steps that write it.
#pragma once

#include "core/table.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

// A copy of all tables of the world.
class tablesnapshot {
  public:
    tablesnapshot();

    // Returns the groups of tables that differ in the later snapshot, each with the checksum of the elements that
    // differ (name of the table, index, later value): "plane 88ab3e10, points 1c9d04fe"; "" if none differs.
    std::string changes(const tablesnapshot& later) const;

  private:
    std::map<std::string_view, std::vector<value>> tables;
};

// A line for each table, with its name and the checksum of all its elements.
std::string tablesums();

// Returns the elements from..to of a table, each after a blank; nothing if there is no such table or part of one.
std::optional<std::string> tabletext(std::string_view name, std::size_t from, std::size_t to);

}  // namespace tessaly
