// What a picture shows, in words, a line a control: it is kept in the picture's own file. Letters and shades are the
// toolkit's, and look another way with another font library; by the words a test tells on any machine whether a picture
// is stale: they change with a control that is moved, added, renamed or coloured anew, and with an element.
#pragma once

#include "core/controls.h"
#include "player/checksum.h"

#include <QFile>
#include <QImage>

#include <cstdio>
#include <string>

namespace tessaly {

inline std::string wordsof(const control& c) {
    const colour back = c.back.value_or(colour{});
    char places[100];
    std::snprintf(places, sizeof places, " %d %d %d %d #%02x%02x%02x ", c.bounds.left, c.bounds.top, c.bounds.width,
                  c.bounds.height, back.red, back.green, back.blue);
    std::string words = c.name + places + c.text;
    if (&c == chosenelement) words += "(pressed) ";
    if (QFile shown(QString::fromStdString(":/pictures/" + c.name + ".png")); shown.open(QIODevice::ReadOnly)) {
        checksum bytes;
        bytes.add(shown.readAll().toStdString());
        words += bytes.text();
    }
    return words + '\n';
}

inline void keepwords(QImage& picture, const std::string& words) {
    picture.setText("Shows", QString::fromStdString(words));
}

}  // namespace tessaly
