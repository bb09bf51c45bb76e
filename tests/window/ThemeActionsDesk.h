// SPDX-License-Identifier: MIT

#pragma once

#include "support/WaitUntil.h"
#include "window/frame/Sheets.h"
#include "window/WindowDesk.h"

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// A window's actions on a desktop whose picture is known, and the answers to what they ask.
struct ThemeActionsTest : WindowTest {
    Desk& desk = home.desk;
    ThemeActions& actions = home.themeActions;
    const ScreenInfo main = desk.host.screens().first();

    ThemeActionsTest()
    {
        desk.picture.memory = {{u"picture"_s, u"mine.jpg"_s}};
        desk.picture.shown = {{main.connector, u"/mine.jpg"_s}};
    }
    /// Presses that button of the sheet that is asked.
    void answer(const QString& button, const QString& text = {}, int choice = -1)
    {
        ASSERT_TRUE(home.sheets.current());
        home.sheets.answer({.button = button, .text = text, .choice = choice});
    }
    bool isOffered(const QString& text)
    {
        return waitUntil([&] { return home.undo.text() == text; }, 20'000);
    }
    QUuid save(const QString& name)
    {
        actions.saveDesktop();
        answer(sheets::accept, name);
        return home.themes.themes().first().id;
    }
};

} // namespace ambrelle
