// Reads, stores and formats records, column by column.

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

std::string recordline(const std::vector<value>& fields) {
    std::string line;
    for (const value& field : fields) {
        if (&field != &fields.front()) line += ',';
        line += field.istext() ? '"' + field.text() + '"' : field.text();
    }
    return line + "\r\n";
}

std::string formatrecord(const value& first, recordcolumns columns, const value& r, const value& last) {
    std::vector<value> fields{first};
    for (const recordcolumn& c : columns) fields.push_back((*c.stored)[r]);
    fields.push_back(last);
    return recordline(fields);
}

std::vector<value> readrecord(textinput& in, recordcolumns columns) {
    std::vector<value> fields;
    for (const recordcolumn& c : columns) {
        const bool sameline = fields.empty() || in.nextlocation.field > 1;
        const char* const what = sameline ? "a field of a design record" : "is there an empty line above?";
        fields.push_back(c.text ? value(readrecordtext(in, what)) : readrecordfield(in, what));
        if (c.scalar) *c.scalar = fields.back();
    }
    return fields;
}

void storerecord(int i, recordcolumns columns, const std::vector<value>& fields) {
    for (std::size_t k = 0; k < columns.size(); ++k)
        if (columns[k].stored) columns[k].stored->set(i, fields[k]);
}

}  // namespace tessaly
