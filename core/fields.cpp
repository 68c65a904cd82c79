// The field rules, in one scanner over the bytes of the open file.

#include "core/fields.h"

#include "core/failure.h"
#include "core/textfiles.h"
#include "core/world.h"

namespace tessaly {

namespace {

bool islineend(char c) { return c == '\n' || c == '\r'; }

struct scanner {
    textinput& in;
    const std::string& bytes;
    const char* what;

    scanner(textinput& from, const char* sought) : in(from), bytes(in.bytes), what(sought) {}

    bool atend() const { return in.position >= bytes.size(); }
    char next() const { return bytes[in.position]; }

    [[noreturn]] void pastend() const {
        throw failure(failurekind::inputpastend, std::string("the file ends while looking for ") + what, in.location());
    }
    void skipblanks() {
        while (!atend() && isblank(next())) ++in.position;
    }
    // Takes a line end, carriage return and line feed counting as one.
    void takelineend() {
        if (next() == '\r' && in.position + 1 < bytes.size() && bytes[in.position + 1] == '\n') ++in.position;
        ++in.position;
        ++in.nextlocation.line;
        in.nextlocation.field = 1;
    }
    // Takes the separator that closes a field, if one stands here.
    void takeseparator() {
        if (atend()) return;
        if (next() == ',') {
            ++in.position;
            ++in.nextlocation.field;
        } else if (islineend(next())) {
            takelineend();
        } else {
            ++in.nextlocation.field;
        }
    }
    // Blank lines, and the line end of a row that is broken after a comma.
    void skiplineends() {
        skipblanks();
        while (!atend() && islineend(next())) {
            takelineend();
            skipblanks();
        }
    }
    // Blanks, and the line end of a row that is broken after a comma.
    void skipbreak() {
        skipblanks();
        if (in.nextlocation.field > 1 && !atend() && islineend(next())) takelineend();
        skipblanks();
    }
    // From the opening quote to the next one, line ends included; then the separator.
    std::string_view takequoted() {
        const std::size_t from = ++in.position;
        while (!atend() && next() != '"') {
            if (next() == '\n') ++in.nextlocation.line;
            ++in.position;
        }
        const std::string_view text(bytes.data() + from, in.position - from);
        if (!atend()) ++in.position;
        skipblanks();
        takeseparator();
        return text;
    }
    std::string_view tocommaorlineend() {
        const std::size_t from = in.position;
        while (!atend() && next() != ',' && !islineend(next())) ++in.position;
        return {bytes.data() + from, in.position - from};
    }
    // The front of the field up to a blank: the whole of it, or the number that ends there.
    std::string_view toblank() const {
        std::size_t to = in.position;
        while (to < bytes.size() && bytes[to] != ',' && !islineend(bytes[to]) && !isblank(bytes[to])) ++to;
        return {bytes.data() + in.position, to - in.position};
    }
    // A whole number of up to fifteen digits that a separator follows: most fields are.
    std::optional<double> takewhole() {
        std::size_t to = in.position;
        const bool negative = to < bytes.size() && bytes[to] == '-';
        const std::size_t firstdigit = to += negative;
        std::int64_t whole = 0;
        while (to < bytes.size() && to - firstdigit < 16 && bytes[to] >= '0' && bytes[to] <= '9')
            whole = whole * 10 + (bytes[to++] - '0');
        if (to == firstdigit || to - firstdigit > 15) return std::nullopt;
        if (to < bytes.size() && bytes[to] != ',' && !islineend(bytes[to])) return std::nullopt;
        in.position = to;
        takeseparator();
        const double number = static_cast<double>(whole);
        return negative ? -number : number;
    }
    std::optional<double> takenumber() {
        if (!noshortcuts)
            if (const auto whole = takewhole()) return whole;
        const std::string_view front = toblank();
        std::optional<double> number;
        try {
            number = strictnumber(front);
        } catch (const failure& beyond) {
            throw failure(beyond.kind, beyond.detail + " (" + what + ")", in.location());
        }
        if (number) {
            in.position += front.size();
            skipblanks();
            takeseparator();
        }
        return number;
    }
    // The field that begins here, its blanks skipped.
    value takevalue() {
        if (atend()) pastend();
        const std::string origin = next() == '"' ? in.location() + " (" + what + ")" : std::string();
        if (next() == '"') return value(takequoted(), origin);
        if (const auto number = takenumber()) return value(*number);
        const std::string location = in.location() + " (" + what + ")";
        const std::string_view text = tocommaorlineend();
        takeseparator();
        return text.empty() ? value() : value(text, location);
    }
};

}  // namespace

value readvalue(textinput& in, const char* what) {
    scanner s(in, what);
    s.skiplineends();
    return s.takevalue();
}

value readrecordfield(textinput& in, const char* what) {
    scanner s(in, what);
    s.skipblanks();
    return s.takevalue();
}

int readwholenumber(textinput& in, const char* what) {
    scanner s(in, what);
    s.skiplineends();
    if (s.atend()) s.pastend();
    const fieldlocation start = in.nextlocation;
    double label = 0;
    if (s.next() == '"') {
        label = strictnumber(s.takequoted()).value_or(0);
    } else if (const auto number = s.takenumber()) {
        label = *number;
    } else {
        s.tocommaorlineend();
        s.takeseparator();
    }
    label = nearestwhole(label);
    if (label < -32768 || label > 32767)
        throw failure(failurekind::overflow,
                      plaintext(label) + " as " + s.what + ", a whole number -32768..32767 was expected",
                      in.location(start));
    return static_cast<int>(label);
}

std::string_view readtextfield(textinput& in, const char* what) {
    scanner(in, what).skipbreak();
    return readrecordtext(in, what);
}

std::string_view readrecordtext(textinput& in, const char* what) {
    scanner s(in, what);
    s.skipblanks();
    if (s.atend()) s.pastend();
    if (s.next() == '"') return s.takequoted();
    const std::string_view text = s.tocommaorlineend();
    s.takeseparator();
    return text;
}

void findkey(textinput& in, const char* key) {
    const int from = in.nextlocation.line;
    for (scanner s(in, key);;) {
        s.skipbreak();
        if (s.atend())
            throw failure(failurekind::inputpastend,
                          "the key " + std::string(key) + " is missing from line " + std::to_string(from) + " on",
                          shortpath(in.path));
        if (readrecordtext(in, key) == key) return;
    }
}

fieldlocation skiptofield(textinput& in) {
    scanner(in, "a number").skiplineends();
    return in.nextlocation;
}

}  // namespace tessaly
