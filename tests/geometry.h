// Where a point of the model is to be seen, worked out from the picture plane's geometry alone: the plane stands across
// the line of sight, up on it is where a point above the focus is seen, sideways is level.
#pragma once

#include <array>
#include <cmath>

namespace tessaly {

using vec = std::array<double, 3>;

inline vec operator+(const vec& a, const vec& b) { return {a[0] + b[0], a[1] + b[1], a[2] + b[2]}; }
inline vec operator-(const vec& a, const vec& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }
inline vec operator*(double f, const vec& a) { return {f * a[0], f * a[1], f * a[2]}; }
inline double dot(const vec& a, const vec& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
inline vec unit(const vec& a) { return 1 / std::sqrt(dot(a, a)) * a; }

struct seen {
    double x, y;  // viewport pixels
};

// Points and eye are relative to the focus.
struct lens {
    vec eye;
    double scale, vertshift, horizshift;  // pixels a model unit on the plane; pixels

    vec axis() const { return unit(eye); }
    // How far out towards the eye the plane stands: a point beyond that is on the near side.
    double reach() const { return dot(axis(), {0.94 * eye[0], 0.94 * eye[1], 0.95 * eye[2]}); }
    bool nearside(const vec& p) const { return dot(axis(), p) > reach(); }
    vec onplane(const vec& p) const {  // from the plane's centre
        const vec sight = p - eye;
        const vec hit = eye + (reach() - dot(axis(), eye)) / dot(axis(), sight) * sight;
        return hit - reach() * axis();
    }
    seen at(const vec& p) const {
        const vec up = unit(onplane({0, 0, 1})), side = unit({-eye[1], eye[0], 0}), h = onplane(p);
        const bool upright = std::abs(dot(unit(h), up)) > 0.9999;  // counts as straight above or below the centre
        return {730 + horizshift + (upright ? 0 : scale * dot(h, side)), 490 - vertshift - scale * dot(h, up)};
    }
    // Of a line from a far point to a near one: the last 299th of it, counted from the far point, that is not near.
    int farsteps(const vec& far, const vec& near) const {
        const double share = (reach() - dot(axis(), far)) / dot(axis(), near - far);
        return static_cast<int>(std::floor(299 * share));
    }
};

}  // namespace tessaly
