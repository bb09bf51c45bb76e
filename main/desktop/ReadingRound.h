// SPDX-License-Identifier: MIT

#pragma once

#include "faces/ReadingFeed.h"

#include <memory>
#include <vector>

namespace ambrelle {

/// The readings of one moment: widgets that show the same share one reading, so that many widgets cost little more than
/// one. Made for a round through the widgets, and gone after it.
class ReadingRound {
public:
    explicit ReadingRound(const ReadingFeed& feed)
        : m_feed(feed)
    {
    }

    std::shared_ptr<const Reading> readingFor(const WidgetConfig& config, bool seconds);

private:
    struct Entry {
        WidgetConfig config;
        bool seconds;
        std::shared_ptr<const Reading> reading;
    };

    const ReadingFeed& m_feed;
    std::vector<Entry> m_entries;
};

} // namespace ambrelle
