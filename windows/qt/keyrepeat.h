// A key that is held down is one press. The keyboard's repeats would record, replay or delete again and again; they
// reach only text, the keys that move about, and the buttons that step.
#pragma once

namespace tessaly {

// To be called once there is an application.
void filterkeyrepeats();

}  // namespace tessaly
