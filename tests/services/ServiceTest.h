// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"

#include <QLocale>

#include <gmock/gmock.h>

namespace ambrelle {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

inline const QLocale british(QLocale::English, QLocale::UnitedKingdom);
inline const QLocale american(QLocale::English, QLocale::UnitedStates);

/// Counts what keeps a machine awake.
class WatchedClock : public ManualClock {
public:
    using ManualClock::ManualClock;

    Ticket every(std::chrono::milliseconds period, Work work) override
    {
        ++running;
        auto inner = std::make_shared<Ticket>(ManualClock::every(period, std::move(work)));
        return Ticket([this, inner] {
            --running;
            inner->reset();
        });
    }
    Ticket after(std::chrono::milliseconds delay, Work work) override
    {
        return ManualClock::after(delay, [this, work = std::move(work)] {
            ++wakes;
            work();
        });
    }

    int running = 0; ///< work that repeats
    int wakes = 0; ///< work done once
};

/// What services are made of, moved by hand: time, and settings in memory. Counts how often one tells of a change.
struct ServiceTest : testing::Test {
    explicit ServiceTest(const QDateTime& start = ManualClock().now())
        : clock(start)
    {
    }
    template <typename Service> void count(const Service& service)
    {
        QObject::connect(&service, &Service::changed, [this] { ++changes; });
    }

    WatchedClock clock;
    UserDefaults defaults = UserDefaults::temporary();
    AppSettings settings{defaults};
    int changes = 0;
};

/// The titles of the rows of a list.
template <typename Row> QStringList titles(const QList<Row>& rows)
{
    QStringList all;
    for (const Row& row : rows)
        all.append(row.title);
    return all;
}

} // namespace ambrelle
