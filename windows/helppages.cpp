// The text of the instructions window. A page appears exactly as it is written here. It holds 40 lines of 130
// characters; the four pages that share the window in pairs hold lines of 66.

#include "windows/helppages.h"

namespace tessaly {

namespace {

const char* const elements1 = R"page(
 CHOOSING AND PLACING ELEMENTS
 ================================================================
 1. Press an element in the left column of the main window. The
    plan of one floor opens, with a button for every place:
      orange and yellow panels, doors ... Panels Layout
      post and beam ..................... Layout Girders
      roof .............................. Roof Layout
 2. Press the places on the plan. Each click draws one element
    at once. X runs down the plan, Y runs across it.
 3. "Change floor" shows the floors 1 to 9; type 10 into the
    floor box for the tenth. The clicks that follow build there.
 A plan may stay open while you press another panel button: the
 next click then places that panel.
 ----------------------------------------------------------------
 SNIPS (Panels Layout)
 For inside corners a panel can be cut short by a post's width:
      Full panel         both ends whole
      snip left side     left end cut, seen from outside
      snip right side    right end cut, seen from outside
      snip both sides    both ends cut
 Pick from the list, or press one of the three snip pictures.
 The default snip mode is full panel, preselected. A snip holds
 for one click, then the list says "Full panel" again.
 ----------------------------------------------------------------
 WIRE AND SOLID
 "Draw mode" switches between "wireframe" and "solid" for the
 clicks to come. The default mode is solid rendering.
 In solid, the last click lies on top, whatever stands nearer.
 WIREFRAME IS RECOMMENDED FOR PANELS DURING DESIGN PHASE.
 ----------------------------------------------------------------
 RECORD TO FILE MODE
 "Record mode" switches between "on" and "off"; it starts "on".
 While it is on, each click adds a line to a file in the folder
 "designs", by kind of element and floor:
      girders1.txt   posts and beams of floor 1
      panels1.txt    panels of floor 1
      roofs1.txt     roofs of floor 1
 and so on: girders2.txt, panels7.txt. These files are your
 building; nothing else of it is kept when the program ends.
 While it is off, a click is drawn and not recorded.)page";

const char* const elements2 = R"page(
 DESIGN FILES
 ================================================================
 The folders "designs", "bmps" and "el-numbers" lie side by side
 where the program works: once it is installed, in the folder
 "Tessaly" of your home folder.
 The program adds to a design file that is there already. For a
 new building, first move the old files away or delete them.
 ----------------------------------------------------------------
 DELETING A FILE
 "Display files" lists the folder "designs". Press a name, then
 "Delete file". The file goes at once, with no question asked;
 what it drew stays on the screen.
 ----------------------------------------------------------------
 EDITING A FILE BY HAND
 A design file is plain text, one line a click, in the order of
 your clicks. Any plain text editor will do. One such line:

      "girder",49,8,104,42,0,0,0,16,4,64
               ^^
               element number

 The first number of a line matches the element number in the
 image of the element map. The maps lie in the folder
 "el-numbers": girders.png, panels.png and roofs.png. Look at
 them in a picture viewer, or print them.

 To take back a click, delete its line and save the file; then
 press "Clear screen" and replay the file. The line of your
 last click is the last one.

 THE RULE: add no line feed behind the last line of data, and
 leave no blank lines anywhere. A blank line moves all that
 follows out of place, and the replay goes wrong.
 ----------------------------------------------------------------
 MOVING FINISHED FILES AWAY
 When a building is done, move its files from "designs" to a
 folder of your own, with your file manager. Move or copy them
 back to see it again. Keep nothing in "designs" but design
 files: the lists of the file readers show whatever lies there,
 and to pick a file of another name there ends the program.)page";

const char* const filereader1 = R"page(
 SHOWING A DESIGN AGAIN: THE FILE READERS
 ================================================================
 The picture is only a picture. To see your design again, from
 this view or from another, a file reader draws its files anew,
 element after element, over what is on the screen: press
 "Clear screen" first. Nothing is recorded by a reader.

 "Wire auto"    draws wires, in the order of your clicks. Fast.
 "Solid auto"   sorts the elements, then paints the farthest
                first, so that near ones cover far ones. It takes
                longer the more lines a file has: a strip shows
                how far it is, the picture comes at the end.

 The floor is taken from the file's name, not from the floor
 box; and the "Draw mode" box plays no part here.
 ----------------------------------------------------------------
 GIRDER+PANEL FILE READER
 It sorts two files of one floor as one, so that girders and
 panels cover each other as they should. Two single replays
 cannot give that.
   1. Press its "Wire auto" or "Solid auto".
   2. Select a girder file. Its name is shown.
   3. Select a panel file. The replay starts.
 Once the first file is selected, do select the second.
 Afterwards redo the panels on outside corners by hand, with
 "Record mode" off: there a post may cover its panels. Roofs
 with panels work too, and need no such final tweaking.
 ----------------------------------------------------------------
 SINGLE FILE READER
 Use it for one file alone: a floor of girders without walls,
 a roof, or one group of elements as told on the right.
   1. Press its "Wire auto" or "Solid auto".
   2. Select a file. The replay starts.
 "Close file list" leaves the choice without a replay.
 ----------------------------------------------------------------
 A WHOLE BUILDING: the lowest floor first, then each floor above
 it, the roof last. A solid replay takes 1000 lines at most; two
 files with more of them together end the program: split them.)page";

const char* const filereader2 = R"page(
 ADVANCED: SPLITTING A FLOOR INTO ELEMENT GROUPS
 ================================================================
 The sort goes by the middle of each element. Where elements
 meet, as on an outside corner, the middle of the post may be
 nearer to you than those of the panels in front of it. The way
 out: keep the floor in several files, and replay them one after
 the other in the order you want, what is to be covered first.

   1. Place the first group of elements.
   2. Rename its file in your file manager, for example
      panels1.txt to panela1.txt. A file given another name
      gets no more lines: your next click starts a new
      panels1.txt.
   3. Place the second group, rename, and so on.
   4. Replay the files in turn with the single file reader.
 ----------------------------------------------------------------
 THE RULES FOR NAMES
 - The first four letters stay "gird", "pane" or "roof".
 - In a file given another name the floor digit stays in its
   place, and the length of the name does not change.
 - The other characters may be anything.

      girders1.txt      panels1.txt       roofs1.txt
      ^^^^   ^          ^^^^  ^           ^^^^ ^
      stay   floor      stay  floor       stay floor

   standard name     names for groups of the same floor
   -------------     ----------------------------------------
   girders1.txt      girdera1.txt  girderb1.txt  girde2s1.txt
   panels1.txt       panela1.txt   panelb1.txt   pane2s1.txt
   roofs1.txt        roofa1.txt    roofb1.txt    roof21.txt
 ----------------------------------------------------------------
 COPIES: panels1.txt copied to panels2.txt puts the same panels
 on the second floor.
 FLOOR 10: girders10.txt has the 1 in the digit's place and is
 shown on floor 1. Name it girder10.txt (panel10.txt, roof10.txt)
 and it is shown on floor 10.)page";

const char* const display = R"page(
 THE DISPLAY BUTTONS
 ======================================================================================================================

 Clear screen      Paints the picture over with the background colour. Your design files stay as they are, and so does
                   the view. Press it before you replay a file, so that the new picture does not lie over the old one.

                   A view change still draws something on the cleared screen: the wires of what was read last.

 ----------------------------------------------------------------------------------------------------------------------

 Display markers   Shows the opening scene with its markers and the layout grid again, over what is on the screen and
                   from the view in force. The grid shows the bays of the plan, five by seven, and the foot of each post.

                   From now on a view change draws the grid again, until you place or replay an element.

 ----------------------------------------------------------------------------------------------------------------------

 Display cube      Shows the wire cube of nine storeys around the plan. It tells you how high each floor stands, and
                   how much of the picture a tall building will take up from this view.

 ----------------------------------------------------------------------------------------------------------------------

 Default view      Puts the view back to the figures of the program's start:

                        perspective (eye)    1850  -1850   830          magnification    0.056
                        focus                   0      0   280          shift            170 up, -270 to the right

                   (The boxes may show a 0 of the focus as 0.1, and the eye a tenth further or cut to "1850." and "-1849";
                   press it once more then.) It wipes the picture and hides the rotation arrow; the small buttons "left"
                   and "right" above it bring an arrow back. Press the left arrow at least once before: no small button
                   is there until then, and the arrows would stay away until the program is started again.

 ----------------------------------------------------------------------------------------------------------------------

 "Display markers" and "Display cube" hide the layout windows. Press an element in the left column to open its plan again.)page";

const char* const viewcontrols = R"page(
 CHANGING THE VIEW
 =============================================================================================================================
 A view change wipes the picture. Only wires come back, and only those of what was read last: the layout grid, or the element
 that you placed or replayed last. Replay your design files to see the building from the new view.

 THE FOUR VIEW OPTIONS
 ---------------------
   PERSPECTIVE     the place of your eye: X, Y and Z               The middle of the plan is at X 0 and Y 0. The plan reaches
   FOCUS           the point that you look at: X, Y and Z          from -488 to 488 in X and from -680 to 680 in Y, and each
   MAGNIFICATION   the size of the picture; 0.056 at the start     floor is 128 high. From the start the eye is at 1850,
   SHIFT           the place of the picture: up and right          -1850, 830 and looks at 0, 0, 280.

 THE THREE METHODS OF CHANGING THEM
 ----------------------------------
 1. BUTTONS: each click changes one value by one step, and draws at once.

      buttons                  what they move                usual step    another step from the list
      Vertical persp   - +     the eye, down and up          100           "Increment"
      Vertical focus   - +     the focus, down and up        50            "Increment"
      Magnification    - +     smaller and larger            0.001         "mag incr"
      SHIFT  V         + --    the picture, up and down      50            "Increment"
      SHIFT  H         + --    the picture, right and left   50            "Increment"
      the two arrows           the eye, around the building  100           "rotation increment"

    The blank entry of a list is the usual step. An arrow comes with "Activate rotation controls", which first resets the view:
    eye and focus of the start, but for the focus Z, 180, and the eye, 180 higher than its box showed. The eye walks along the
    four sides of a square. With the first press of the arrow comes the small button "right", which brings the other arrow.
    Other view changes can confuse the arrows: go on clicking, and they recover by themselves.

 2. FIGURES, THEN SET: "show perp foc mag" shows the boxes of the eye (upper three), of the focus (middle three) and of the
    magnification; the two of the shift are always there. Type, then press SET, or F5 in any window. Numbers only: an empty box
    or any other text ends the program. A 0 of eye or focus becomes 0.1. A box keeps only four or five characters after SET, and
    what it shows is what the next SET takes.

 3. QUICK VIEW CHANGE, THEN SET: its window shows the plan, X down and Y across, with buttons where the eye and the focus may be.

      light green   the eye, X and Y              pink   the eye, Z
      blue          the focus, X and Y            red    the focus, Z

    A click only writes the figures into the boxes. Nothing moves until SET, or F5. For "Default view" see the display buttons.)page";

const char* const captures = R"page(
 KEEPING PICTURES: CAPTURE AND RETRIEVE BMP IMAGES
 ======================================================================================================================

 CAPTURING THE SCREEN
 --------------------
 1. Press "Capture screen bmp". A box for the file name appears.
 2. Type a name that ends in .bmp, for example  house1.bmp
    You must include the .bmp file extension when naming a capture.
 3. Press "Enter", or the key Return. "escape", or the key Escape, leaves without a capture.

 Two files are written to the folder "bmps", beside the folder "designs":

      house1.bmp    the picture, without the boxes and lists that may stand in front of it
      house1.txt    the view: the figures that stand in the nine view boxes

 Take a new name for each capture. Under an old name the picture is replaced, but the view of the first capture stays.
 The last four characters of the name are dropped for the text file, whatever they are: "house" gives  h.txt , and the
 picture "house.txt" is written over its own view. Write .bmp in small letters: "HOUSE.BMP" is not found again.
 A name of fewer than four characters ends the program.

 ----------------------------------------------------------------------------------------------------------------------

 RETRIEVING AN IMAGE
 -------------------
 1. Press "Display - Retrieve image files". The list shows the folder "bmps".
 2. Press a name: the .bmp or the .txt, either will do.
 3. Press "Display image". The picture comes back, and with it the view: the view controls go on from there.

 It comes back as a picture only. The next view change wipes it; replay your design files to go on with the building.
 If the list closes and no picture comes, one of the two files is missing, or nothing was picked.

 ----------------------------------------------------------------------------------------------------------------------

 DELETING AN IMAGE
 -----------------
 Pick a name in the same list and press "Delete file". One file goes, at once; its name leaves the list when the list is
 opened again.
 The txt file of a capture is not to be deleted unless its bmp file goes too: without it the image cannot be retrieved.)page";

const char* const hint = R"page(
 A HINT ON THE ROTATION CONTROLS
 ======================================================================================================================

 The arrows walk the eye along the four sides of a square around the building. The program remembers on which side the
 walk is. Change the view with another tool, such as SET, "Quick view change" or a retrieved image, and the eye may stand
 somewhere else while the walk still goes on along its old side. The arrows then seem confused: the eye moves in a
 direction that you did not expect, or crosses the middle of the square.

 Nothing is broken. Go on clicking the same arrow: the eye walks on until it meets the edge of the square, turns there,
 and follows the sides again as before.

 The small buttons "left" and "right" work out the side from the last click on an arrow. After another view tool, click
 the arrow that shows a few times before you switch direction.

 "Activate rotation controls" resets the view to that of the program's start, and can be pressed once. "Default view"
 hides the arrows; once the left arrow has been used, a small button brings one back.)page";

}  // namespace

const helppage helppages[8] = {
    // clang-format off
    {elementstext1,    elements1 + 1},  // + 1: without the line end of the opening line
    {elementstext2,    elements2 + 1},
    {filereadertext,   filereader1 + 1},
    {filereadertext2,  filereader2 + 1},
    {displaytext,      display + 1},
    {viewcontrolstext, viewcontrols + 1},
    {capturetext,      captures + 1},
    {hinttext,         hint + 1},  // no button shows this page
    // clang-format on
};

}  // namespace tessaly
