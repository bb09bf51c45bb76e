// SPDX-License-Identifier: MIT

#pragma once

#include "platform/ProgramFolder.h"

#include <mutex>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// A folder where everything goes well unless the test says otherwise, and which notes what is done in it.
class RecordingProgramFolder final : public ProgramFolder {
public:
    /// How each step goes.
    struct Course {
        bool stages = true;
        int archive = 7; ///< the descriptor
        StagedProgram::Opened opened = StagedProgram::Opened::done;
        std::optional<StagedProgram::Identity> identity;
        bool starts = true;
        bool exchanges = true;
    };

    QString parent() const override { return parentPath; }
    bool isWritable() const override { return writable; }
    void awaitSettled(const std::stop_token&) const override { }
    std::unique_ptr<StagedProgram> stage(Purpose purpose) override;
    QString rejectedVersion() const override { return rejected; }

    void note(const QString& step)
    {
        const std::lock_guard lock(m_mutex);
        m_steps.append(step);
    }
    QStringList
    takeSteps() ///< since the last time: "stage", "open …", "starts 2.0", "keep", "exchange 1.0 2.0", "gone"
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_steps, {});
    }

    QString parentPath = u"/opt"_s;
    bool writable = true;
    QString rejected;
    Course course;

private:
    std::mutex m_mutex;
    QStringList m_steps;
};

/// What that folder stages.
class RecordingStagedProgram final : public StagedProgram {
public:
    explicit RecordingStagedProgram(RecordingProgramFolder& folder)
        : m_folder(folder)
    {
    }
    ~RecordingStagedProgram() override { m_folder.note(u"gone"_s); }

    int archive() override { return m_folder.course.archive; }
    Opened open(const Seal& seal, const std::stop_token&) override
    {
        m_folder.note(u"open %1 %2 %3"_s.arg(QString::fromLatin1(seal.signature), seal.keys.join(u','), seal.comment));
        return m_folder.course.opened;
    }
    std::optional<Identity> identity() const override { return m_folder.course.identity; }
    bool starts(const QString& version, const std::stop_token&) override
    {
        m_folder.note(u"starts "_s + version);
        return m_folder.course.starts;
    }
    QString folder() const override { return u"/tmp/Ambrelle-update-1"_s; }
    void keep() override { m_folder.note(u"keep"_s); }
    bool exchange(const QString& from, const QString& to) override
    {
        m_folder.note(u"exchange %1 %2"_s.arg(from, to));
        return m_folder.course.exchanges;
    }

private:
    RecordingProgramFolder& m_folder;
};

inline std::unique_ptr<StagedProgram> RecordingProgramFolder::stage(Purpose purpose)
{
    note(purpose == Purpose::update ? u"stage"_s : u"stage rehearsal"_s);
    return course.stages ? std::make_unique<RecordingStagedProgram>(*this) : nullptr;
}

} // namespace ambrelle
