// A description of what a picture shows, one line per control, stored in the PNG file. Qt renders text and shades
// differently with other font libraries, so tests compare these descriptions to find out on any machine whether a
// picture is stale. They change when a control is moved, added, renamed or recoloured, or shows another picture.
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
