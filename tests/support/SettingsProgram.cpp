// SPDX-License-Identifier: MIT
// `store FILE SEED`: stores settings as a restless user does, three of few values in every burst, and rests in between.
// `read FILE...`: tells in a line for each file what a program that starts finds there.

#include "foundation/SettingsFile.h"

#include <QJsonDocument>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string_view>
#include <thread>

using namespace ambrelle;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int bursts = 8;
constexpr int changes = 6; // of a burst
constexpr auto rest = 1500ms; // longer than it may take until the last change is on the disk
constexpr auto between = 300ms; // the most between two changes

void store(const QString& path, unsigned seed)
{
    std::mt19937 dice(seed);
    const auto number = [&dice](auto least, auto most) { return std::uniform_int_distribution(least, most)(dice); };
    SettingsFile file(path);
    for (int burst = 0; burst < bursts; ++burst) {
        for (int change = 0; change < changes; ++change) {
            // Values that come back and change their length; a version spans several pages of the disk.
            const int value = number(1, 3);
            file.store({{u"number"_s, value}, {u"ballast"_s, QString(value * 3000, u'x')}});
            std::this_thread::sleep_for(std::chrono::milliseconds(number(0, static_cast<int>(between.count()))));
        }
        std::this_thread::sleep_for(rest);
    }
}

} // namespace

int main(int count, char** arguments)
{
    if (count == 4 && arguments[1] == std::string_view("store")) {
        store(QString::fromLocal8Bit(arguments[2]), static_cast<unsigned>(std::atoi(arguments[3])));
        return 0;
    }
    for (int i = 2; i < count; ++i) {
        const SettingsFile file(QString::fromLocal8Bit(arguments[i]));
        std::puts(QJsonDocument(file.loaded()).toJson(QJsonDocument::Compact).constData());
    }
    return 0;
}
