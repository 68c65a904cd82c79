// Windows and controls as plain state. The logic reads and writes this state and never sees a widget; a window layer
// carries it to the screen and back, and the player drives it with no screen at all. One string is a control's name
// here, in the tables and on its widget.
#pragma once

#include "core/colour.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

enum class controlkind { button, picturebutton, label, textbox, page, list, filelist, combobox, picturebox, frame };

struct twips {  // of the window's design grid; 15 twips are one pixel
    int left, top, width, height;
};
constexpr int twipsperpixel = 15;

struct control;

// How a box is tinted: not at all, as holding a text that is not in force yet, or as needing attention.
enum class boxtint { none, edited, warning };

struct window {
    window(const char* itsname, const char* itstitle, int itswidth, int itsheight, colour itsback);

    const char* name;
    const char* title;
    int widthtwips, heighttwips;  // of the interior
    colour back;
    bool created = false;  // made on first use, kept until exit
    bool shown = false;
    int raised = 0;                  // grows at each showing: the window with the highest stands in front
    std::vector<control*> controls;  // in the order of the tables
    control* openedby = nullptr;     // the element button that opened it last
};

struct control {
    window* in;
    controlkind kind;
    std::string name;
    twips bounds;
    std::string text = {};  // caption, or text of a box; UTF-8
    bool shown;
    std::optional<colour> back;      // its own; the kind's where there is none
    std::string tooltip;             // the part that never changes
    std::string accessiblename;      // for screen readers; the caption where empty
    int elementnumber = 0;           // of a layout button
    std::function<void()> run = {};  // what a click, or a pick of an item, does; set at the start of the program
    std::string folder = {};         // of a file list, as users write it
    std::vector<std::string> items = {};
    int selected = -1;                        // index into items, -1: none
    control* openedby = nullptr;              // the control whose event showed it last
    bool chosen = false;                      // a button that looks pressed until another is chosen
    bool repeats = false;                     // a button that goes on being clicked while it is held, by mouse or key
    std::string note = {};                    // the part of the tooltip that changes, with its leading blank or mark
    std::optional<std::string> written = {};  // into a box of the view: the program's last text; nullopt: none yet
    const char* (*warningof)(const std::string& text) = nullptr;  // of a box: what is odd about a text, or nullptr
};

// The windows, in the order in which reports list them.
extern window startform, vistaplan, layoutgirder, layoutpanels, layoutroof, easyviews, instructions;
const std::vector<window*>& allwindows();

// The controls with a name of their own; position buttons of layouts and quick views come from their families.
#define CONTROL(in, kind, name, left, top, width, height, text, shown, back, tooltip, accessiblename)                  \
    extern control name;
#include "core/controls.def"
#undef CONTROL

// The tint of a box by its text; the whole tooltip, with what holds at the moment.
boxtint tintof(const control& box);
std::string tooltipof(const control& c);

// Puts windows and controls back to their first state: the named controls in their windows' lists, nothing shown.
void resetcontrols();

// Adds a control to the end of its window's list; it must outlive the program's run.
void addcontrol(control& added);

// The control of that name in any window, or nullptr.
control* findcontrol(std::string_view name);
window* findwindow(std::string_view name);

// The text of the selected item, "" where nothing is selected.
const std::string& selectedtext(const control& list);

inline bool islist(const control& c) { return c.kind == controlkind::list || c.kind == controlkind::filelist; }

// Makes a window visible and puts it in front, creating it on first use; hides it, creating it on first use.
void showwindow(window& w);
void hidewindow(window& w);

// Show and hide a control. The control that is used now is remembered as the one that opened it, and the keyboard goes
// to a list that is opened.
void show(control& c);
inline void hide(control& c) { c.shown = false; }

// A click on a button, and on an item of a list, file list or combination box, which selects it: runs the control's
// procedure. One without a procedure does nothing but look like a button; a list without one only selects.
// fails: as the procedure does.
void clickcontrol(control& c);
void pickitem(control& c, int item);

// Writes a value into a box of the view. Only the program's own values are written so: a text that did not come this
// way is not in force yet.
void writebox(control& box, std::string text);

// The user's text in a text box or combination box.
void typetext(control& c, std::string_view text);

// Points a file list at its folder, or reads that folder again: every visible file by bare name, nothing selected.
// Fails with file not found where there is no such folder.
void setfolder(control& filelist, std::string_view folder);
void refresh(control& filelist);

// The control whose event runs, or ran last.
extern control* usedcontrol;

// Whether a window that is shown was opened by this button last.
bool opensshownwindow(const control& c);

// The control that is to get the keyboard focus after this event; nullptr: the focus stays.
extern control* wantedfocus;

// Where the focus goes when c is hidden: to what opened it, or, where that is hidden too, to what opened that; nullptr
// where nothing did that is still there.
control* focusafter(const control& c);

// Asks the main window for a repaint of its own surface; set by the window layer.
extern std::function<void()> repaintmainwindow;

// Set by exitbtn: the program is to end with status 0 once the event is over.
extern bool programended;

}  // namespace tessaly
