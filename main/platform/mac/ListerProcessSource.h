// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <QStringList>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// Lists processes with the system's ps, for hosts whose processes cannot be read in any cheaper way. Its shares are
/// those since each process started.
class ListerProcessSource final : public ProcessSource {
public:
    /// `program` writes lines of "pid pcpu pmem name", the busiest process first.
    explicit ListerProcessSource(const QString& program = u"ps"_s,
        const QStringList& arguments = {u"-A"_s, u"-o"_s, u"pid=,pcpu=,pmem=,comm="_s, u"--sort=-pcpu"_s});
    ~ListerProcessSource() override;

    bool isAvailable() const override { return !m_path.isEmpty(); }
    QString whyNot() const override;
    void top(int count, Completion completion) override;

private:
    QString m_program;
    QString m_path; // empty: not installed
    QStringList m_arguments;
};

} // namespace ambrelle
