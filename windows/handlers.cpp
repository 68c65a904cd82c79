// The table of the named controls' procedures, the start and the end of the program, and the display buttons. The
// position buttons, the quick view buttons and the stepping controls get their procedures in building/layouts,
// view/quickviews and view/stepping.

#include "windows/handlers.h"

#include "building/buildstate.h"
#include "building/combinedreader.h"
#include "building/filelist.h"
#include "building/layouts.h"
#include "building/singlereader.h"
#include "building/wholebuilding.h"
#include "captures/capture.h"
#include "captures/retrieval.h"
#include "core/failure.h"
#include "core/textfiles.h"
#include "core/world.h"
#include "data/cubes.h"
#include "data/startdisplay.h"
#include "render/redraw.h"
#include "view/manualview.h"
#include "view/quickviews.h"
#include "view/rotation.h"
#include "view/stepping.h"
#include "windows/helppages.h"
#include "windows/helpwindow.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

namespace tessaly {

namespace {

void filllists() {
    incrementlist.items = {"500", "300", "100", "50", "10", "5", "1", ".1", ".01 ", " "};
    rotincbox.items = {"500", "300", "100", "50", " "};
    magincbox.items = {".03", ".02", ".01", ".005", ".002", ".001", " "};
    floorlist.items = {"9", "8", "7", "6", "5", "4", "3", "2", "1"};
}

void setfolders() {
    setfolder(designfileslist, "designs\\");
    setfolder(bmplistbox, "bmps\\");
    for (control* list : {&autofile, &autofile1, &autofile2, &autofile3, &autofile4, &autofile5})
        setfolder(*list, "designs\\");
}

// Returns why the program cannot run in the current folder, "" if it can.
std::string folderproblem() {
    std::error_code failed;
    if (std::filesystem::is_directory("datah", failed)) return {};
    const std::string here = std::filesystem::current_path(failed).string();
    return (failed ? "the working folder was deleted" : here + " is not a working folder") +
           ": start the program with ./run.sh in the folder of its sources, or with the installed command tessaly";
}

void clickstartprogrambtn() {
    hidewindow(startform);
    filllists();
    try {
        setfolders();
        startdisplay();
    } catch (const failure& f) {
        const std::string problem = folderproblem();
        throw failure(f.kind, f.detail, f.location, problem.empty() ? f.remedy : problem);
    }
    showwindow(vistaplan);
}

window* const layouts[] = {&layoutgirder, &layoutpanels, &layoutroof};

void hidelayouts() {
    for (window* layout : layouts) hidewindow(*layout);
}

void clickgroupbtn() {
    hidelayouts();
    startdone = 1;
    startdisplay();
}

void clickdisplaycubebtn() {
    hidelayouts();
    displaycube();
}

void clickexitbtn() {
    for (window* w : allwindows()) hidewindow(*w);
    programended = true;
}

// The procedures of the named controls. CLICK(x) is the row of control x with the procedure clickx, PICK(x) that of
// list x with the procedure pickx.
struct handler {
    control* target;
    void (*run)();
};
// clang-format off
#define CLICK(name) {&name, click##name}
#define PICK(name) {&name, pick##name}
const handler handlers[] = {
    // start, display, end
    CLICK(startprogrambtn), {&fillscreen, clearpicture}, CLICK(groupbtn), CLICK(displaycubebtn), CLICK(exitbtn),
    // choice of elements
    {&orange1btn, clickpanelbtn}, {&orange2btn, clickpanelbtn}, {&orange3btn, clickpanelbtn},
    {&yellow1btn, clickpanelbtn}, {&yellow2btn, clickpanelbtn}, {&yellow3btn, clickpanelbtn},
    {&door2btn, clickpanelbtn}, {&door4btn, clickpanelbtn}, CLICK(postbeambtn), CLICK(roofbtn),
    {&snipleftbtn, clicksnipbtn}, {&sniprighbtn, clicksnipbtn}, {&snipbothbtn, clicksnipbtn},
    // floor, draw mode, record mode
    CLICK(floorbtn), PICK(floorlist), CLICK(wiresolidbtn), CLICK(writefilebtn),
    // replay of design files
    CLICK(autowiresingle), CLICK(autosolidsingle), PICK(autofile), PICK(autofile5), CLICK(autowirebtn),
    CLICK(autosolidbtn), PICK(autofile1), PICK(autofile2), PICK(autofile3), PICK(autofile4), CLICK(escapefilelistbtn),
    // list of design files
    CLICK(displayfilelistbtn), PICK(designfileslist), CLICK(killfilebtn), CLICK(closefilelistbtn),
    // rotation
    CLICK(activateleftbtn), CLICK(rotleftbtn), CLICK(rotrightbtn), CLICK(activaterightbtn), CLICK(reactivateleftbtn),
    // manual view and quick views
    CLICK(cventerbtn), CLICK(defaultviewbtn), CLICK(hidpfm), CLICK(shopfm), CLICK(fastchange), CLICK(easysetbtn),
    // captures
    CLICK(screencapbtn), CLICK(capescapebtn), CLICK(screencapenter), CLICK(retrieveimagetbtn), CLICK(closebmpbtn),
    CLICK(delbmpbtn), CLICK(displayimagebtn),
    // help
    CLICK(instructionsbtn), CLICK(returntomainbtn),
    {&elementsbtn, [] { showpages({&elementstext1, &elementstext2}); }},
    {&filereaderbtn, [] { showpages({&filereadertext, &filereadertext2}); }},
    {&displaybtn, [] { showpages({&displaytext}); }},
    {&viewcontrolbtn, [] { showpages({&viewcontrolstext}); }},
    {&capturesbtn, [] { showpages({&capturetext}); }},
};
#undef CLICK
#undef PICK
// clang-format on

constexpr programkey keys[] = {
    {"F1", [] { clickcontrol(instructionsbtn); }},
    {"F5", [] { clickcontrol(cventerbtn); }},
    {"F6",
     [] {
         usedcontrol = wantedfocus = nullptr;  // this event belongs to no control
         drawwholebuilding();
     }},
};

// A button that the Escape key clicks, and the controls that belong to it: if one of them has the focus, Escape clicks
// this button.
struct closingbutton {
    control* button;
    const control* controls[4];
};
const closingbutton closingbuttons[] = {
    {&capescapebtn, {&capbox, &screencapenter}},
    {&escapefilelistbtn, {&autofile, &autofile1, &autofile3, &autofile5}},
    {&closefilelistbtn, {&designfileslist, &killfilebtn}},
    {&closebmpbtn, {&bmplistbox, &displayimagebtn, &delbmpbtn}},
    {&easysetbtn, {}},
    {&returntomainbtn, {}},
};

control* closingbuttonof(const window& w, const control* focused) {
    control* firstshown = nullptr;
    for (const closingbutton& c : closingbuttons) {
        if (c.button->parent != &w || !c.button->shown) continue;
        const bool belongs = std::find(std::begin(c.controls), std::end(c.controls), focused) != std::end(c.controls);
        if (focused && (focused == c.button || belongs)) return c.button;
        if (!firstshown) firstshown = c.button;
    }
    return firstshown;
}

}  // namespace

void startprogram() {
    resetchannels();
    restartworld();
    resetcontrols();
    addlayoutbuttons();
    addquickviewbuttons();
    setboxwarnings();
    preparesteps();
    for (const handler& h : handlers) h.target->run = h.run;
    for (const helppage& p : helppages) p.page.text = p.text;
    for (const sniptype& s : sniptypes) panelsnipper.items.push_back(s.text);
    showwindow(startform);
}

std::span<const programkey> programkeys() { return keys; }

void pressescape(window& w, const control* focused) {
    wantedfocus = nullptr;
    if (focused && focused->kind == controlkind::list)
        wantedfocus = focusafter(*focused);
    else if (control* const button = closingbuttonof(w, focused))
        clickcontrol(*button);
    else if (std::find(std::begin(layouts), std::end(layouts), &w) != std::end(layouts))
        closewindow(w);
}

void closewindow(window& w) {
    if (&w == &startform || &w == &vistaplan)
        clickexitbtn();
    else
        hidewindow(w);
}

}  // namespace tessaly
