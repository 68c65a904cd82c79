// A session over a handful of one-line elements, so that each replayed record draws one line and its place tells which
// record it was. What a solid replay draws is compared with the wires of the same records in the expected order.
#pragma once

#include "tests/session.h"

#include <string>

namespace tessaly {

inline const std::string stick = elementtext{.points = "1,0,0,0\n2,16,100,30\n", .lines = {"1,2\n"}};

// A post's record, standing at x, y in layout units.
inline std::string post(int number, int x, int y) {
    return "\"girder\"," + std::to_string(number) + ',' + std::to_string(x) + ',' + std::to_string(y) + ",41,90,0," +
           std::to_string(x - 8) + ',' + std::to_string(y + 8) + ",4,64\r\n";
}
inline const std::string panel = "\"panel\",1,0,104,1,0,270,0,208,2,64\r\n";
inline const std::string roof = "\"roof\",1,104,104,0,0,0,0,0,4,64\r\n";

class replaysession : public session {
  public:
    replaysession()
        : session({{"datah/st-post.txt", stick},
                   {"datah/st-beam.txt", stick},
                   {"datah/st-panels-1or-full.txt", stick},
                   {"datah/st-roof.txt", stick}}) {
        setview(1850, -1850, 550);
        for (control* list : {&designfileslist, &autofile, &autofile1, &autofile2, &autofile3, &autofile4, &autofile5})
            setfolder(*list, "designs\\");
    }
    void design(const std::string& name, const std::string& records) { write("designs/" + name, records); }

    // Replays a file and takes the lines that it drew.
    std::vector<drawnline> wire(const std::string& name) { return two("autowiresingle", "autofile", name); }
    std::vector<drawnline> solid(const std::string& name) { return two("autosolidsingle", "autofile5", name); }
    std::vector<drawnline> combinedwire(const std::string& first, const std::string& second) {
        two("autowirebtn", "autofile1", first);
        return pickandtake("autofile2", second);
    }
    std::vector<drawnline> combinedsolid(const std::string& first, const std::string& second) {
        two("autosolidbtn", "autofile3", first);
        return pickandtake("autofile4", second);
    }

    // The wires of posts in this order, on floor 1.
    std::vector<drawnline> wiresof(const std::string& records) {
        design("girdeww1.txt", records);
        return wire("girdeww1.txt");
    }
    std::vector<drawnline> pickandtake(const std::string& list, const std::string& name) {
        pick(list, name);
        return takelines();
    }

  private:
    std::vector<drawnline> two(const std::string& button, const std::string& list, const std::string& name) {
        click(button);
        return pickandtake(list, name);
    }
};

inline std::vector<drawnline> operator+(std::vector<drawnline> a, const std::vector<drawnline>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

}  // namespace tessaly
