// The shipped data as one list, in the order in which makedata names what it writes.
#include "tools/shipped.h"

namespace tessaly {

std::vector<shippedfile> shippedfiles() {
    std::vector<shippedfile> all;
    for (const auto& part : {girderfiles(), panelfiles(), rooffiles(), scenefiles(), palettefiles()})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace tessaly
