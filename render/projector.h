// The projector draws line groups in perspective on viewport. It uses no matrices: a point is projected by intersecting
// its sight line with a picture plane, and then by its distance and a cosine within that plane.
#pragma once

#include "core/value.h"

#include <functional>

namespace tessaly {

// Computes the bounds of the ten line groups, restores the eye of the current view and draws.
// reads: linecount1..10, plotstate, perprelx..; writes: groupfirst, grouplast, perpx.., refready, skipfixup;
// fails: as projectdraw does.
void plotgroups();

// Prepares the view (fix-up, scale, eye relative to the focus), makes the working points relative to the focus, draws
// the ten groups and writes the view to the boxes. reads: points, lines, groups, wire colours, palette, drawset,
// plotstate, view state; writes: ptx.. savex.. plane.. screenx.. view state, the nine view boxes; draws on viewport;
// fails: division by zero (eye at the focus, a point at the plane's centre, eye straight above the focus), type
// mismatch (a text among points or view values), subscript (a line end or colour outside its table).
void projectdraw();

// ---- the projector's steps, shared with redraw and painter ----------------------------------------------

// Calls step(i) for every point of the blocks that drawset selects, in ascending order.
void foreachpointinuse(const std::function<void(int)>& step);

// Sets the reference point, and the seed and centre of the picture plane, from the eye. fails: division by zero, type
// mismatch.
void setplane();

// Projects the reference point if refready is 0, and sets refready to 1. fails: division by zero.
void referencepass();

// Draws the lines first..last in the colour of a palette index: near-side walk, projection, restore, mapping, draw.
void drawlines(int first, int last, const value& palettecolourindex);

// Draws the groups that have lines, in the order 1 to 10.
void drawgroups();

// Stores the eye as that of the view: perprelx.. = perpx..
void storeeye();

// If perprelative is 0, makes the eye relative to the focus, stores it and sets perprelative to 1.
void makeeyerelative();

// Moves eye and focus out of positions in which the projection would divide by zero, in a fixed order of steps. same
// compares focus and eye in the first three steps. fails: type mismatch, overflow.
void nudgeview(bool (*same)(const value& focus, const value& eye));

// Subtracts the focus from the working points in use and copies them to savex, savey, savez.
void rebaseonfocus();

}  // namespace tessaly
