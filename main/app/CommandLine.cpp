// SPDX-License-Identifier: MIT

#include "app/CommandLine.h"

#include <array>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

using Mode = CommandLine::Mode;

struct BatchOption {
    QLatin1StringView flag;
    Mode mode;
};

// In the order in which they are looked for.
constexpr std::array batchOptions{
    BatchOption{"--render-previews"_L1, Mode::renderPreviews},
    BatchOption{"--render-wallpapers"_L1, Mode::renderWallpapers},
};

std::optional<Mode> batchMode(const QString& argument)
{
    for (const BatchOption& option : batchOptions) {
        if (argument == option.flag)
            return option.mode;
    }
    return std::nullopt;
}

/// It is followed by the session's name, which the toolkit hands to the session manager.
bool isSessionOption(const QString& argument)
{
    return argument == "-session"_L1 || argument == "--session"_L1;
}

bool isOption(const QString& argument)
{
    return argument.size() > 1 && argument.startsWith(u'-');
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    const QStringList words = arguments.mid(0, arguments.indexOf(u"--"_s));
    for (const BatchOption& option : batchOptions) {
        const qsizetype place = words.indexOf(option.flag);
        if (place >= 0 && place + 1 < words.size())
            return {.mode = option.mode, .folder = words.at(place + 1)};
    }
    if (words.contains("--help"_L1) || words.contains("-h"_L1))
        return {.mode = Mode::help};
    if (words.contains("--version"_L1))
        return {.mode = Mode::version};
    CommandLine desktop;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& word = words.at(i);
        if (isSessionOption(word)) {
            desktop.isRestored = true;
            ++i;
        } else if (!isOption(word)) {
            desktop.files.append(word);
        } else if (!batchMode(word)) {
            return {.mode = Mode::unknownOption, .option = word};
        }
    }
    desktop.files.append(arguments.mid(words.size() + 1));
    desktop.files.removeAll(QString());
    return desktop;
}

QString CommandLine::helpText()
{
    return uR"(Usage: ambrelle [OPTION] [FILE...]
Live widgets on the desktop, in thirty themes. A program that already runs takes the FILEs over.

  --render-previews FOLDER    write a picture of every theme into FOLDER and exit
  --render-wallpapers FOLDER  write the wallpaper of every theme into FOLDER and exit
  -h, --help                  show this text and exit
  --version                   show the version and exit

Environment of --render-previews and --render-wallpapers:
  SKIN           the one theme to render, by its name in lower case
  WIDTH, HEIGHT  pixels of a wallpaper; 2880 and 1800 unless given

Settings and widgets are kept in $XDG_CONFIG_HOME/ambrelle/defaults.json.
)"_s;
}

QString CommandLine::unknownOptionText(const QString& option)
{
    return u"ambrelle: unknown option “%1”. Try “ambrelle --help”."_s.arg(option);
}

} // namespace ambrelle
