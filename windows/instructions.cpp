// The help: its pages filled with their words.

#include "windows/binding.h"
#include "windows/controlwidgets.h"
#include "windows/helppages.h"

namespace tessaly {

void dressinstructions(face&) {
    for (const helppage& page : helppages)
        if (control* c = findcontrol(page.name)) c->text = page.text;
}

}  // namespace tessaly
