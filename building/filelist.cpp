// The design file list. The picture of a design stays when its file is deleted.

#include "building/filelist.h"

#include "building/records.h"
#include "core/controls.h"
#include "core/textfiles.h"

namespace tessaly {

void clickdisplayfilelistbtn() {
    refresh(designfileslist);
    hide(killfilebtn);  // the list that was read again has nothing picked
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
