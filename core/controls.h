// Windows and controls as plain state. The logic reads and writes this state and never sees a widget; the window layer
// copies it to the screen and back, and the player uses it without a screen. A control has one name: here, in the
// tables and as the object name of its widget.
#pragma once

#include "core/colour.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

// The kinds of controls; in a window, a control of a later kind is in front of one of an earlier kind.
enum class controlkind { picturebox, frame, label, button, picturebutton, textbox, page, list, filelist, combobox };

struct twips {  // bounds on the window's design grid; 15 twips are one pixel
    int left, top, width, height;
};
constexpr int twipsperpixel = 15;

// The tint of a box: none, text that has not been applied yet, or text that needs attention.
enum class boxtint { none, edited, warning };

struct control;

struct window {
    const char* name;
    const char* title;
    int widthtwips, heighttwips;  // of the interior
    colour background;
    bool shown = false;
    int raiseorder = 0;                   // grows with each showwindow: the window with the highest number is in front
    std::vector<control*> controls = {};  // the named ones in the order of controls.def, then those that were added
    control* openedby = nullptr;          // the element button that opened it last
};

struct control {
    window* parent;
    controlkind kind;
    std::string name;
    twips bounds;
    std::string text = {};  // caption, or text of a box; UTF-8
    bool shown;
    std::optional<colour> background;  // if empty, the usual colour of the kind
    std::string tooltip;               // the part that never changes
    std::string accessiblename;        // for screen readers; if empty, they read the caption
    int elementnumber = 0;             // of a layout button
    std::function<void()> run = {};    // procedure of a click or a picked item; set when the program starts
    std::string folder = {};           // of a file list, with backslashes
    std::vector<std::string> items = {};
    int selected = -1;                            // index into items, -1: none
    control* openedby = nullptr;                  // the control whose event showed it last
    bool chosen = false;                          // a button that looks pressed until another is chosen
    bool repeats = false;                         // a button that is clicked repeatedly while mouse or key hold it
    std::string tooltipsuffix = {};               // the part of the tooltip that changes
    std::optional<std::string> programtext = {};  // of a box of the view: text last written by the program, if any
    const char* (*warningof)(const std::string& text) = nullptr;  // of a box: the warning for a text, nullptr: none
};

// The windows, in the order in which reports list them.
extern window startform, vistaplan, layoutgirder, layoutpanels, layoutroof, easyviews, instructions;
const std::vector<window*>& allwindows();

// The named controls. The buttons of the layouts and the quick views are generated and have no variables.
#define CONTROL(parent, kind, name, left, top, width, height, text, shown, background, tooltip, accessiblename)        \
    extern control name;
#include "core/controls.def"
#undef CONTROL

// The control whose event is running, or was the last one to run.
inline control* usedcontrol = nullptr;

// The control that gets the keyboard focus after this event; nullptr: the focus does not move.
inline control* wantedfocus = nullptr;

// Repaints the surface of the main window; set by the window layer.
inline std::function<void()> repaintmainwindow;

// Set by exitbtn: the program ends with status 0 after the event.
inline bool programended = false;

// Resets windows and controls: all windows are hidden, and each window's list holds its named controls in their initial
// state. Controls that addcontrol added are gone.
void resetcontrols();

// Adds a copy of a control to the end of its window's list; it exists until the next resetcontrols.
void addcontrol(control added);

// Find a control of any window, or a window, by its name; nullptr if no such name exists.
control* findcontrol(std::string_view name);
window* findwindow(std::string_view name);

inline bool islist(const control& c) { return c.kind == controlkind::list || c.kind == controlkind::filelist; }

// Returns the text of the selected item, "" if nothing is selected.
const std::string& selectedtext(const control& list);

// Returns the tint of a box for its current text.
boxtint tintof(const control& box);

// Returns the complete tooltip of a control, with its suffix or the warning for its text.
std::string tooltipof(const control& c);

// Shows a window in front of the others.
void showwindow(window& w);
inline void hidewindow(window& w) { w.shown = false; }

// Returns whether a window is shown that was last opened by this button.
bool opensshownwindow(const control& c);

// Show and hide a control. show also sets openedby to the control whose event is running, and requests the keyboard
// focus for c if c is a list.
void show(control& c);
inline void hide(control& c) { c.shown = false; }

// Returns the control that gets the focus when c is hidden: the control that opened c; if that is hidden too, the
// control that opened it, and so on; nullptr if none of them is shown.
control* focusafter(const control& c);

// Runs the procedure of a control as a click does; a control without a procedure ignores the click.
// fails: as the procedure does.
void clickcontrol(control& c);

// Selects an item of a list, file list or combination box, then runs its procedure. fails: as the procedure does.
void pickitem(control& c, int item);

// Writes a number of the program to a box of the view. The box is tinted while it contains any other text, which has
// not been applied yet.
void writebox(control& box, std::string text);

// setfolder sets the folder of a file list and reads it; refresh reads it again. The items are the names of its
// files, and none is selected. fails: file not found if the folder is missing.
void setfolder(control& filelist, std::string_view folder);
void refresh(control& filelist);

}  // namespace tessaly
