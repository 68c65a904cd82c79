// Where a point of the model must be seen, computed from the geometry of the picture plane alone: the plane is
// perpendicular to the line of sight, up on it is where a point above the focus is seen, sideways is level.
#pragma once

#include "core/world.h"
#include "tests/random.h"

#include <array>
#include <cmath>

namespace tessaly {

using vec = std::array<double, 3>;

inline vec operator+(const vec& a, const vec& b) { return {a[0] + b[0], a[1] + b[1], a[2] + b[2]}; }
inline vec operator-(const vec& a, const vec& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }
inline vec operator*(double f, const vec& a) { return {f * a[0], f * a[1], f * a[2]}; }
inline double dot(const vec& a, const vec& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
inline double length(const vec& a) { return std::sqrt(dot(a, a)); }
inline vec unit(const vec& a) { return 1 / length(a) * a; }
inline vec randompoint(randomnumbers& d, double limit) { return {d.within(limit), d.within(limit), d.within(limit)}; }

inline bool isnear(double drawn, double at) { return std::abs(drawn - at) <= 1e-3 + 1e-5 * std::abs(at); }
inline bool isat(const vec& seen, float x, float y) { return isnear(x, seen[0]) && isnear(y, seen[1]); }

// The view in force. Points are relative to the focus.
struct lens {
    vec eye{perprelx, perprely, perprelz}, axis = unit(eye);
    double scale = mag * 15.2;  // pixels a model unit on the plane
    // The distance of the plane from the focus, towards the eye. Points beyond it are on the near side.
    double distance = dot(axis, {0.94 * eye[0], 0.94 * eye[1], 0.95 * eye[2]});

    bool nearside(const vec& p) const { return dot(axis, p) > distance; }
    vec onplane(const vec& p) const {  // from the plane's centre
        const vec sight = p - eye;
        return eye + (distance - length(eye)) / dot(axis, sight) * sight - distance * axis;
    }
    vec at(const vec& p) const {  // viewport pixels
        const vec up = unit(onplane({0, 0, 1})), side = unit({-eye[1], eye[0], 0}), h = onplane(p);
        const bool upright = std::abs(dot(unit(h), up)) > 0.9999;  // counts as straight above or below the centre
        return {730 + horizshift + (upright ? 0 : scale * dot(h, side)), 490 - vertshift - scale * dot(h, up), 0};
    }
};

}  // namespace tessaly
