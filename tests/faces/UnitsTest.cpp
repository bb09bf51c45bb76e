// SPDX-License-Identifier: MIT

#include "faces/Units.h"
#include "faces/MoonPhase.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

TEST(Units, PercentIsAWholeNumberFromZeroToHundred)
{
    const std::pair<double, int> cases[] = {{1.7, 100}, {-0.2, 0}, {0.005, 1}, {0.994, 99}, {std::nan(""), 0}};
    for (const auto& [fraction, percent] : cases)
        EXPECT_EQ(Units::percent(fraction), percent) << fraction;
}

TEST(Units, RatesAndSizesStepAtPowersOfAThousand)
{
    const std::pair<double, const char*> rates[] = {
        {0, "0.00 KB/s"}, {999999, "1000.00 KB/s"}, {1000000, "1.00 MB/s"}, {2.5e9, "2500.00 MB/s"}};
    for (const auto& [rate, text] : rates)
        EXPECT_EQ(Units::rate(rate).joined().toStdString(), text);
    const std::pair<double, const char*> sizes[] = {
        {0, "0 KB"}, {999999, "1000 KB"}, {1e6, "1.00 MB"}, {999999999, "1000.00 MB"}, {1e9, "1.00 GB"}};
    for (const auto& [size, text] : sizes)
        EXPECT_EQ(Units::size(size).joined().toStdString(), text);
    EXPECT_EQ(Units::gib(1.5 * Units::gibibyte, 1), u"1.5"_s);
    EXPECT_EQ(Units::gb(1.5e9, 1), u"1.5"_s);
}

TEST(Units, TimesFollowTheLocale)
{
    const QLocale german(QLocale::German);
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    const QDateTime noon(QDate(2026, 1, 1), QTime(12, 5));
    const QDateTime night(QDate(2026, 1, 1), QTime(21, 40));
    EXPECT_EQ(Units::time(noon, german), u"12:05"_s);
    EXPECT_EQ(Units::time(noon, american), u"0:05"_s);
    EXPECT_EQ(Units::time(night, german), u"21:40"_s);
    EXPECT_EQ(Units::time(night, american), u"9:40"_s);
    EXPECT_EQ(Units::clock(3600), u"60:00"_s);
    EXPECT_EQ(Units::clock(59.9), u"0:59"_s);
    EXPECT_EQ(Units::clock(-3), u"0:00"_s);
}

TEST(MoonPhase, FollowsTheMeanLunationFromTheReferenceNewMoon)
{
    const QDateTime reference = QDateTime::fromSecsSinceEpoch(947182440, Qt::UTC);
    EXPECT_DOUBLE_EQ(MoonPhase::fraction(reference), 0);
    EXPECT_DOUBLE_EQ(MoonPhase::illumination(reference), 0);
    EXPECT_EQ(MoonPhase::name(reference), u"New Moon"_s);
    EXPECT_GT(MoonPhase::age(reference.addSecs(-1)), 29.5);
    const QDateTime full = reference.addMSecs(static_cast<qint64>(MoonPhase::synodicMonth / 2 * 86400e3));
    EXPECT_NEAR(MoonPhase::illumination(full), 1, 1e-9);
    EXPECT_EQ(MoonPhase::name(full), u"Full Moon"_s);
    EXPECT_EQ(MoonPhase::next(full.addDays(-2)).name, u"Full Moon"_s);
    EXPECT_NEAR(MoonPhase::next(full.addDays(-2)).days, 2, 0.001);
    // Dates of full moons from an almanac (UTC): a mean lunation is off by up to about 14 hours.
    for (const QDate& date : {QDate(2024, 8, 19), QDate(2025, 3, 14), QDate(2026, 1, 3)}) {
        const double fraction = MoonPhase::fraction(QDateTime(date, QTime(12, 0), Qt::UTC));
        EXPECT_NEAR(fraction, 0.5, 1.2 / MoonPhase::synodicMonth) << qPrintable(date.toString(Qt::ISODate));
    }
}

} // namespace ambrelle
