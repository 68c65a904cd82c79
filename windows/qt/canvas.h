// The widgets behind viewport and progressbar: they show an image kept in memory, pixel by pixel, at any scale of the
// screen. The image is the program's own and always of the designed size.
#pragma once

#include "render/raster.h"

#include <QWidget>

namespace tessaly {

class canvas : public QWidget {
  public:
    canvas(const raster& itsimage, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const raster& image;
};

// The building's image, and that of the progress strip, which comes to the screen in the middle of an event.
raster& viewportimage();
raster& progressimage();

// The widget that shows the progress strip from now on; nullptr: none.
void showprogresson(canvas* strip);

}  // namespace tessaly
