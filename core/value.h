// Values: what a scalar or a table element holds. A value is empty, a number or a text, in 16 bytes; texts live
// in one pool, each with the place it came from, so that a report can name file, line and field of a bad figure.
// Numbers and text meet in this file only, and no locale has a say in it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace tessaly {

class value {
  public:
    value() = default;  // empty: 0 in arithmetic, "" as text

    template <class number>
    requires std::is_arithmetic_v<number> value(number n) : figure(static_cast<double>(n)), form(isfigure) {}

    // A text stays text until arithmetic meets it. origin: where it was read, for reports.
    value(std::string_view text, std::string_view origin = {});
    value(const char* text) : value(std::string_view(text)) {}
    value(const std::string& text) : value(std::string_view(text)) {}

    bool empty() const { return form == isempty; }
    bool isnumber() const { return form == isfigure; }
    bool istext() const { return form > isfigure; }
    // True for a text of exactly these characters; an empty value is the empty text, a number is never a text.
    bool is(std::string_view text) const;

    // The number: 0 for empty, a text converted strictly; fails with type mismatch where it is no number.
    operator double() const { return form <= isfigure ? figure : converted(); }

    // The text: "" for empty, a number's general text.
    std::string text() const;

  private:
    static constexpr std::uint32_t isempty = 0, isfigure = 1;
    double converted() const;

    double figure = 0;
    std::uint32_t form = isempty;  // above isfigure: place of the text in the pool
};
static_assert(sizeof(value) <= 16);

// Blanks may stand around a number and before a field.
inline bool isblank(char c) { return c == ' ' || c == '\t'; }

// Returns the number if text is nothing but one: blanks around it, sign, digits with one point, exponent. Returns
// nothing for any other text. Fails with overflow if the number is too large for double precision.
std::optional<double> strictnumber(std::string_view text);

// Returns the number at the start of text (blanks before, sign, digits with one point, exponent), 0 if there is none. A
// number too large for double precision becomes the largest one. Never fails.
double Val(std::string_view text);

// A number's general text: at most 15 significant digits, no leading blank, no separators.
std::string generaltext(double number);

// A number's shortest text that reads back as the same number.
std::string shortesttext(double number);

// Returns a number as reports show it: all its digits, as a file would hold them; with an exponent from 1e20 up, and
// where the digits would be more than 40.
std::string plaintext(double number);

// A number's general text, but without an exponent if it is near zero: "-0.00003087".
std::string plaindigits(double number);

// The plain digits of v's number cut to the first n characters, as the boxes show numbers; it cuts, it never rounds. A
// number that is still the text that was typed or read ("1234.") shows as its number does ("1234"); fails with type
// mismatch where it is none. Without n: the whole text.
std::string boxtext(const value& v, std::size_t n = std::string::npos);

// The nearest whole number, halves to the even one.
double nearestwhole(double number);

}  // namespace tessaly
