// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "drawing/SeededRandom.h"
#include "wallpapers/Ridge.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <bit>
#include <cmath>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

constexpr std::uint64_t largest = ~std::uint64_t{0};

/// The lines of reference.py, by the program's own functions.
class Lines {
public:
    template <typename... Values> void say(const char* name, Values... values)
    {
        begin(name);
        (put(values), ...);
    }
    void say(const char* name, const Heights& heights)
    {
        begin(name);
        for (const double height : heights)
            put(height);
    }
    const QByteArrayList& all() const { return m_lines; }

private:
    void begin(const char* name) { m_lines.append(name); }
    void put(std::uint64_t bits) { m_lines.last() += ' ' + QByteArray::number(static_cast<qulonglong>(bits), 16); }
    void put(double value) { put(std::bit_cast<std::uint64_t>(value)); }

    QByteArrayList m_lines;
};

std::vector<std::uint64_t> seeds()
{
    std::vector<std::uint64_t> seeds{0, 1, 2, 5381, largest, std::uint64_t{1} << 63};
    for (std::uint64_t k = 0; k < 60; ++k)
        seeds.push_back(k * 0x2545F4914F6CDD1DU + 11);
    return seeds;
}

void sayNumbers(Lines& lines, SeededRandom& random)
{
    const auto below = [&random](std::uint64_t bound) { return random.next(bound); };
    // A list in braces is evaluated from left to right, the arguments of a function in any order.
    const std::array draws{random.next(), random.next(), random.next(), random.next()};
    std::apply([&](auto... values) { lines.say("next", values...); }, draws);
    const std::array bounded{below(1), below(2), below(3), below(10), below(256), below((std::uint64_t{1} << 32) + 1),
        below((std::uint64_t{1} << 53) + 1), below((std::uint64_t{1} << 63) + 12345), below(largest)};
    std::apply([&](auto... values) { lines.say("below", values...); }, bounded);
    const std::array reals{
        random.in(0, 1), random.in(-3.5, 7.25), random.in(0.08, 0.5), random.in(5, 5), random.in(-1e300, 1e-300)};
    std::apply([&](auto... values) { lines.say("in", values...); }, reals);
}

void sayNoise(Lines& lines, SeededRandom& random)
{
    const Perlin perlin(random.next());
    for (int place = 0; place < 6; ++place) {
        const double x = random.in(-300, 300);
        const double y = random.in(-4, 4);
        lines.say("noise", perlin.noise(x, y), perlin.noise(std::floor(x), y), perlin.noise(x * 1e12, std::floor(y)));
        for (int octaves = 0; octaves < 5; ++octaves) {
            lines.say("fbm", perlin.fbm(x, y, octaves, 2), perlin.fbm(x, y, octaves, 2.17, 0.6));
            lines.say("ridged", perlin.ridged(x, y, octaves));
        }
    }
}

void sayRidges(Lines& lines, SeededRandom& random)
{
    for (const int points : {2, 3, 5, 65}) {
        const Heights heights = ridge(points, 0.55, random);
        lines.say("ridge", heights);
        for (const int radius : {0, 3})
            lines.say("smoothed", smoothed(heights, radius));
    }
}

TEST(Reference, AgreesInEveryBit)
{
    Lines lines;
    for (const QString& word : {u""_s, u"paper"_s, u"neon"_s, u"fieldDark"_s, u"K\u014Dbe"_s})
        lines.say("seedOf", seedOf(word));
    for (const std::uint64_t seed : seeds()) {
        SeededRandom random{seed};
        sayNumbers(lines, random);
        sayNoise(lines, random);
        sayRidges(lines, random);
    }

    QProcess python;
    python.start(u"python3"_s, {u"" AMBRELLE_TESTS "/wallpapers/reference.py"_s});
    ASSERT_TRUE(python.waitForFinished(60000)) << qPrintable(python.errorString());
    ASSERT_EQ(python.exitCode(), 0) << python.readAllStandardError().constData();
    const QByteArrayList expected = python.readAllStandardOutput().trimmed().split('\n');
    ASSERT_EQ(lines.all().size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i)
        ASSERT_EQ(lines.all()[i].toStdString(), expected[i].toStdString()) << "line " << i + 1;
}

} // namespace
