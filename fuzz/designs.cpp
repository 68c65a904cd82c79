// A design file of the class that its length chooses, through both readers, as wires and solid.
#include "fuzz/fuzz.h"

using namespace tessaly;

namespace {

struct replay {
    control &button, &first, *second;
};
const replay replays[] = {{autowiresingle, autofile, nullptr},
                          {autosolidsingle, autofile5, nullptr},
                          {autowirebtn, autofile1, &autofile2},
                          {autosolidbtn, autofile3, &autofile4}};

// Elements of one face: how they look is another target's affair.
void simplifyelements() {
    for (const auto& file : std::filesystem::directory_iterator("datah"))
        write(file.path(), "WIRECOLORS:\n1,2,3,4,5,6,7\nSTANDARD:\n1,0,0,0\n2,16,0,0\n3,0,0,16\n9999,0,0,0\n"
                           "LINEG1:\n1,2\n2,3\n9999,9999\nLINEG2:\n9999,9999\nLINEG3:\n9999,9999\n"
                           "LINEG4:\n9999,9999\nLINEG5:\n9999,9999\nAUTOCUBE400:\n9999,0,0,0,0,0,0,0,0\n"
                           "AUTOCUBE600:\n9999,0,0,0,0,0,0,0,0\nAUTOPLANE:\n1,1,2,3,3,1,9\n9999,0,0,0,0,0,0\n"
                           "AUTOFRAMING1:\n1,2\n0,9999\nAUTOFRAMING2:\n0,9999\n");
}

}  // namespace

void play(const std::string& input) {
    constexpr const char* names[] = {"girders1.txt", "panels2.txt", "roofs3.txt"};
    static const bool simplified = (simplifyelements(), true);
    static_cast<void>(simplified);
    for (const replay& r : replays) {
        startanew();
        usualview();
        write(std::string("designs/") + names[input.size() % 3], input);
        untilitfails([&r] {
            for (control* list : {&r.first, r.second})
                if (list) setfolder(*list, "designs\\");
            clickcontrol(r.button);
            pickitem(r.first, 0);
            if (r.second) pickitem(*r.second, 0);
        });
    }
}
