// The world: every table and scalar of the building set, all global, with meaning and unit.
// The tables hold one element at a time, never the building: the building is the pixels on viewport and the lines of
// the design files. Most scalars are values: empty at first, then a number or a text.
#pragma once

#include "core/table.h"
#include "core/value.h"

#include <span>
#include <string>

namespace tessaly {

constexpr int lastpoint = 10000;     // of the point tables
constexpr int lastline = 20000;      // of the line table
constexpr int lastquad = 10000;      // of the quad and cube tables
constexpr int lastgroup = 255;       // of the group bounds
constexpr int lastcolour = 256;      // of the palette
constexpr int lastrecord = 1000;     // of the design record tables
constexpr int clearedpoints = 7000;  // last index of points and quads that resetworld clears
constexpr int clearedcubecolours = 700;
constexpr int linegroups = 10;
constexpr int referencepoint = 8001;  // the picture plane's up reference
constexpr int framingscratch = 7001;  // first point and first line of the painter's framing lines
constexpr int framinggroup = 11;
constexpr double sentinel = 9999;  // ends rows in all data files, and marks a failed point in screeny
inline bool endsrows(const value& v) { return !v.istext() && v == sentinel; }
constexpr int planoriginx = 488, planoriginy = 680;  // the world's origin in layout units

// ---- points: parallel tables, one index is one point ----------------------------------------------------
// Blocks start at 1, 2001, 4001 and 6001; 8001 is the up reference; 7001 and up is scratch space for framing lines.
// The readers fill the model coordinates, the projector all others. resetworld clears 1..7000 of basex.. and ptx..
// only.
extern table<value, lastpoint, clearedpoints> basex, basey,
    basez;                                                    // model units, as placed; display does not change them
extern table<value, lastpoint, clearedpoints> ptx, pty, ptz;  // model units; relative to the focus while displaying
extern table<value, lastpoint> savex, savey, savez;           // copies of ptx.. at which a near-side walk starts
extern table<double, lastpoint> planex, planey, planez;  // model units: intersection of sight line and picture plane
extern table<double, lastpoint> planeup, planeside;      // model units on the picture plane
extern table<double, lastpoint> screenx, screeny;  // viewport pixels, y down; screeny 9999: could not be projected
extern value ptcount[5];                           // points in use of blocks 1..4
inline value &ptcount1 = ptcount[1], &ptcount2 = ptcount[2], &ptcount3 = ptcount[3], &ptcount4 = ptcount[4];
extern value drawset;  // 2: all four blocks are projected; anything else: blocks 1, 3 and 4

// ---- lines: group after group without gaps --------------------------------------------------------------
extern table<value, lastline> lineend1, lineend2;      // point index of each end; valid up to the counts
extern value linecount[linegroups + 1];                // lines of groups 1..10
extern value wirecolour[linegroups + 1];               // palette index of groups 1..10; group 10's is never written
extern table<value, lastgroup> groupfirst, grouplast;  // first and last line of a group; group 11: framing
inline value &linecount1 = linecount[1], &linecount2 = linecount[2], &linecount3 = linecount[3],
             &linecount4 = linecount[4], &linecount5 = linecount[5], &linecount6 = linecount[6],
             &linecount7 = linecount[7], &linecount8 = linecount[8], &linecount9 = linecount[9],
             &linecount10 = linecount[10];
inline value &wirecolour1 = wirecolour[1], &wirecolour2 = wirecolour[2], &wirecolour3 = wirecolour[3],
             &wirecolour4 = wirecolour[4], &wirecolour5 = wirecolour[5], &wirecolour6 = wirecolour[6],
             &wirecolour7 = wirecolour[7], &wirecolour8 = wirecolour[8], &wirecolour9 = wirecolour[9],
             &wirecolour10 = wirecolour[10];

// ---- quads: flat four-cornered faces; going around gives 1, 2, 4, 3 --------------------------------------
// The rails are the edges 1-2 and 3-4; quad3 is opposite quad1.
// AUTOPLANE: faces start at 1, AUTOCUBE400: faces at 4001, AUTOCUBE600: faces at 6001, ten slots a cube.
extern table<value, lastquad, clearedpoints> quad1, quad2, quad3, quad4;  // point indexes
extern table<value, lastquad, clearedpoints>
    quadcolour;  // palette index; the painter increases it if rotz is 90 or 270
extern table<value, lastquad, clearedpoints> framing1, framing2;  // framing lines along the two directions; 0: none
extern table<double, lastquad> quaddist;  // model units: distance of the nearest corner; overwritten by the sort
extern table<double, lastquad> quadcornerdist1, quadcornerdist2, quadcornerdist3, quadcornerdist4;  // 1, 3, 2, 4
extern table<value, lastquad> quadorder;  // quad indexes, nearest first

// ---- cubes: by cube number 400..599 and 600..799 ---------------------------------------------------------
extern table<value, lastquad, clearedpoints> cubegrade;        // field 8 of a cube row
extern table<value, lastquad, clearedcubecolours> cubecolour;  // field 9, a palette index
extern value rowgrade, rowcolour;                              // the same for all cubes of a row of an axis-cube file

// ---- colours ---------------------------------------------------------------------------------------------
extern table<value, lastcolour> palred, palgreen, palblue;  // 0..255 by palette index; 1..236 are filled, 0 is black
extern value backred, backgreen, backblue;                  // the background's components, 0..255

// ---- view state ------------------------------------------------------------------------------------------
extern value perpx, perpy, perpz;           // the eye, model units: absolute, or relative to the focus (perprelative)
extern value focusx, focusy, focusz;        // the focal point, model units, always absolute
extern value mag;                           // magnification: the number in the box, times ten while displaying
extern value vertshift, horizshift;         // display shift in viewport pixels
extern value perprelx, perprely, perprelz;  // the eye as the last view change set it, relative to the focus
extern value perpabsx, perpabsy, perpabsz;  // absolute eye, shown in perptxtx..
extern value viewprompt;                    // "AUTOMA" requests the fix-up of the next projection, which sets "PROMPT"
extern value magshown;                      // the number in magtxt, a tenth of mag

// Flags of the view, with the procedures that set and clear them
//   perprelative   1: makeeyerelative, in projectdraw and rebasepoints   0: SET and a retrieval
//   refready       1: referencepass, in projectdraw and replot     0: settle; plotgroups if plotstate is 1 or 2;
//                                                                     projectdraw if skipfixup is 0
//   skipfixup      1: plotgroups if plotstate is 1 or 2            0: projectdraw, at its start
//   rebasedone     1: settle                                       0: projectdraw, at its end
//   plotstate      2: showscene, after each start group            never
extern value perprelative;  // 1: perpx.. are relative to the focus; 0: they are absolute
extern value refready;      // 1: the reference point has been projected for this view
extern value skipfixup;     // 1: the next projectdraw skips fix-up and scaling
extern value rebasedone;    // 1: the working points have been rebased on the focus since the last projectdraw
extern value plotstate;     // 2: a plot uses the eye as the last view change set it

extern double planeseedx, planeseedy, planeseedz;        // a point near the eye, relative to the focus
extern double planecentrex, planecentrey, planecentrez;  // picture plane's centre, relative to the focus
extern int walkcount;                  // steps left of the near-side walk, shared by both ends of a line
extern value curgroup, curwirecolour;  // number and palette index of the line group being drawn

// ---- placement of the element about to be read -----------------------------------------------------------
extern value datafile;                // name of the element file under datah
extern value elementkind;             // "girder", "panel" or "roof"
extern value placemode;               // 0 the file's script, 1 and 4 turn about Z, 2 about X, 3 and 5 shift only
extern value placex, placey, placez;  // layout units; placement converts x and y to world units
extern value rotz;                    // degrees about Z; a script leaves radians here
extern value rotx;                    // degrees about X; placement overwrites it with radians
extern value facecode;                // recorded, with no effect on drawing

// ---- run mode --------------------------------------------------------------------------------------------
extern value floorname;                      // "1".."10", in design file names
extern value floornum;                       // the number read from the floor box or a file name
extern value drawmode;                       // 1 wireframe, 2 solid
extern value recordmode;                     // 1 recording to the design file, 0 not
extern value recordtext, drawtext;           // the texts of writefilebox and wiresolid as last read
extern value palname;                        // palette file's name without folder and extension
extern value panelprefix;                    // first part of the panel file's name, set by the eight panel buttons
extern value panelcode;                      // code of the panel last chosen or replayed; the painter reads it
extern value girdercode, roofcode, anycode;  // codes of the record being replayed
extern value firstfilename, secondfilename;  // names last picked in file lists or deleted; the painter reads them
extern value shapefile;                      // the data file last read into the tables, for reports
extern value preopened;                      // 1..4: the reader of that number finds its file open on channel 1

// ---- start-up --------------------------------------------------------------------------------------------
extern value startgroup1, startgroup2, startgroup3;  // file names without folder and extension
extern value startprefix, startdone;

// ---- view controls ---------------------------------------------------------------------------------------
extern value rotstage;                      // 1 X falls, 2 Y rises, 3 X rises, 4 Y falls
extern value rotboxx, rotboxy;              // absolute eye as last read from the boxes by an arrow
extern value focusinc, focusstep;           // vertical focus step, and the signed step of shiftz
extern value maginc, shiftinc;              // steps of magnification (box units) and shifts (pixels)
extern value perpsumx, perpsumy, perpsumz;  // eye plus focus after a step

// ---- the solid painter -----------------------------------------------------------------------------------
extern int divisions;                                     // intervals of the fill
extern value facecolour, framecolour;                     // palette indexes of the quad being painted
extern value railstart1, railend1, railstart2, railend2;  // point indexes of the edges that framing lines join
extern value framen;                                      // framing lines of a direction

// ---- design records of a replay: one index is one record -------------------------------------------------
// Filled by the file readers; rdorder is never cleared, so a slot that a sort does not fill keeps its old number.
extern table<value, lastrecord> rdnumber, rdgirdernumber, rdpanelnumber, rdroofnumber;  // element number; 0: unused
extern table<value, lastrecord> rdcode, rdgirdercode, rdpanelcode, rdroofcode;          // element code
extern table<value, lastrecord> rdx, rdy;                      // layout units, less 488 and 680 once sorted
extern table<value, lastrecord> rdrotx, rdrotz;                // degrees
extern table<value, lastrecord> rdplacex, rdplacey, rdplacez;  // layout units
extern table<value, lastrecord> rdface, rdtrailer, rdkind, rdorder;
extern value combinedcount;  // records of both files of a combined replay

// ---- captures --------------------------------------------------------------------------------------------
extern value capname, capsidecar;                             // names of bitmap and view record being written
extern value bmpfile, bmpstem, bmpext, bmpimage, bmpsidecar;  // names of an image retrieval

// ---- written and never read ------------------------------------------------------------------------------
// Numbers read or computed by a step that no later step uses. They are stored because the world shows all of a step,
// and no number of a data file is lost.
extern table<double, lastpoint> planedist;  // model units: distance of the intersection from the plane's centre
extern table<double, lastpoint> planecos;   // cosine of the angle between intersection and up reference
extern table<value, lastquad, clearedpoints> quadface, quadgrade;  // face number; grade of a cube's faces 1..4
extern table<value, 12 * 9> viewpreset;  // twelve records of nine values (record r starts at 9r - 8), eye relative
extern value startstep;                  // number of the start group being read
extern value spareface;                  // set by each click on a position
extern value anynumber;                  // number of the record being replayed
extern value focussign;                  // direction of the vertical focus step
extern value framesecond;                // 1 while the first of two framing directions is drawn

// A scalar by name, for records of the program's state and for resetting it.
struct scalar {
    std::string name;
    value* variable;
    bool reported;  // part of the recorded state
};
// Returns all scalars that are values, the reported ones first, in the order in which they are recorded.
std::span<const scalar> scalars();

// Sets a point's working coordinates.
inline void setpoint(int i, const value& x, const value& y, const value& z) {
    ptx.set(i, x);
    pty.set(i, y);
    ptz.set(i, z);
}

// Clears the tables for the next element: the counts of lines and points, indexes 1..7000 of working and base
// coordinates, quads, framing, colours and grades, and indexes 1..700 of cubecolour. Everything else is unchanged.
void resetworld();

// Resets every table and scalar of this header to its state before the program started.
void restartworld();

}  // namespace tessaly
