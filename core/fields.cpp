// The scanner that splits the bytes of an open file into fields.

#include "core/fields.h"

#include "core/world.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace tessaly {

namespace {

bool islineend(char c) { return c == '\n' || c == '\r'; }
bool isseparator(char c) { return c == ',' || islineend(c); }

struct scanner {
    textinput& in;
    const char* role;  // as in fields.h

    bool atend() const { return in.position >= in.bytes.size(); }
    char peek() const { return in.bytes[in.position]; }  // 0 at the end of the file
    std::string location() const { return in.location() + " (" + role + ")"; }

    // Returns the bytes before the first one for which isend is true, or before the end of the file.
    template <class predicate>
    std::string_view bytesbefore(predicate isend) const {
        const char *const start = in.bytes.data() + in.position, *const fileend = in.bytes.data() + in.bytes.size();
        return {start, static_cast<std::size_t>(std::find_if(start, fileend, isend) - start)};
    }
    void skipblanks() {
        while (isblank(peek())) ++in.position;
    }
    // A carriage return and a line feed count as one line end.
    void takelineend() {
        if (peek() == '\r' && in.bytes[in.position + 1] == '\n') ++in.position;
        ++in.position;
        ++in.nextlocation.line;
        in.nextlocation.field = 1;
    }
    // Skips the separator after a field. A number that ends at a blank may have none.
    void takeseparator() {
        if (atend()) return;
        if (islineend(peek())) return takelineend();
        if (peek() == ',') ++in.position;
        ++in.nextlocation.field;
    }
    // Skips blank lines, and a line end after a comma, where a row continues on the next line.
    void skiplineends() {
        for (skipblanks(); islineend(peek()); skipblanks()) takelineend();
    }
    // Skips a line end after a comma, where a row continues on the next line.
    void skipcontinuation() {
        skipblanks();
        if (in.nextlocation.field > 1 && islineend(peek())) takelineend();
        skipblanks();
    }
    // Takes a text, in quotes or up to the comma or line end, and the separator after it. Quotes may contain line ends.
    std::string_view taketext() {
        if (atend())
            throw failure(failurekind::inputpastend, std::string("the file ends while looking for ") + role,
                          in.location());
        const bool quoted = peek() == '"';
        if (quoted) ++in.position;
        const std::string_view text = bytesbefore([quoted](char c) { return quoted ? c == '"' : isseparator(c); });
        in.position += text.size();
        if (quoted) {
            in.nextlocation.line += static_cast<int>(std::count(text.begin(), text.end(), '\n'));
            if (!atend()) ++in.position;
            skipblanks();
        }
        takeseparator();
        return text;
    }
    // Takes a whole number of up to fifteen digits if a separator follows it. Most fields are such numbers.
    std::optional<double> takewholenumber() {
        constexpr std::int64_t limit = 1'000'000'000'000'000;
        const char *const start = in.bytes.data() + in.position, *const fileend = in.bytes.data() + in.bytes.size();
        std::int64_t whole = 0;
        const auto [end, error] = std::from_chars(start, fileend, whole);
        if (error != std::errc() || whole <= -limit || whole >= limit || !isseparator(*end)) return std::nullopt;
        if (whole == 0 && *start == '-') return std::nullopt;  // -0
        in.position += static_cast<std::size_t>(end - start);
        takeseparator();
        return static_cast<double>(whole);
    }
    std::optional<double> takenumber() {
        if (!noshortcuts)
            if (const auto whole = takewholenumber()) return whole;
        const std::string_view text = bytesbefore([](char c) { return isblank(c) || isseparator(c); });
        try {
            const auto number = strictnumber(text);
            if (!number) return std::nullopt;
            in.position += text.size();
            skipblanks();
            takeseparator();
            return number;
        } catch (failure& f) {
            f.addlocation(location());
            throw;
        }
    }
    // Takes the field that starts here, after its blanks.
    value takevalue() {
        const bool quoted = peek() == '"';
        if (!quoted)
            if (const auto number = takenumber()) return *number;
        const std::string origin = location();
        const std::string_view text = taketext();
        return text.empty() && !quoted ? value() : value(text, origin);
    }
};

}  // namespace

value readvalue(textinput& in, const char* role) {
    skiptofield(in);
    return scanner{in, role}.takevalue();
}

value readrecordfield(textinput& in, const char* role) {
    scanner s{in, role};
    s.skipblanks();
    return s.takevalue();
}

int readwholenumber(textinput& in, const char* role) {
    const fieldlocation start = skiptofield(in);
    const value field = readvalue(in, role);
    const double number = nearestwhole(field.isnumber() ? double(field) : strictnumber(field.text()).value_or(0));
    if (number < -32768 || number > 32767)
        throw failure(failurekind::overflow,
                      plaintext(number) + " as " + role + ", a whole number -32768..32767 was expected",
                      in.location(start));
    return static_cast<int>(number);
}

std::string_view readtextfield(textinput& in, const char* role) {
    scanner{in, role}.skipcontinuation();
    return readrecordtext(in, role);
}

std::string_view readrecordtext(textinput& in, const char* role) {
    scanner s{in, role};
    s.skipblanks();
    return s.taketext();
}

void findkey(textinput& in, const char* key) {
    const int firstline = in.nextlocation.line;
    for (scanner s{in, key};;) {
        s.skipcontinuation();
        if (s.atend())
            throw failure(failurekind::inputpastend,
                          "there is no key " + std::string(key) + " in line " + std::to_string(firstline) + " or later",
                          shortpath(in.path));
        if (s.taketext() == key) return;
    }
}

fieldlocation skiptofield(textinput& in) {
    scanner{in, ""}.skiplineends();
    return in.nextlocation;
}

}  // namespace tessaly
