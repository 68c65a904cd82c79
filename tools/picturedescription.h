// A description of the contents of a picture, one line per control, stored in the PNG file. The pixels depend on the
// font libraries of the machine, so tests compare these descriptions to find out whether a picture is out of date. A
// description changes if a control is moved, added, renamed or recoloured, or shows another picture.
#pragma once

#include "core/controls.h"
#include "player/checksum.h"

#include <QFile>
#include <QImage>

#include <cstdio>
#include <string>

namespace tessaly {

inline std::string descriptionof(const control& c) {
    const colour back = c.background.value_or(colour{});
    char bounds[100];
    std::snprintf(bounds, sizeof bounds, " %d %d %d %d #%02x%02x%02x ", c.bounds.left, c.bounds.top, c.bounds.width,
                  c.bounds.height, back.red, back.green, back.blue);
    std::string words = c.name + bounds + c.text;
    if (opensshownwindow(c)) words += "(pressed) ";
    if (QFile shown(QString::fromStdString(":/pictures/" + c.name + ".png")); shown.open(QIODevice::ReadOnly)) {
        checksum bytes;
        bytes.add(shown.readAll().toStdString());
        words += bytes.text();
    }
    return words + '\n';
}

inline void setdescription(QImage& picture, const std::string& words) {
    picture.setText("Shows", QString::fromStdString(words));
}

}  // namespace tessaly
