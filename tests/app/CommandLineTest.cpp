// SPDX-License-Identifier: MIT

#include "app/CommandLine.h"

#include "desktop/QuickMenu.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using Mode = CommandLine::Mode;

TEST(CommandLine, ChoosesWhatToDo)
{
    struct Case {
        const char* words;
        CommandLine expected;
    };
    const Case cases[] = {
        {"", {}},
        {"--render-previews out", {.mode = Mode::renderPreviews, .folder = "out"}},
        {"--render-previews", {}},
        {"a.ambrelle --render-previews", {.files = {"a.ambrelle"}}},
        {"a.ambrelle --render-previews out b", {.mode = Mode::renderPreviews, .folder = "out"}},
        {"--render-previews --help", {.mode = Mode::renderPreviews, .folder = "--help"}},
        {"--export-site out --render-ui ui", {.mode = Mode::renderInterface, .folder = "ui"}},
        {"--export-site --render-window", {.mode = Mode::exportSite, .folder = "--render-window"}},
        {"--render-ui ui --render-window win --render-wallpapers paper",
            {.mode = Mode::renderWallpapers, .folder = "paper"}},
        {"--export-site site --render-wallpapers", {.mode = Mode::exportSite, .folder = "site"}},
        {"--render-previews=out", {.mode = Mode::unknownOption, .option = "--render-previews=out"}},
        {"--Render-Previews out", {.mode = Mode::unknownOption, .option = "--Render-Previews"}},
        {"--check-update", {.mode = Mode::checkUpdate}},
        {"a.ambrelle --check-update --help", {.mode = Mode::checkUpdate}},
        {"--check-update --render-wallpapers out", {.mode = Mode::renderWallpapers, .folder = "out"}},
        {"--check-update --render-wallpapers", {.mode = Mode::checkUpdate}},
        {"-- --check-update", {.files = {"--check-update"}}},
        {"--help", {.mode = Mode::help}},
        {"theme.ambrelle --version", {.mode = Mode::version}},
        {"--register", {.mode = Mode::enterMenu}},
        {"a.ambrelle --unregister", {.mode = Mode::leaveMenu}},
        {"-- --register", {.files = {"--register"}}},
        {"one.ambrelle -x two.ambrelle", {.mode = Mode::unknownOption, .option = "-x"}},
        {"one.ambrelle two.ambrelle", {.files = {"one.ambrelle", "two.ambrelle"}}},
        {"one.ambrelle -- --version -x", {.files = {"one.ambrelle", "--version", "-x"}}},
        {"--render-previews --", {}},
        {"-session 10a_17 a.ambrelle", {.files = {"a.ambrelle"}, .isRestored = true}},
        {"--session", {.isRestored = true}},
        {"-session 10a_17 -x", {.mode = Mode::unknownOption, .option = "-x"}},
        {"--action edit a.ambrelle", {.files = {"a.ambrelle"}, .action = "edit"}},
        {"--action edit --action lock", {.action = "lock"}},
        {"--action Edit", {.mode = Mode::unknownAction, .option = "Edit"}},
        {"--action --help", {.mode = Mode::help}},
        {"--action", {.mode = Mode::unknownAction}},
        {"-- --action edit", {.files = {"--action", "edit"}}},
        {"-- -session 10a_17", {.files = {"-session", "10a_17"}}},
    };
    for (const Case& c : cases) {
        const QStringList words = QString::fromLatin1(c.words).split(u' ', Qt::SkipEmptyParts);
        EXPECT_EQ(CommandLine::parse(words), c.expected) << c.words;
    }
    for (const char* flag :
        {"--render-previews", "--render-wallpapers", "--render-window", "--render-ui", "--export-site"})
        EXPECT_TRUE(CommandLine::parse({flag, QString()}).isBatch()) << "what the user has would be in the pictures";
    EXPECT_FALSE(CommandLine().isBatch());
    EXPECT_EQ(CommandLine::parse({QString()}), CommandLine()) << "an empty word is no file";
}

TEST(CommandLine, NamesEveryAction)
{
    for (const QuickAction action : allCases<QuickAction>()) {
        const QString name = rawValue(action);
        EXPECT_EQ(CommandLine::parse({u"--action"_s, name}).action, name);
        EXPECT_TRUE(CommandLine::helpText().contains(name)) << qPrintable(name);
        EXPECT_TRUE(CommandLine::unknownActionText(u"x"_s).contains(name)) << qPrintable(name);
    }
}

} // namespace
} // namespace ambrelle
