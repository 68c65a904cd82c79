// The table of the quick view buttons, and the procedure of a click. On the plan X grows downward and Y to the right.

#include "view/quickviews.h"

#include <iterator>
#include <string>
#include <string_view>

namespace tessaly {

namespace {

constexpr quickview quickviews[] = {
    // clang-format off
    // name               kind         numbers          left  top
    {"perpx1800y0",       eyexy,    { 1800,     0},  4680, 8520},
    {"perpx1660y690",     eyexy,    { 1660,   690},  6480, 8280},
    {"perpx1270y1270",    eyexy,    { 1270,  1270},  7920, 7320},
    {"perpx690y1660",     eyexy,    {  690,  1660},  8880, 5880},
    {"perpx0y1800",       eyexy,    {    0,  1800},  9120, 4320},
    {"perpxm690y1660",    eyexy,    { -690,  1660},  8880, 2520},
    {"perpxm1270y1270",   eyexy,    {-1270,  1270},  7680, 1320},
    {"perpxm1660y690",    eyexy,    {-1660,   690},  6240,  480},
    {"perpxm1800y0",      eyexy,    {-1800,     0},  4680,  240},
    {"perpxm1660ym690",   eyexy,    {-1660,  -690},  3000,  480},
    {"perpxm1270ym1270",  eyexy,    {-1270, -1270},  1560, 1320},
    {"perpxm690ym1660",   eyexy,    { -690, -1660},   720, 2760},
    {"perpx0ym1800",      eyexy,    {    0, -1800},   360, 4320},
    {"perpx690ym1660",    eyexy,    {  690, -1660},   600, 5760},
    {"perpx1270ym1270",   eyexy,    { 1270, -1270},  1440, 7080},
    {"perpx1660ym690",    eyexy,    { 1660,  -690},  2760, 8160},
    {"perpz2100",         eyeheight,   { 2100},        12480,  480},
    {"perpz1600",         eyeheight,   { 1600},        12480, 1440},
    {"perpz1100",         eyeheight,   { 1100},        12480, 2400},
    {"perpz600",          eyeheight,   {  600},        12480, 3360},
    {"perpz100",          eyeheight,   {  100},        12480, 4320},
    {"focusx0y0",         focusxy,  {    0,     0},  4680, 4320},
    {"focusx192y384",     focusxy,  {  384,   192},  5640, 4800},  // differs from its name and position, intended
    {"focusx192ym384",    focusxy,  {  192,  -384},  3720, 4800},
    {"focusxm192y384",    focusxy,  { -192,   384},  5640, 3840},
    {"focusxm192ym384",   focusxy,  { -192,  -384},  3720, 3840},
    {"focusz850",         focusheight, {  850},        10800, 6120},
    {"focusz600",         focusheight, {  600},        10800, 6600},
    {"focusz350",         focusheight, {  350},        10800, 7080},
    {"focusz100",         focusheight, {  100},        10800, 7560},
    // clang-format on
};
static_assert(std::size(quickviews) == 30);

// One eye button also copies the focus X of easyviews to the main window. It is the only way in which a text typed on
// easyviews reaches the main window. This is intended.
constexpr std::string_view focuscopyingbutton = "perpx0ym1800";

constexpr int buttonsize = 255;  // twips

// Returns a name with the numbers that the button writes, such as "Eye at X 1800, Y 0", "Focus at Z 850".
std::string accessiblenameof(const quickview& q) {
    const std::string first = std::to_string(q.numbers[0]), second = std::to_string(q.numbers[1]);
    return std::string(q.kind.accessiblename) + " at " +
           (q.kind.values.size() == 1 ? "Z " + first : "X " + first + ", Y " + second);
}

void clickquickview(const quickview& q) {
    int i = 0;
    for (const viewvalue& v : q.kind.values) v.easyviewsbox->text = std::to_string(q.numbers[i++]);
    if (q.name == focuscopyingbutton) focustxtx.text = efocusxbox.text;
    for (const viewvalue& v : q.kind.values) v.box.text = v.easyviewsbox->text;
}

}  // namespace

std::span<const quickview> allquickviews() { return quickviews; }

void clickfastchange() {
    showwindow(easyviews);
    copyboxestoeasyviews();
}

void clickeasysetbtn() { hidewindow(easyviews); }

void addquickviewbuttons() {
    for (const quickview& q : quickviews)
        addcontrol({.parent = &easyviews,
                    .kind = controlkind::button,
                    .name = q.name,
                    .bounds = {q.left, q.top, buttonsize, buttonsize},
                    .shown = true,
                    .background = q.kind.background,
                    .tooltip = accessiblenameof(q) + ": SET applies it (F5)",
                    .accessiblename = accessiblenameof(q),
                    .run = [&q] { clickquickview(q); }});
}

}  // namespace tessaly
