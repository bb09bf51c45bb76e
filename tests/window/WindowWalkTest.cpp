// SPDX-License-Identifier: MIT

#include "window/frame/SheetHost.h"
#include "window/frame/Sheets.h"
#include "window/frame/ToolBar.h"
#include "window/WindowDesk.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QRadioButton>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

/// Goes through everything that the window shows as one does who sees and points at nothing.
struct WindowWalkTest : WindowTest, testing::WithParamInterface<Qt::LayoutDirection> {
    WindowWalkTest()
    {
        QGuiApplication::setLayoutDirection(GetParam());
        QAccessible::setActive(true);
        home.desk.manager.add(WidgetKind::clock, Skin::glass);
        home.desk.manager.add(WidgetKind::cpu, Skin::glass);
        home.undo.dismiss();
    }
    ~WindowWalkTest() override { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); }

    static QString nameOf(const QWidget& widget)
    {
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
        if (QString name = told->text(QAccessible::Name); !name.isEmpty())
            return name;
        const auto labels = told->relations(QAccessible::Label);
        return labels.isEmpty() ? QString() : labels.first().first->text(QAccessible::Name);
    }
    static std::string wordsFor(const QWidget& widget)
    {
        return std::string(widget.metaObject()->className()) + " “" + nameOf(widget).toStdString() + "”";
    }
    static QRect areaOf(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint()), widget.size()}; }
    /// What Tab is to come to: of several that belong together, the chosen one.
    static bool isStop(const QWidget& widget)
    {
        const auto* one = qobject_cast<const QRadioButton*>(&widget);
        const bool isOther = one && one->group() && !one->isChecked();
        return widget.isVisible() && widget.isEnabled() && widget.focusPolicy() & Qt::TabFocus && !widget.focusProxy()
            && !isOther;
    }
    static QList<QWidget*> stopsIn(QWidget& part)
    {
        QList<QWidget*> stops;
        for (QWidget* each : part.findChildren<QWidget*>()) {
            if (each->window() == part.window() && isStop(*each))
                stops.append(each);
        }
        return stops;
    }
    static bool mirrored() { return GetParam() == Qt::RightToLeft; }
    /// Whether `next` may follow in the order of reading: beside or below, or in a column further on.
    static bool isFurther(const QRect& from, const QRect& next)
    {
        const bool isAhead = mirrored() ? next.right() < from.left() : next.left() > from.right();
        return isAhead || next.top() > from.top() || next.contains(from); // a grid has its header within
    }

    /// With Tab from where the keyboard is, once round.
    void walk(QWidget& part, const std::string& place)
    {
        SCOPED_TRACE(place);
        QList<QWidget*> met;
        for (QWidget* at = QApplication::focusWidget(); at && !met.contains(at); at = QApplication::focusWidget()) {
            met.append(at);
            press(*at, Qt::Key_Tab);
        }
        ASSERT_FALSE(met.isEmpty());
        // From where one begins to read: in the tool bar, or at the top.
        const auto* bar = part.findChild<ToolBar*>();
        const auto begins = [&](const QWidget* one, const QWidget* other) {
            const QRect area = areaOf(*one);
            const QRect than = areaOf(*other);
            return std::pair(area.top(), mirrored() ? -area.right() : area.left())
                < std::pair(than.top(), mirrored() ? -than.right() : than.left());
        };
        auto start = std::ranges::min_element(met, begins);
        for (auto at = met.begin(); bar && at != met.end(); ++at) {
            const QWidget* previous = at == met.begin() ? met.last() : *std::prev(at);
            if (bar->isAncestorOf(*at) && !bar->isAncestorOf(previous))
                start = at;
        }
        std::rotate(met.begin(), start, met.end());
        QWidget* before = nullptr;
        for (QWidget* at : std::as_const(met)) {
            QAccessibleInterface* told = QAccessible::queryAccessibleInterface(at);
            EXPECT_FALSE(nameOf(*at).isEmpty()) << wordsFor(*at) << " has no name";
            EXPECT_NE(told->role(), QAccessible::Client) << wordsFor(*at);
            EXPECT_NE(told->role(), QAccessible::NoRole) << wordsFor(*at);
            EXPECT_TRUE(told->state().focusable) << wordsFor(*at);
            EXPECT_TRUE(at->isVisible() && !told->state().invisible) << wordsFor(*at) << " is hidden";
            const bool comparable = before && !isInScrolled(*at) && !isInScrolled(*before);
            EXPECT_TRUE(!comparable || isFurther(areaOf(*before), areaOf(*at)))
                << wordsFor(*at) << " comes after " << wordsFor(*before);
            before = at;
        }
        for (const QWidget* stop : stopsIn(part))
            EXPECT_TRUE(met.contains(stop)) << "no Tab leads to " << wordsFor(*stop);
    }
    /// Its place changes as it is reached.
    static bool isInScrolled(const QWidget& widget)
    {
        for (const QWidget* each = widget.parentWidget(); each; each = each->parentWidget()) {
            if (qobject_cast<const QAbstractScrollArea*>(each))
                return true;
        }
        return false;
    }
};

TEST_P(WindowWalkTest, TabLeadsToEverythingInTheOrderOfReadingAndItHasAName)
{
    MainWindow& window = opened();
    for (const MainTab tab : allCases<MainTab>()) {
        home.model.setTab(tab);
        QCoreApplication::processEvents();
        press(window, Qt::Key_F6);
        walk(window, title(tab).toStdString());
    }
    for (int chapter = 0; chapter <= static_cast<int>(SettingsChapter::about); ++chapter) {
        home.model.setSettingsChapter(static_cast<SettingsChapter>(chapter));
        QCoreApplication::processEvents();
        walk(window, "section " + std::to_string(chapter) + " of the settings");
    }
    home.model.openTheme(Skin::neon);
    home.model.setTab(MainTab::themes);
    QCoreApplication::processEvents();
    press(window, Qt::Key_F6);
    walk(window, "page of a theme");
    home.model.closeTheme();
    for (const MainTab tab : allCases<MainTab>()) {
        home.model.setTab(tab);
        home.model.setSearch(tab, u"nothing is called so"_s);
        QCoreApplication::processEvents();
        press(window, Qt::Key_F6);
        walk(window, "nothing found in " + title(tab).toStdString());
        home.model.setSearch(tab, {});
    }
    auto& host = *window.findChild<SheetHost*>();
    for (const SheetContent& content : {sheets::shortcuts(), sheets::save(u"Desk"_s, {u"One"_s, u"Two"_s}),
             sheets::applyTheme(u"Neon"_s, false), sheets::reset()}) {
        home.sheets.ask(content);
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        walk(host, content.title.toStdString());
        press(host, Qt::Key_Escape);
    }
}

INSTANTIATE_TEST_SUITE_P(Directions, WindowWalkTest, testing::Values(Qt::LeftToRight, Qt::RightToLeft));

} // namespace
} // namespace ambrelle
