// Where a point of the model appears on viewport, computed without the projector from the geometry of the picture
// plane: it is perpendicular to the line from the eye to the focus. Up on the plane is where a point above the focus
// appears.
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

inline vec randompoint(randomnumbers& r, double limit) { return {r.within(limit), r.within(limit), r.within(limit)}; }

// Compare drawn coordinates with exact ones, within the rounding of single precision.
inline bool isnear(double drawn, double exact) { return std::abs(drawn - exact) <= 1e-3 + 1e-5 * std::abs(exact); }
inline bool isat(const vec& exact, float x, float y) { return isnear(x, exact[0]) && isnear(y, exact[1]); }

// The view given by the scalars. Points are relative to the focus.
struct lens {
    vec eye{perprelx, perprely, perprelz}, axis = unit(eye);
    double scale = mag * 15.2;  // viewport pixels per model unit on the plane
    double distance = dot(axis, {0.94 * eye[0], 0.94 * eye[1], 0.95 * eye[2]});  // of the plane, from the focus

    // Returns where the line from the eye through a point hits the plane, relative to the plane's centre.
    vec onplane(const vec& p) const {
        const vec sight = p - eye;
        return eye + (distance - length(eye)) / dot(axis, sight) * sight - distance * axis;
    }
    vec at(const vec& p) const {  // viewport pixels
        const vec up = unit(onplane({0, 0, 1})), side = unit({-eye[1], eye[0], 0}), hit = onplane(p);
        const bool upright = std::abs(dot(unit(hit), up)) > 0.9999;  // counts as exactly above or below the centre
        return {730 + horizshift + (upright ? 0 : scale * dot(hit, side)), 490 - vertshift - scale * dot(hit, up), 0};
    }
};

}  // namespace tessaly
