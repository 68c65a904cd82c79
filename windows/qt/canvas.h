// The widgets of viewport and progressbar. Each shows an image that the program draws in memory at the size of the
// design grid, scaled to the screen.
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

// Return the image of the building, and that of the progress strip, whose flush repaints its widget during an event.
raster& viewportimage();
raster& progressimage();

}  // namespace tessaly
