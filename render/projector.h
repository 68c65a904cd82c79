// The projector draws line groups in perspective on viewport. It uses no matrices: it intersects the sight line of a
// point with a picture plane. The distance of the intersection from the plane's centre, and the cosine of its
// direction, then give the coordinates within the plane. Before that, a line end on the near side of the plane is moved
// along its line to the far side: the near-side walk.
#pragma once

#include "core/value.h"

#include <functional>

namespace tessaly {

// Computes the first and last lines of the ten line groups, restores the eye of the current view and draws.
// reads: linecount1..10, plotstate, perprelx..; writes: groupfirst, grouplast, perpx.., refready, skipfixup;
// fails: as projectdraw does.
void plotgroups();

// Prepares the view (nudgeview as a fix-up, scale, eye relative to the focus), makes the working points relative to the
// focus, draws the ten groups and writes the view to the boxes. reads: points, lines, groups, wire colours, palette,
// drawset, plotstate, view state; writes: ptx.., savex.., planex.., screenx.., view state, the nine view boxes; draws
// on viewport; fails: division by zero (the eye at the focus or straight above or below it, a point at the centre of
// the plane, a sight line along the plane), type mismatch (a text among points or view values), subscript out of range
// (a line end or colour outside its table).
void projectdraw();

// ---- the projector's steps, shared with redraw and painter ----------------------------------------------

// Calls step(i) for each point in use of the blocks that drawset selects, in ascending order.
void foreachpointinuse(const std::function<void(int)>& step);

// Sets the reference point, and the seed and centre of the picture plane, from the eye. fails: division by zero, type
// mismatch.
void setplane();

// Projects the reference point if refready is 0, and sets refready to 1. fails: division by zero.
void referencepass();

// Projects the lines first..last, with near-side walks, and draws them in the colour of a palette index. Both ends of
// each line are at their base positions again afterwards, relative to the focus.
void drawlines(int first, int last, const value& palettecolourindex);

// Draws the groups that have lines, in the order 1 to 10.
void drawgroups();

// Stores the eye as the one of the current view: perprelx.. = perpx..
void storeeye();

// If perprelative is 0, makes the eye relative to the focus, stores it and sets perprelative to 1.
void makeeyerelative();

// Moves eye and focus out of positions in which the projection would divide by zero, in a fixed order of steps. The
// first three steps compare coordinates of focus and eye with same. fails: type mismatch, overflow.
void nudgeview(bool (*same)(const value& focus, const value& eye));

// Subtracts the focus from the working points in use and copies them to savex, savey, savez.
void rebaseonfocus();

}  // namespace tessaly
