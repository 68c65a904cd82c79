// The list of design files. Deleting a file does not change the picture.

#include "building/filelist.h"

#include "building/designfiles.h"
#include "core/controls.h"
#include "core/textfiles.h"

namespace tessaly {

void clickdisplayfilelistbtn() {
    refresh(designfileslist);
    hide(killfilebtn);  // nothing is picked in a refreshed list
    show(designfileslist);
    show(closefilelistbtn);
}

void pickdesignfileslist() { show(killfilebtn); }

void clickclosefilelistbtn() {
    for (control* c : {&designfileslist, &killfilebtn, &closefilelistbtn}) hide(*c);
}

void clickkillfilebtn() {
    firstfilename = selectedtext(designfileslist);
    deletefile(designpath(firstfilename));
    refresh(designfileslist);
    clickclosefilelistbtn();
}

void clickescapefilelistbtn() {
    for (control* c :
         {&escapefilelistbtn, &selectgirderfile, &autofile, &autofile1, &autofile3, &autofile5, &autohintbox})
        hide(*c);
}

}  // namespace tessaly
