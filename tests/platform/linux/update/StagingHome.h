// SPDX-License-Identifier: MIT

#pragma once

#include "PlainProgram.h"
#include "platform/linux/update/FolderStaging.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace ambrelle::test {

/// A program in a folder of its own, and newer ones beside it.
struct StagingHome : testing::Test {
    using Purpose = ProgramFolder::Purpose;
    using Opened = StagedProgram::Opened;

    const StagedProgram::Seal seal{.signature = "lines\nof it", .keys = {u"K1"_s, u"K2"_s}, .comment = u"a comment"_s};
    PlainProgram program;
    LinuxProgramFolder folder{ProgramRoot::of(program.path()).value(), u"0.9"_s};

    std::unique_ptr<StagedProgram> staged(const QByteArray& archive, Purpose purpose = Purpose::update)
    {
        auto staged = folder.stage(purpose);
        EXPECT_TRUE(staged);
        const int descriptor = staged ? staged->archive() : -1;
        // The position stays at the end: whoever reads it has to begin at the start.
        EXPECT_EQ(::write(descriptor, archive.constData(), static_cast<size_t>(archive.size())), archive.size());
        return staged;
    }
    Opened opened(const QByteArray& archive) { return staged(archive)->open(seal, {}); }
};

} // namespace ambrelle::test
