// SPDX-License-Identifier: MIT

#include "window/frame/Sheets.h"

#include "foundation/Wording.h"
#include "platform/LoginItem.h"

#include <QGuiApplication>
#include <QKeySequence>

namespace ambrelle::sheets {

using namespace Qt::StringLiterals;

namespace {

SheetButton cancelButton()
{
    return {cancel, Wording::tr("Cancel"), SheetButton::Role::cancel};
}

SheetButton actionButton(const QString& title)
{
    return {accept, title, SheetButton::Role::action};
}

SheetButton dangerButton(const QString& title)
{
    return {accept, title, SheetButton::Role::danger};
}

SheetContent failure(const QString& title, const QString& text)
{
    return {.title = title, .text = text, .warning = true, .buttons = {actionButton(Wording::tr("OK"))}};
}

SheetContent replacing(const QString& theme, bool oneScreen, const QList<SheetButton>& buttons)
{
    QString text = Wording::tr("Your current widgets will be replaced.");
    if (oneScreen)
        text += u' ' + Wording::tr("Widgets on other screens stay.");
    return {.title = Wording::tr("Apply “%1”?").arg(theme), .text = text, .buttons = buttons};
}

} // namespace

SheetContent applyTheme(const QString& theme, bool oneScreen)
{
    return replacing(theme, oneScreen,
        {cancelButton(), {keepWallpaper, Wording::tr("Keep My Wallpaper"), SheetButton::Role::other},
            actionButton(Wording::tr("Apply with Wallpaper"))});
}

SheetContent applyTheme(const QString& theme, bool oneScreen, const QString& action)
{
    return replacing(theme, oneScreen, {cancelButton(), actionButton(action)});
}

SheetContent save(const QString& name, const QStringList& screens)
{
    SheetContent content{.title = Wording::tr("Save Current Desktop"),
        .text = Wording::tr("Name this desktop. It will appear under My Themes."),
        .field = SheetField{.label = Wording::tr("Name"), .value = name},
        .buttons = {cancelButton(), actionButton(Wording::tr("Save"))}};
    if (screens.size() > 1)
        content.choice = SheetChoice{.label = Wording::tr("Screen"), .titles = screens};
    return content;
}

SheetContent removeTheme(const QString& theme)
{
    return {.title = Wording::tr("Delete “%1”?").arg(theme),
        .text = Wording::tr("This removes the saved desktop. Widgets on your desktop now aren't affected."),
        .buttons = {cancelButton(), dangerButton(Wording::tr("Delete"))}};
}

SheetContent importFailed(const QString& fileName)
{
    return failure(Wording::tr("Couldn't open “%1”").arg(fileName),
        Wording::tr("It isn't a Ambrelle theme file, or it was made by a newer version."));
}

SheetContent loginRefused(const QString& sentence)
{
    QString reason = sentence;
    if (reason.startsWith(LoginItem::refusal())) {
        reason.remove(0, LoginItem::refusal().size());
        while (!reason.isEmpty() && (reason.front().isSpace() || reason.front().isPunct()))
            reason.remove(0, 1);
    }
    return failure(LoginItem::refusal(), reason);
}

SheetContent removeAll(int widgets, const QString& screen)
{
    const QString title = screen.isEmpty() ? Wording::tr("Remove all %n widgets?", nullptr, widgets)
                                           : Wording::tr("Remove all %n widgets on %1?", nullptr, widgets).arg(screen);
    return {.title = title,
        .text = Wording::tr("You can undo this for a few seconds."),
        .buttons = {cancelButton(), dangerButton(Wording::tr("Remove"))}};
}

SheetContent reset(bool forgetsFolders)
{
    QString text = Wording::tr("Widgets, themes, pictures and accents stay as they are.");
    if (forgetsFolders)
        text += u' ' + Wording::tr("The calendar folders you added are forgotten, but not deleted.");
    return {.title = Wording::tr("Reset all settings?"),
        .text = text,
        .buttons = {cancelButton(), dangerButton(Wording::tr("Reset"))}};
}

SheetContent shortcuts()
{
    // Keys as menus write them, in the language of the program.
    const auto keys = [](std::initializer_list<QKeyCombination> combinations) {
        QStringList names;
        for (const QKeyCombination combination : combinations)
            names.append(QKeySequence(combination).toString(QKeySequence::NativeText));
        return names.join(u", "_s);
    };
    const auto range = [](QKeyCombination first, QKeyCombination last) {
        return Wording::tr("%1 to %2", "two keys and all between them")
            .arg(QKeySequence(first).toString(QKeySequence::NativeText),
                QKeySequence(last).toString(QKeySequence::NativeText));
    };
    const bool mirrored = QGuiApplication::isRightToLeft();
    const Qt::Key backwards = mirrored ? Qt::Key_Right : Qt::Key_Left;
    const Qt::Key forwards = mirrored ? Qt::Key_Left : Qt::Key_Right;
    return {.title = Wording::tr("Keyboard Shortcuts"),
        .table = {{range(Qt::CTRL | Qt::Key_1, Qt::CTRL | Qt::Key_4), Wording::tr("Go to a tab")},
            {keys({Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::SHIFT | Qt::Key_Tab}), Wording::tr("Next tab, previous tab")},
            {keys({Qt::CTRL | Qt::Key_Comma}), Wording::tr("Settings")},
            {keys({Qt::CTRL | Qt::Key_F}), Wording::tr("Search")}, {keys({Qt::Key_F10}), Wording::tr("Open the menu")},
            {keys({Qt::Key_F6}), Wording::tr("Next area")},
            {keys({Qt::CTRL | Qt::Key_Z}), Wording::tr("Undo while a bar offers it")},
            {Wording::tr("Arrow keys, letters"), Wording::tr("Move in a grid or list, jump to a name")},
            {keys({Qt::Key_Home, Qt::Key_End}), Wording::tr("First and last of a grid or list")},
            {keys({Qt::Key_PageUp, Qt::Key_PageDown}), Wording::tr("A page up, a page down")},
            {keys({Qt::Key_Return, Qt::Key_Space}), Wording::tr("What a click does")},
            {keys({Qt::CTRL | Qt::Key_Return}), Wording::tr("Apply the chosen theme")},
            {keys({Qt::Key_Menu, Qt::SHIFT | Qt::Key_F10}), Wording::tr("Menu of a card or row")},
            {keys({Qt::Key_F2}), Wording::tr("Rename your theme")},
            {keys({Qt::Key_Delete}), Wording::tr("Delete your theme, take off your picture, remove widgets")},
            {keys({backwards, forwards}), Wording::tr("Previous and next theme on a theme's page")},
            {keys({Qt::ALT | backwards}), Wording::tr("Back from a theme's page")},
            {keys({Qt::CTRL | Qt::Key_S}), Wording::tr("Save Current Desktop")},
            {keys({Qt::CTRL | Qt::Key_O}), Wording::tr("Import themes")},
            {keys({Qt::CTRL | Qt::Key_E}), Wording::tr("Export your theme")},
            {keys({Qt::Key_Escape}), Wording::tr("Cancel, clear the search, go back, hide the window")},
            {keys({Qt::CTRL | Qt::Key_W}), Wording::tr("Hide the window")}},
        .buttons = {actionButton(Wording::tr("OK"))}};
}

SheetContent told(const QString& title, const QString& text)
{
    return {.title = title, .text = text, .buttons = {actionButton(Wording::tr("OK"))}};
}

} // namespace ambrelle::sheets
