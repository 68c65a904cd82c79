// Values, and the conversion of numbers and texts.
#include "tests/session.h"

#include <cmath>

using namespace tessaly;

TEST(value, textsAreNumbersAsAWholeOrByTheirLeadingDigits) {
    const std::pair<std::string, double> whole[] = {
        {"1", 1},     {" -2.5 ", -2.5}, {"+.5", 0.5},  {"4.", 4},
        {"1e3", 1e3}, {"1E-2", 0.01},   {"1e+2", 100}, {"1e-999", 0},
        {"9", 9},     {"0", 0},         {"\t7", 7},    {"0." + std::string(400, '0') + "1", 0}};
    for (const auto& [text, number] : whole) {
        EXPECT_EQ(strictnumber(text), number) << '"' << text << '"';
        EXPECT_EQ(Val(text), number) << '"' << text << '"';
    }
    const std::pair<const char*, double> leading[] = {
        {"", 0},    {" ", 0},      {".", 0},      {"-", 0},     {"1e", 1},  {"e1", 0},  {"1 2", 1},
        {"1,5", 1}, {"0x10", 0},   {"inf", 0},    {"nan", 0},   {"3x", 3},  {"--1", 0}, {"-4-", -4},
        {"1e+", 1}, {"1e2y", 100}, {".5.5", 0.5}, {"  7 8", 7}, {"abc", 0}, {"+", 0},   {"- 5", 0}};
    for (const auto& [text, number] : leading) {
        EXPECT_EQ(strictnumber(text), std::nullopt) << '"' << text << '"';
        EXPECT_EQ(Val(text), number) << '"' << text << '"';
    }
    EXPECT_EQ(failureof([] { strictnumber("-1e999"); })->kind, failurekind::overflow);
    for (const char* text : {"1e999", "-1e999"}) EXPECT_TRUE(std::isfinite(Val(text))) << text;
}

// A number is written with 15 digits; a box truncates the text. Halves are rounded to even whole numbers.
TEST(value, numbersBecomeTextsAndWholes) {
    const std::pair<double, const char*> texts[] = {
        {0.1 + 0.2, "0.3"}, {-0.0, "0"},      {1.0 / 3, "0.333333333333333"},    {-1234.5678, "-1234.5678"},
        {1850, "1850"},     {0.056, "0.056"}, {99999999999999, "99999999999999"}};
    for (const auto& [number, text] : texts) EXPECT_EQ(generaltext(number), text);
    EXPECT_EQ(boxtext(-1234.5678, 5), "-1234");
    EXPECT_EQ(boxtext(value(), 5), "");
    EXPECT_EQ(boxtext(-3.087e-05), "-0.00003087");  // not -3.08, its first five characters
    EXPECT_EQ(boxtext(3.087e-05, 5), "0.000");
    EXPECT_EQ(shortesttext(0.1 + 0.2), "0.30000000000000004");
    const double halves[][2] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {2.500001, 3}};
    for (const auto& [number, whole] : halves) EXPECT_EQ(nearestwhole(number), whole);
}

// A text is converted to a number when it is first used. The report of a failure names its origin, and is readable for
// any text.
TEST(value, textMeetsArithmetic) {
    EXPECT_EQ(joined(value() + 1, value("12") * 2, value("12").isnumber()), "1 24 0");
    EXPECT_EQ(joined(value("a").is("a"), value().is(""), value(0).is("0"), value("a").is("A")), "1 1 0 0");
    const std::tuple<std::string, const char*, std::string> mistakes[] = {
        {"ten", "datah\\x.txt, line 3, field 2",
         "datah\\x.txt, line 3, field 2: \"ten\" is not a number: a number such as 12.5 belongs here (type mismatch)"},
        {"12,5", "box", "box: 12,5 is not a number: type 12.5 (with a point) (type mismatch)"},
        {"", "box", "box: this is empty: a number such as 12.5 belongs here (type mismatch)"},
        {"1e400", "box", "box: the number 1e400 is too large: correct the number (overflow)"},
        {std::string("a\r\n\x1B[31m\0b\xE2\x80\xAE"
                     "c\xD8\x9C\xC3\xA9",
                     18),
         "", "\"a???[31m?b?c?\xC3\xA9\" is not a number: a number such as 12.5 belongs here (type mismatch)"},
        {std::string(1000000, 'x'), "",
         "\"" + std::string(60, 'x') +
             "... (1000000 characters)\" is not a number: a number such as 12.5 belongs here (type mismatch)"}};
    for (const auto& [text, origin, report] : mistakes)
        EXPECT_EQ(failureof([text = text, origin = origin] { return value(text, origin) + 1; })->what(), report);
    const std::string name = repeated(100, "\xC3\xA9");  // a character of two bytes is not cut
    EXPECT_EQ(excerpt(name), name.substr(0, 120) + "... (100 characters)");
    EXPECT_EQ(shortpath("designs\\" + name + ".txt"),
              "designs\\" + name.substr(0, 44) + "..." + name.substr(0, 52) + ".txt");
}

// The report of a bad index names the table and the value, even if it is not a whole number.
TEST(value, badIndexesAreReported) {
    expectfailure(failureof([] { basex.set(10001, 1); }), failurekind::subscript,
                  "basex has no index 10001, an index 0..10000 was expected");
    expectfailure(failureof([] { return lineend1[value(-2.75)]; }), failurekind::subscript, "-2.75, an index 0..20000");
    expectfailure(failureof([] { return palred[value(5e12)]; }), failurekind::subscript, "5000000000000, an index");
}
