// Values of scalars and table elements. A value is empty, a number or a text, in 16 bytes. Texts are stored in a pool
// with the location from which they were read, so that a report can name file, line and field of a bad number. All
// conversions between numbers and texts are in this file. They do not depend on the locale.
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

    template <class arithmetic>
    requires std::is_arithmetic_v<arithmetic> value(arithmetic n) : number(static_cast<double>(n)), kind(isnumeric) {}

    // A text is converted when it is used as a number. origin: where it was read, for reports.
    value(std::string_view text, std::string_view origin = {});
    value(const char* text) : value(std::string_view(text)) {}
    value(const std::string& text) : value(std::string_view(text)) {}

    bool empty() const { return kind == isempty; }
    bool isnumber() const { return kind == isnumeric; }
    bool istext() const { return kind > isnumeric; }
    // Returns whether this is a text of exactly these characters. An empty value equals the empty text; a number equals
    // no text.
    bool is(std::string_view text) const;

    // Returns the number: 0 for empty; a text is converted strictly. Fails with type mismatch if it is not a number,
    // with overflow if it is too large.
    operator double() const { return kind <= isnumeric ? number : converted(); }

    // Returns the text: "" for empty, the general text of a number.
    std::string text() const;

  private:
    static constexpr std::uint32_t isempty = 0, isnumeric = 1;
    double converted() const;

    double number = 0;
    std::uint32_t kind = isempty;  // above isnumeric: index of the text in the pool
};
static_assert(sizeof(value) <= 16);

// Returns whether c may surround a number or precede a field.
inline bool isblank(char c) { return c == ' ' || c == '\t'; }

// Converts a text that is a number: sign, digits with one point, exponent, with blanks around them. Returns nothing for
// any other text. Fails with overflow if the number is too large for a double.
std::optional<double> strictnumber(std::string_view text);

// Returns the number at the start of a text (blanks, sign, digits with one point, exponent), 0 if there is none. Never
// fails: a number that is too large becomes the largest double.
double Val(std::string_view text);

// Returns the general text of a number: at most 15 significant digits, no leading blank, no separators.
std::string generaltext(double number);

// Returns the shortest text that converts back to the same number.
std::string shortesttext(double number);

// Returns a number as reports show it: all its digits without an exponent. From 1e20 up, and if there were more than 40
// characters, returns the shortest text.
std::string plaintext(double number);

// Returns the general text of a number, but without an exponent near zero: "-0.00003087".
std::string plaindigits(double number);

// Returns the plain digits of v as a box shows them: cut to the first n characters without rounding; "" for empty. A
// text ("1234.") is converted first ("1234"). Fails with type mismatch if it is not a number.
std::string boxtext(const value& v, std::size_t n = std::string::npos);

// Rounds to the nearest whole number, halves to even.
double nearestwhole(double number);

}  // namespace tessaly
