// Records by their recordcolumns.

#include "building/records.h"

#include "core/fields.h"

namespace tessaly {

std::vector<recordcolumn> designcolumns(recordcolumn number, recordcolumn code, recordcolumn trailer) {
    return {
        {&elementkind, &rdkind, true},
        number,
        {nullptr, &rdx},
        {nullptr, &rdy},
        code,
        {&rotx, &rdrotx},
        {&rotz, &rdrotz},
        {&placex, &rdplacex},
        {&placey, &rdplacey},
        {&facecode, &rdface},
        trailer,
    };
}

std::vector<recordcolumn> unstoredcolumns() {
    std::vector<recordcolumn> columns = designcolumns({}, {}, {});
    for (recordcolumn& c : columns) c = {nullptr, nullptr, c.text};
    return columns;
}

std::string recordline(const std::vector<value>& fields) {
    std::string line;
    for (const value& field : fields) {
        if (&field != &fields.front()) line += ',';
        line += field.istext() ? '"' + field.text() + '"' : field.text();
    }
    return line + "\r\n";
}

std::string keptline(const value& first, recordcolumns kept, const value& r, const value& last) {
    std::vector<value> fields{first};
    for (const recordcolumn& c : kept) fields.push_back((*c.kept)[r]);
    fields.push_back(last);
    return recordline(fields);
}

std::vector<value> readrecord(textinput& in, recordcolumns form) {
    std::vector<value> fields;
    for (const recordcolumn& c : form) {
        const bool online = fields.empty() || in.next.field > 1;
        const char* const what = online ? "a field of a design record" : "is there an empty line above?";
        fields.push_back(c.text ? value(readrecordtext(in, what)) : readrecordfield(in, what));
        if (c.scalar) *c.scalar = fields.back();
    }
    return fields;
}

void keeprecord(int i, recordcolumns form, const std::vector<value>& fields) {
    for (std::size_t k = 0; k < form.size(); ++k)
        if (form[k].kept) form[k].kept->set(i, fields[k]);
}

std::string designpath(const value& name) { return "designs\\" + name.text(); }

}  // namespace tessaly
