// SPDX-License-Identifier: MIT

#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace ambrelle {

/// A word with its meaning, or a saying with whom it comes from.
struct Quote {
    QString text; ///< the saying, or the meaning of the word
    QString source; ///< the word, or the person or work
    std::optional<QString> note{}; ///< "noun · PET-ri-kor"; words only

    bool operator==(const Quote&) const = default;
};

namespace Quotes {

/// The entry of the day that lies `offset` days after `date`: the same on every machine, and each one once before any
/// comes again.
Quote entry(bool words, QDate date, int offset = 0);

} // namespace Quotes

} // namespace ambrelle
