// The player's picture files in a build without Qt: none can be written, and render/bitmap reads bitmaps.

#include "core/failure.h"
#include "picturefiles/picturefile.h"

namespace tessaly {

void usepicturefiles() {}

void savepicture(const raster&, const std::string& path) {
    throw failure(failurekind::fileaccess, "this player was built without Qt, which writes pictures", path);
}

}  // namespace tessaly
