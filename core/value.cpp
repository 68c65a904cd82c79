// Values and the one place where numbers and text meet.

#include "core/value.h"

#include "core/failure.h"
#include "core/windows1252.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <deque>
#include <limits>
#include <unordered_map>

#ifndef __cpp_lib_to_chars
#include <locale.h>
#include <stdlib.h>
#endif

namespace tessaly {

namespace {

struct pooled {
    std::string text;
    std::string origin;
};

std::deque<pooled>& pool() {
    static std::deque<pooled> texts(2);  // the first two indexes mean empty and number
    return texts;
}

std::uint32_t poolindex(std::string_view text, std::string_view origin) {
    static std::unordered_map<std::string, std::uint32_t> indexes;
    std::string key(text);
    key += '\0';
    key += origin;
    const auto next = static_cast<std::uint32_t>(pool().size());
    const auto [found, fresh] = indexes.emplace(std::move(key), next);
    if (fresh) pool().push_back({std::string(text), std::string(origin)});
    return found->second;
}

bool isdigit(char c) { return c >= '0' && c <= '9'; }

// The length of the number at the front of text (sign, digits, point, digits, exponent), 0 when there are no digits.
std::size_t numberlength(std::string_view text) {
    std::size_t at = 0;
    std::size_t digits = 0;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    for (; at < text.size() && isdigit(text[at]); ++at) ++digits;
    if (at < text.size() && text[at] == '.')
        for (++at; at < text.size() && isdigit(text[at]); ++at) ++digits;
    if (digits == 0) return 0;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        std::size_t power = at + 1;
        if (power < text.size() && (text[power] == '+' || text[power] == '-')) ++power;
        if (power < text.size() && isdigit(text[power])) {
            while (power < text.size() && isdigit(text[power])) ++power;
            at = power;
        }
    }
    return at;
}

// Whether a number beyond double precision is so by being too small: the place of its first digit that is not 0, and
// its exponent, tell.
bool vanishes(std::string_view number) {
    const std::size_t power = std::min(number.find_first_of("eE"), number.size());
    const std::size_t point = std::min(number.find('.'), power);
    double exponent = 0;  // of up to a file's length of digits
    for (const char c : number.substr(power))
        if (isdigit(c)) exponent = exponent * 10 + (c - '0');
    if (number.find('-', power) != std::string_view::npos) exponent = -exponent;
    return static_cast<double>(point) - static_cast<double>(number.find_first_of("123456789")) + exponent < 0;
}

// Reads the number that text consists of. Returns false if it is too large or too small for a double.
bool readdouble(std::string_view text, double& number) {
#ifdef __cpp_lib_to_chars
    if (text.front() == '+') text.remove_prefix(1);
    return std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc();
#else  // slower, and rounds to the same double
    static const locale_t decimalpoint = ::newlocale(LC_ALL_MASK, "C", nullptr);
    errno = 0;
    number = ::strtod_l(std::string(text).c_str(), nullptr, decimalpoint);
    return errno != ERANGE || (number != 0 && std::isfinite(number));
#endif
}

// text holds a number and nothing else. Beyond double precision: infinity with its sign, or 0.
double parsed(std::string_view text) {
    double number = 0;
    if (readdouble(text, number)) return number;
    if (vanishes(text)) return 0;
    const double huge = std::numeric_limits<double>::infinity();
    return text.front() == '-' ? -huge : huge;
}

}  // namespace

value::value(std::string_view text, std::string_view origin) : kind(poolindex(text, origin)) {}

bool value::is(std::string_view text) const {
    if (istext()) return pool()[kind].text == text;
    return empty() && text.empty();
}

std::string value::text() const {
    if (istext()) return pool()[kind].text;
    return empty() ? std::string() : generaltext(number);
}

double value::converted() const {
    const pooled& held = pool()[kind];
    std::string pointed = held.text;
    std::replace(pointed.begin(), pointed.end(), ',', '.');
    try {
        if (const auto strict = strictnumber(held.text)) return *strict;
        if (strictnumber(pointed))
            throw failure(failurekind::typemismatch, held.text + " is not a number", {},
                          "type " + pointed + " (with a point)");
        throw failure(failurekind::typemismatch,
                      held.text.empty() ? "this is empty" : '"' + excerpt(held.text) + "\" is not a number");
    } catch (failure& f) {
        f.addlocation(held.origin);
        throw;
    }
}

std::optional<double> strictnumber(std::string_view text) {
    while (!text.empty() && isblank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isblank(text.back())) text.remove_suffix(1);
    if (text.empty() || numberlength(text) != text.size()) return std::nullopt;
    const double number = parsed(text);
    if (std::isinf(number)) throw failure(failurekind::overflow, "the number " + excerpt(text) + " is too large");
    return number;
}

double Val(std::string_view text) {
    while (!text.empty() && isblank(text.front())) text.remove_prefix(1);
    const std::size_t length = numberlength(text);
    if (length == 0) return 0;
    const double number = parsed(text.substr(0, length));
    if (std::isinf(number)) return std::copysign(std::numeric_limits<double>::max(), number);
    return number;
}

std::string generaltext(double number) {
    if (number == 0) return "0";  // also -0
    char digits[40];
    constexpr double fifteendigits = 1e15;
    if (std::abs(number) < fifteendigits && number == std::trunc(number)) {
        const auto whole = static_cast<std::int64_t>(number);
        return std::string(digits, std::to_chars(digits, digits + sizeof digits, whole).ptr);
    }
    const auto end = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::general, 15).ptr;
    std::string text(digits, end);
    for (char& c : text)
        if (c == 'e') c = 'E';
    return text;
}

std::string shortesttext(double number) {
    char digits[40];
    return std::string(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

std::string plaintext(double number) {
    char digits[40];
    constexpr double twentydigits = 1e20;  // the exponent of a larger one reads better
    if (!(std::abs(number) < twentydigits)) return shortesttext(number);
    const auto written = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed);
    return written.ec == std::errc() ? std::string(digits, written.ptr) : shortesttext(number);
}

std::string plaindigits(double number) {
    std::string text = generaltext(number);
    const std::size_t power = text.find("E-");
    if (power == std::string::npos) return text;
    std::string digits = text.substr(0, power);
    const bool negative = digits.front() == '-';
    std::erase_if(digits, [](char c) { return c == '.' || c == '-'; });
    const auto zeros = static_cast<std::size_t>(std::stoi(text.substr(power + 2)) - 1);
    return (negative ? "-0." : "0.") + std::string(zeros, '0') + digits;
}

std::string boxtext(const value& v, std::size_t n) { return (v.empty() ? "" : plaindigits(v)).substr(0, n); }

double nearestwhole(double number) { return std::nearbyint(number); }

}  // namespace tessaly
