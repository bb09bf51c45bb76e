// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <QByteArray>
#include <QHash>

#include <ctime>
#include <vector>

namespace ambrelle {

/// The processes in /proc, with the share of a processor each used since the table was read before. At first, and for
/// processes that are new, it is the share since they started. The time a process used comes from its processor clock:
/// one system call, where its file in /proc takes three and twenty times as long; files are read for new processes and
/// for the rows given out. A name that the kernel cut is completed from the command line, once. Answers before top()
/// returns: reading a hundred processes takes about a third of a millisecond, too little to be worth a thread.
class LinuxProcessSource final : public ProcessSource {
public:
    explicit LinuxProcessSource(const QByteArray& procFolder = "/proc");
    ~LinuxProcessSource() override;
    LinuxProcessSource(const LinuxProcessSource&) = delete;
    LinuxProcessSource& operator=(const LinuxProcessSource&) = delete;

    bool isAvailable() const override { return m_folder >= 0; }
    QString whyNot() const override;
    void top(int count, Completion completion) override;

private:
    struct Process {
        qint64 id = 0;
        clockid_t clock = 0; // of the time it has spent on processors
        double seconds = 0; // on that clock
        double cpu = 0; // per cent of one processor

        bool operator<(const Process& other) const { return id < other.id; }
    };
    struct Details {
        QByteArray name; // perhaps cut
        bool isCut = false;
        quint64 start = 0; // ticks after boot
        double memory = 0; // per cent
        double age = 0; // seconds
    };
    struct WholeName {
        QByteArray cut;
        quint64 start = 0;
        QByteArray whole;
    };

    QList<ProcessRow> busiest(int count);
    void readProcesses(double elapsed);
    void readProcess(qint64 id, double elapsed);
    QByteArray fileOf(qint64 id, const char* name) const; ///< its beginning; empty on failure
    std::optional<Details> detailsOf(qint64 id) const;
    QString nameOf(qint64 id, const Details& details);

    int m_folder = -1;
    double m_ticksPerSecond = 0;
    double m_pagesInMemory = 0;
    double m_moment = 0; // of the reading in m_current
    std::vector<Process> m_current; // by number
    std::vector<Process> m_previous;
    QHash<qint64, WholeName> m_wholeNames; // of the rows given out last
};

} // namespace ambrelle
