// Values, and all conversions between numbers and texts.

#include "core/value.h"

#include "core/failure.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <deque>
#include <limits>
#include <locale>
#include <sstream>
#include <unordered_map>

namespace tessaly {

namespace {

struct pooledtext {
    std::string text, origin;
};

std::deque<pooledtext>& pool() {
    static std::deque<pooledtext> texts(2);  // the first two indexes mean empty and number
    return texts;
}

std::uint32_t poolindex(std::string_view text, std::string_view origin) {
    static std::unordered_map<std::string, std::uint32_t> indexes;
    const auto next = static_cast<std::uint32_t>(pool().size());
    const auto [entry, isnew] = indexes.emplace(std::string(text) + '\0' + std::string(origin), next);
    if (isnew) pool().push_back({std::string(text), std::string(origin)});
    return entry->second;
}

bool isdigit(char c) { return c >= '0' && c <= '9'; }

// Returns the length of the number at the start of a text (sign, digits with one point, exponent), 0 if there is none.
std::size_t numberlength(std::string_view text) {
    std::size_t end = 0, digits = 0;
    if (end < text.size() && (text[end] == '+' || text[end] == '-')) ++end;
    for (; end < text.size() && isdigit(text[end]); ++end) ++digits;
    if (end < text.size() && text[end] == '.')
        for (++end; end < text.size() && isdigit(text[end]); ++end) ++digits;
    if (digits == 0) return 0;
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        std::size_t exponent = end + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
        for (; exponent < text.size() && isdigit(text[exponent]); ++exponent) end = exponent + 1;
    }
    return end;
}

// Converts a text that is a number and nothing else. Returns infinity with its sign if the number is too large for a
// double.
double parsed(std::string_view text) {
    double number = 0;
#ifdef __cpp_lib_to_chars  // faster, but does not say whether a number is too large or too small
    const std::string_view unsignedtext = text.substr(text.front() == '+' ? 1 : 0);
    const char* const end = unsignedtext.data() + unsignedtext.size();
    if (std::from_chars(unsignedtext.data(), end, number).ec == std::errc()) return number;
#endif
    std::istringstream stream{std::string(text)};
    stream.imbue(std::locale::classic());
    stream >> number;
    const bool toolarge = stream.fail() && std::abs(number) > 1;
    return toolarge ? std::copysign(std::numeric_limits<double>::infinity(), number) : number;
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
    const auto& [text, origin] = pool()[kind];
    std::string pointed = text;
    std::replace(pointed.begin(), pointed.end(), ',', '.');
    try {
        if (const auto strict = strictnumber(text)) return *strict;
        if (strictnumber(pointed))
            throw failure(failurekind::typemismatch, text + " is not a number", {},
                          "type " + pointed + " (with a point)");
        throw failure(failurekind::typemismatch,
                      text.empty() ? "this is empty" : '"' + excerpt(text) + "\" is not a number");
    } catch (failure& f) {
        f.addlocation(origin);
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
    if (std::abs(number) < 1e15 && number == std::trunc(number))
        return std::string(digits,
                           std::to_chars(digits, digits + sizeof digits, static_cast<std::int64_t>(number)).ptr);
    std::string text(digits, std::to_chars(digits, digits + sizeof digits, number, std::chars_format::general, 15).ptr);
    std::replace(text.begin(), text.end(), 'e', 'E');
    return text;
}

std::string shortesttext(double number) {
    char digits[40];
    return std::string(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

std::string plaintext(double number) {
    char digits[40];
    constexpr double limit = 1e20;  // a larger number is easier to read with an exponent
    const auto fixed = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed);
    const bool fits = fixed.ec == std::errc() && std::abs(number) < limit;
    return fits ? std::string(digits, fixed.ptr) : shortesttext(number);
}

std::string plaindigits(double number) {
    std::string text = generaltext(number);
    const std::size_t exponent = text.find("E-");
    if (exponent == std::string::npos) return text;
    std::string digits = text.substr(0, exponent);
    const bool negative = digits.front() == '-';
    std::erase_if(digits, [](char c) { return c == '.' || c == '-'; });
    const auto zeros = static_cast<std::size_t>(std::stoi(text.substr(exponent + 2)) - 1);
    return (negative ? "-0." : "0.") + std::string(zeros, '0') + digits;
}

std::string boxtext(const value& v, std::size_t n) { return (v.empty() ? "" : plaindigits(v)).substr(0, n); }

double nearestwhole(double number) { return std::nearbyint(number); }

}  // namespace tessaly
