// The player's picture files where it is built without the toolkit, which writes them: there are none.

#include "core/failure.h"
#include "picturefiles/picturefile.h"

namespace tessaly {

void usepicturefiles() {}

void savepicture(const raster&, const std::string& path) {
    throw failure(failurekind::fileaccess, "this player was built without the toolkit that writes pictures", path);
}

}  // namespace tessaly
