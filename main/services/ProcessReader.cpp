// SPDX-License-Identifier: MIT

#include "services/ProcessReader.h"

#include "foundation/ForeignText.h"

#include <utility>

namespace ambrelle {

ProcessReader::ProcessReader(ProcessSource& source)
    : m_source(source)
{
}

void ProcessReader::top(int count, ProcessSource::Completion completion)
{
    if (!m_source.isAvailable()) {
        completion({});
        return;
    }
    m_source.top(count, [count, completion = std::move(completion)](QList<ProcessRow> rows) {
        if (rows.size() > count)
            rows.resize(count);
        for (ProcessRow& row : rows)
            row.name = foreignText(row.name); // a process may call itself anything
        completion(std::move(rows));
    });
}

} // namespace ambrelle
