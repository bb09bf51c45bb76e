// SPDX-License-Identifier: MIT

#pragma once

#include "faces/ReadingFeed.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "platform/Machine.h"
#include "services/LiveServices.h"
#include "services/SystemMonitor.h"

#include <functional>
#include <memory>

namespace ambrelle {

/// Services of its own with the sample data in them, on a machine that tells nothing but the samples' moment. Pictures
/// are made from these and leave the live ones alone. Main thread only; readings may go to any.
class SampleWorld {
public:
    using MakeMachine = std::function<std::unique_ptr<Machine>(std::unique_ptr<Clock> clock)>;

    /// `photo` stands for the photos and for the artwork of the track.
    SampleWorld(const MakeMachine& makeMachine, const QImage& photo);
    ~SampleWorld();
    SampleWorld(const SampleWorld&) = delete;
    SampleWorld& operator=(const SampleWorld&) = delete;

    const ReadingFeed& feed() const { return m_feed; }
    /// What a widget of the user's shows there: its own city, day or words, and samples of everything else.
    Reading readingFor(const WidgetConfig& config, bool seconds) const;

private:
    std::unique_ptr<Machine> m_machine;
    const Machine::Ports m_ports;
    UserDefaults m_defaults; // the pictures are not the user's
    AppSettings m_settings;
    SystemMonitor m_monitor;
    LiveServices m_services;
    ReadingFeed m_feed;
};

} // namespace ambrelle
