// Determines which tables of the world a step changed. The checksum of a group of tables covers only the changed
// elements, so a wrong element affects only the steps that write it.
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

// Returns a line for each table, with its name and the checksum of all its elements.
std::string tablesums();

// Returns the elements from..to of a table, each after a blank; no value if the table or one of them does not exist.
std::optional<std::string> tabletext(std::string_view name, std::size_t from, std::size_t to);

}  // namespace tessaly
