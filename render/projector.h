// The projector: line groups in perspective onto viewport. No matrices: every point is carried by the intersection of
// its sight line with a picture plane, and by a distance and a cosine measured in that plane.
#pragma once

#include "core/value.h"

namespace tessaly {

// Lays the ten line groups out over the line table, restores the eye of the view in force and draws.
// reads: linecount1..10, plotstate, perprelx..; writes: groupfirst, grouplast, perpx.., refready, skipfixup;
// fails: as projectdraw.
void plotgroups();

// Prepares the view (fix-up, scale, eye relative to the focus), moves the working points onto the focus, draws the ten
// groups and writes the view back to the boxes.
// reads: points, lines, groups, wire colours, palette, drawset, plotstate, view state;
// writes: ptx.. savex.. plane.. screenx.. view state, the nine view boxes; draws on viewport;
// fails: division by zero (eye at the focus, a point at the plane's centre, eye straight above the focus), type
// mismatch (a text among points or view values), subscript (a line end or colour outside its table).
void projectdraw();

// ---- the projector's steps, shared with redraw and painter ----------------------------------------------

// One of the point blocks that a projection walks: its first and last point.
struct pointblock {
    int first, last;
};
// Calls step(i) for every point of the blocks of drawset, in ascending order within each block.
template <class procedure>
void foreachpointinuse(procedure step);
int blocksinuse(pointblock (&blocks)[4]);

// Sets the reference point, the plane's seed and centre from the eye; with refready 0 projects the reference point.
void setplane();
void referencepass();

// Draws the lines first..last in the colour of a palette index: near-side walk, projection, restore, mapping, draw.
void drawlines(int first, int last, const value& palettecolourindex);

// The ten groups one after the other, those with a count.
void drawgroups();

// Keeps the eye as the view's: perprelx.. = perpx..
void keepeye();

// Turns an absolute eye relative to the focus, once, and keeps it.
void relateeye();

// Moves eye and focus out of the positions in which the projection would divide by zero or see a line end on, step by
// step in a fixed order; same tells how the first three steps compare. fails: type mismatch.
void nudgeview(bool (*same)(const value& focus, const value& eye));

// Moves the working points of the blocks of drawset by minus the focus and keeps them in savex...
void rebaseonfocus();

template <class procedure>
void foreachpointinuse(procedure step) {
    pointblock blocks[4];
    const int count = blocksinuse(blocks);
    for (int b = 0; b < count; ++b)
        for (int i = blocks[b].first; i <= blocks[b].last; ++i) step(i);
}

}  // namespace tessaly
