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

using pointtable = table<value, lastpoint, clearedpoints>;
using quadtable = table<value, lastquad, clearedpoints>;
using linetable = table<value, lastline>;
using recordtable = table<value, lastrecord>;

// ---- points: parallel tables, one index is one point ----------------------------------------------------
// Blocks start at 1, 2001, 4001 and 6001; 8001 is the up reference; 7001 and up is scratch space for framing lines.
// The readers fill the model coordinates, the projector all others. resetworld clears 1..7000 of basex.. and ptx..
// only.
extern pointtable basex, basey, basez;                   // model units, as placed; display does not change them
extern pointtable ptx, pty, ptz;                         // model units; relative to the focus while displaying
extern table<value, lastpoint> savex, savey, savez;      // copies of ptx.., from which a near-side walk starts
extern table<double, lastpoint> planex, planey, planez;  // model units: intersection of sight line and picture plane
extern table<double, lastpoint> planeup, planeside;      // model units on the picture plane
extern table<double, lastpoint> screenx, screeny;        // viewport pixels, y down; screeny 9999: not projected
inline value ptcount[5];                                 // number of points in blocks 1..4
inline value &ptcount1 = ptcount[1], &ptcount2 = ptcount[2], &ptcount3 = ptcount[3], &ptcount4 = ptcount[4];
inline value drawset;  // 2: all four blocks are projected; anything else: blocks 1, 3 and 4

// ---- lines: group after group without gaps --------------------------------------------------------------
extern linetable lineend1, lineend2;                   // point indexes of the ends; valid up to the counts
inline value linecount[linegroups + 1];                // number of lines in groups 1..10
inline value wirecolour[linegroups + 1];               // palette index of groups 1..10; that of group 10 is never set
extern table<value, lastgroup> groupfirst, grouplast;  // first and last line of a group; group 11: framing
inline value &linecount1 = linecount[1], &linecount2 = linecount[2], &linecount3 = linecount[3],
             &linecount4 = linecount[4], &linecount5 = linecount[5], &linecount6 = linecount[6],
             &linecount7 = linecount[7], &linecount8 = linecount[8], &linecount9 = linecount[9],
             &linecount10 = linecount[10];
inline value &wirecolour1 = wirecolour[1], &wirecolour2 = wirecolour[2], &wirecolour3 = wirecolour[3],
             &wirecolour4 = wirecolour[4], &wirecolour5 = wirecolour[5], &wirecolour6 = wirecolour[6],
             &wirecolour7 = wirecolour[7], &wirecolour8 = wirecolour[8], &wirecolour9 = wirecolour[9],
             &wirecolour10 = wirecolour[10];

// ---- quads: flat four-cornered faces ---------------------------------------------------------------------
// Around a quad, its corners are 1, 2, 4, 3. The rails are the edges 1-2 and 3-4.
// AUTOPLANE: faces start at 1, AUTOCUBE400: faces at 4001, AUTOCUBE600: faces at 6001; a cube takes ten slots.
extern quadtable quad1, quad2, quad3, quad4;  // point indexes
extern quadtable quadcolour;                  // palette index; the painter increases it if rotz is 90 or 270
extern quadtable framing1, framing2;          // number of framing lines of each direction; 0: none
extern table<double, lastquad> quaddist;      // model units: distance of the nearest corner; overwritten by the sort
extern table<double, lastquad> quadcornerdist1, quadcornerdist2, quadcornerdist3, quadcornerdist4;  // 1, 3, 2, 4
extern table<value, lastquad> quadorder;  // quad indexes, nearest first

// ---- cubes: by cube number 400..599 and 600..799 ---------------------------------------------------------
extern quadtable cubegrade;                                    // field 8 of a cube row
extern table<value, lastquad, clearedcubecolours> cubecolour;  // field 9, a palette index
inline value rowgrade, rowcolour;                              // the same for all cubes of a row of an axis-cube file

// ---- colours ---------------------------------------------------------------------------------------------
extern table<value, lastcolour> palred, palgreen, palblue;  // 0..255 by palette index; 1..236 are filled, 0 is black
inline value backred, backgreen, backblue;                  // the background's components, 0..255

// ---- view state ------------------------------------------------------------------------------------------
inline value perpx, perpy, perpz;           // the eye, model units: absolute, or relative to the focus (perprelative)
inline value focusx, focusy, focusz;        // the focal point, model units, always absolute
inline value mag;                           // magnification: the number in the box, times ten while displaying
inline value vertshift, horizshift;         // display shift in viewport pixels
inline value perprelx, perprely, perprelz;  // the eye as the last view change set it, relative to the focus
inline value perpabsx, perpabsy, perpabsz;  // absolute eye, shown in perptxtx..
inline value viewprompt;                    // "AUTOMA" requests the fix-up of the next projection, which sets "PROMPT"
inline value magshown;                      // the number in magtxt, a tenth of mag

// Flags of the view, with the procedures that set and clear them
//   perprelative   1: makeeyerelative, in projectdraw and rebasepoints   0: SET and a retrieval
//   refready       1: referencepass, in projectdraw and replot     0: settle; plotgroups if plotstate is 1 or 2;
//                                                                     projectdraw if skipfixup is 0
//   skipfixup      1: plotgroups if plotstate is 1 or 2            0: projectdraw, at its start
//   rebasedone     1: settle                                       0: projectdraw, at its end
//   plotstate      2: showscene                                    never
inline value perprelative;  // 1: perpx.. are relative to the focus; 0: they are absolute
inline value refready;      // 1: the reference point has been projected for this view
inline value skipfixup;     // 1: the next projectdraw skips fix-up and scaling
inline value rebasedone;    // 1: the focus was subtracted from the working points again since the last projectdraw
inline value plotstate;     // 2: plotgroups takes the eye from perprelx..

inline double planeseedx, planeseedy, planeseedz;        // a point near the eye, relative to the focus
inline double planecentrex, planecentrey, planecentrez;  // picture plane's centre, relative to the focus
inline int walkcount;                  // steps left of the near-side walk, shared by both ends of a line
inline value curgroup, curwirecolour;  // number and palette index of the line group being drawn

// ---- placement of the element about to be read -----------------------------------------------------------
inline value datafile;                // name of the element file under datah
inline value elementkind;             // "girder", "panel" or "roof"
inline value placemode;               // 0: the file's script; 1, 4: rotate about Z; 2: about X; 3, 5: only move
inline value placex, placey, placez;  // layout units; placement converts x and y to world units
inline value rotz;                    // degrees about Z; a script leaves radians here
inline value rotx;                    // degrees about X; placement overwrites it with radians
inline value facecode;                // recorded, with no effect on drawing

// ---- run mode --------------------------------------------------------------------------------------------
inline value floorname;                      // "1".."10", in design file names
inline value floornum;                       // the number read from the floor box or a file name
inline value drawmode;                       // 1 wireframe, 2 solid
inline value recordmode;                     // 1 recording to the design file, 0 not
inline value recordtext, drawtext;           // the texts of writefilebox and wiresolid as last read
inline value palname;                        // palette file's name without folder and extension
inline value panelprefix;                    // first part of the panel file's name, set by the eight panel buttons
inline value panelcode;                      // code of the panel last chosen or replayed; the painter reads it
inline value girdercode, roofcode, anycode;  // codes of the record being replayed
inline value firstfilename, secondfilename;  // names last picked in file lists or deleted; the painter reads them
inline value loadedfile;                     // path of the data file last read into the tables, for reports
inline value preopened;                      // 1..4: the file for the reader of this number is already open

// ---- start-up --------------------------------------------------------------------------------------------
inline value startgroup1, startgroup2, startgroup3;  // file names without folder and extension
inline value startprefix;                            // first two letters of the group being shown; select its reader
inline value startdone;                              // 1: startdisplay only shows the groups

// ---- view controls ---------------------------------------------------------------------------------------
inline value rotstage;                      // 1 X falls, 2 Y rises, 3 X rises, 4 Y falls
inline value rotboxx, rotboxy;              // absolute eye as an arrow last read it from the boxes
inline value focusinc, focusstep;           // vertical focus step, and the signed step of shiftz
inline value maginc, shiftinc;              // steps of magnification (box units) and shifts (pixels)
inline value perpsumx, perpsumy, perpsumz;  // eye plus focus after a step

// ---- the solid painter -----------------------------------------------------------------------------------
inline int divisions;                                     // intervals of the fill
inline value facecolour, framecolour;                     // palette indexes of the quad being painted
inline value railstart1, railend1, railstart2, railend2;  // point indexes of the edges that framing lines join
inline value framen;                                      // number of framing lines of the direction being drawn

// ---- design records of a replay: one index is one record -------------------------------------------------
// Filled by the file readers; rdorder is never cleared, so a slot that a sort does not fill keeps its old number.
extern recordtable rdnumber, rdgirdernumber, rdpanelnumber, rdroofnumber;  // element number; 0: unused
extern recordtable rdcode, rdgirdercode, rdpanelcode, rdroofcode;          // element code
extern recordtable rdx, rdy;                                               // layout units; world units once sorted
extern recordtable rdrotx, rdrotz;                                         // degrees
extern recordtable rdplacex, rdplacey, rdplacez;                           // layout units
extern recordtable rdkind, rdface, rdtrailer;                              // first and last two fields of a record
extern recordtable rdorder;                                                // record indexes, farthest first
inline value combinedcount;                                                // records of both files of a combined replay

// ---- captures --------------------------------------------------------------------------------------------
inline value capname, capsidecar;                             // names of bitmap and view record being written
inline value bmpfile, bmpstem, bmpext, bmpimage, bmpsidecar;  // names of an image retrieval

// ---- written and never read ------------------------------------------------------------------------------
// Numbers read or computed by a step that no later step uses. They are stored so that the world contains each result of
// a step and each number of a data file.
extern table<double, lastpoint> planedist;  // model units: distance of the intersection from the plane's centre
extern table<double, lastpoint> planecos;   // cosine of the angle between intersection and up reference
extern quadtable quadface, quadgrade;       // face number; grade of a cube's faces 1..4
extern table<value, 12 * 9> viewpreset;     // twelve records of nine values (record r starts at 9r - 8), eye relative
inline value startstep;                     // number of the start group being read
inline value spareface;                     // set by each click on a position
inline value anynumber;                     // number of the record being replayed
inline value focussign;                     // direction of the vertical focus step
inline value framesecond;                   // 1 while the first of two framing directions is drawn

// A scalar of the type value, and its name.
struct scalar {
    std::string name;
    value* variable;
    bool recorded;  // part of the state that sessions record
};
// Returns all scalars of that type. The recorded ones come first, in the order of the records.
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
