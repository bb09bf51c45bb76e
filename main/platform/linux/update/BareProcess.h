// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>
#include <stop_token>

namespace ambrelle {

/// A program to be run to its end with an empty environment. It ends with this process, however that ends.
struct BareProcess {
    QString program;
    QStringList arguments;
    int input = -1; ///< open file that it reads from the beginning; nothing when there is none
    std::chrono::milliseconds patience{0};

    struct Result {
        int status = 0;
        QByteArray output; ///< its beginning
    };

    /// Blocks. None: it could not be started, crashed, took longer than `patience`, or was not waited for any more.
    std::optional<Result> run(const std::stop_token& stop) const;
};

} // namespace ambrelle
