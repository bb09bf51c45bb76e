// SPDX-License-Identifier: MIT

#include "app/CommandLine.h"

#include "desktop/QuickMenu.h"

#include <algorithm>
#include <array>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

using Mode = CommandLine::Mode;

struct BatchOption {
    QLatin1StringView flag;
    Mode mode;
    bool takesFolder = true;
};

constexpr QLatin1StringView actionOption = "--action"_L1;

// In the order in which they are looked for.
constexpr std::array batchOptions{
    BatchOption{"--render-previews"_L1, Mode::renderPreviews},
    BatchOption{"--render-wallpapers"_L1, Mode::renderWallpapers},
    BatchOption{"--render-window"_L1, Mode::renderWindow},
    BatchOption{"--render-ui"_L1, Mode::renderInterface},
    BatchOption{"--check-update"_L1, Mode::checkUpdate, false},
    BatchOption{"--export-site"_L1, Mode::exportSite},
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

QString actionNames()
{
    QStringList names;
    for (const QuickAction action : allCases<QuickAction>())
        names.append(rawValue(action));
    return names.join(u", "_s);
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
        if (place >= 0 && !option.takesFolder)
            return {.mode = option.mode};
        if (place >= 0 && place + 1 < words.size())
            return {.mode = option.mode, .folder = words.at(place + 1)};
    }
    if (words.contains("--help"_L1) || words.contains("-h"_L1))
        return {.mode = Mode::help};
    if (words.contains("--version"_L1))
        return {.mode = Mode::version};
    if (words.contains("--register"_L1))
        return {.mode = Mode::enterMenu};
    if (words.contains("--unregister"_L1))
        return {.mode = Mode::leaveMenu};
    CommandLine desktop;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& word = words.at(i);
        if (isSessionOption(word)) {
            desktop.isRestored = true;
            ++i;
        } else if (word == actionOption) {
            desktop.action = words.value(++i);
            if (!ambrelle::parse<QuickAction>(desktop.action))
                return {.mode = Mode::unknownAction, .option = desktop.action};
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

bool CommandLine::isBatch() const
{
    return std::ranges::any_of(
        batchOptions, [this](const BatchOption& option) { return option.mode == mode && option.takesFolder; });
}

QString CommandLine::helpText()
{
    return uR"(Usage: ambrelle [OPTION] [FILE...]
Live widgets on the desktop, in thirty themes. A program that already runs takes the FILEs over.

  --action NAME               have the program that runs do this, or start it to
                              do so: open-window, themes, add-widgets, settings,
                              edit, lock, toggle-focus, skip, reset,
                              check-for-updates, update or quit
  --render-previews FOLDER    write a picture of every theme into FOLDER and exit
  --render-wallpapers FOLDER  write the wallpaper of every theme into FOLDER and exit
  --render-window FOLDER      write live widgets, captured from a display, into FOLDER and exit
  --render-ui FOLDER          write desktops and the main window into FOLDER and exit
  --check-update              look for a newer version, download and verify it,
                              install nothing, and exit
  --export-site FOLDER        write a site about the themes into FOLDER and exit
  --register                  put this copy into the desktop's menu of programs,
                              for this user, and exit
  --unregister                take it out again and exit
  -h, --help                  show this text and exit
  --version                   show the version and exit

Environment of what writes pictures:
  SKIN               the themes to render, by their names, as in “paper,fieldDark”
  WIDTH, HEIGHT      pixels of --render-wallpapers; 2880 and 1800 unless given
  KINDS              widgets of --render-window, as in “clock,cpu”; those of the
                     theme's layout unless given
  SOURCE_DATE_EPOCH  when --export-site says that it was made, in seconds since 1970

Settings and widgets are kept in $XDG_CONFIG_HOME/ambrelle/defaults.json.
)"_s;
}

QString CommandLine::unknownOptionText(const QString& option)
{
    return u"ambrelle: unknown option “%1”. Try “ambrelle --help”."_s.arg(option);
}

QString CommandLine::unknownActionText(const QString& action)
{
    const QString problem = action.isEmpty() ? u"“--action” wants a name"_s : u"unknown action “%1”"_s.arg(action);
    return u"ambrelle: %1. The actions are %2."_s.arg(problem, actionNames());
}

} // namespace ambrelle
