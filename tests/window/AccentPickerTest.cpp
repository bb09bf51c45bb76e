// SPDX-License-Identifier: MIT

#include "window/themes/AccentPicker.h"
#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "model/ThemeAccent.h"
#include "support/WaitUntil.h"
#include "window/look/FocusRing.h"
#include "window/themes/AccentSwatch.h"

#include <QAccessible>
#include <QColorDialog>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

struct AccentPickerTest : testing::Test {
    UserDefaults store = UserDefaults::temporary();
    ThemeAccent accents{store};
    ManualClock clock;
    QWidget window;
    AccentPicker* picker = new AccentPicker(accents, clock, &window);
    int trials = 0; ///< changes told

    AccentPickerTest()
    {
        QObject::connect(picker, &AccentPicker::trialChanged, picker, [this] { ++trials; });
        FocusRing::shared(); // it sees how the focus comes
        picker->setSkin(Skin::neon);
        window.resize(400, 200);
        picker->resize(400, 100);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QList<AccentSwatch*> swatches() const { return picker->findChildren<AccentSwatch*>(); }
    AccentSwatch& swatch(const QString& name) const
    {
        for (AccentSwatch* each : swatches()) {
            if (each->accessibleName() == name)
                return *each;
        }
        ADD_FAILURE() << name.toStdString();
        return *swatches().first();
    }
    QString chosen() const
    {
        QStringList names;
        for (const AccentSwatch* each : swatches()) {
            if (each->isChecked())
                names.append(each->accessibleName());
        }
        return names.join(u", "_s);
    }
    /// The keyboard comes to the row, as it does with Tab.
    void enter() const
    {
        swatch(chosen()).setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
    }
    static void key(Qt::Key key)
    {
        QTest::keyClick(QApplication::focusWidget(), key);
        QCoreApplication::processEvents();
    }
};

TEST_F(AccentPickerTest, NamesEveryColourAndStoresTheChosenOne)
{
    QStringList names;
    for (const AccentSwatch* each : swatches()) {
        names.append(each->accessibleName());
        EXPECT_EQ(each->toolTip(), names.last());
        EXPECT_EQ(
            QAccessible::queryAccessibleInterface(const_cast<AccentSwatch*>(each))->role(), QAccessible::RadioButton);
    }
    EXPECT_EQ(names, (QStringList{u"Original"_s, u"Cyan"_s, u"Violet"_s, u"Lime"_s, u"Orange"_s, u"Custom colour"_s}));
    EXPECT_EQ(chosen(), u"Original"_s);
    QTest::mouseClick(&swatch(u"Cyan"_s), Qt::LeftButton);
    EXPECT_EQ(accents.hexOverrides(), (QMap<QString, QString>{{u"neon"_s, u"#26E6FF"_s}}));
    EXPECT_EQ(chosen(), u"Cyan"_s);
    accents.set(QColor(1, 2, 3), Skin::neon); // by a theme file
    EXPECT_EQ(chosen(), u"Custom colour"_s) << "ringed when it is none of the others";
    QTest::mouseClick(&swatch(u"Original"_s), Qt::LeftButton);
    EXPECT_TRUE(accents.hexOverrides().isEmpty());
    EXPECT_EQ(chosen(), u"Original"_s);
}

TEST_F(AccentPickerTest, StoresNothingWhereNothingChanges)
{
    int stored = 0;
    QObject::connect(picker, &AccentPicker::storing, picker, [&] { ++stored; });
    const auto click = [this](const QString& name) { QTest::mouseClick(&swatch(name), Qt::LeftButton); };
    click(u"Original"_s);
    EXPECT_EQ(stored, 0) << "it is chosen already";
    click(u"Cyan"_s);
    click(u"Cyan"_s);
    EXPECT_EQ(stored, 1);
    accents.set(QColor(1, 2, 3), Skin::neon);
    click(u"Custom colour"_s);
    auto* dialog = window.findChild<QColorDialog*>();
    ASSERT_TRUE(dialog) << "there are other colours than the one in the wheel";
    dialog->accept();
    EXPECT_EQ(stored, 1);
    EXPECT_EQ(chosen(), u"Custom colour"_s);
    click(u"Original"_s);
    EXPECT_EQ(stored, 2);
}

TEST_F(AccentPickerTest, IsWorkedByAssistiveTechnologyToo)
{
    const auto use = [this](const QString& name) {
        QAccessibleActionInterface* action = QAccessible::queryAccessibleInterface(&swatch(name))->actionInterface();
        action->doAction(action->actionNames().first());
        QCoreApplication::processEvents();
    };
    use(u"Cyan"_s);
    EXPECT_EQ(accents.hexOverrides().value(u"neon"_s), u"#26E6FF"_s);
    EXPECT_EQ(chosen(), u"Cyan"_s);
    use(u"Custom colour"_s);
    auto* dialog = window.findChild<QColorDialog*>();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(chosen(), u"Cyan"_s) << "nothing else is chosen yet";
    dialog->reject();
    use(u"Original"_s);
    EXPECT_TRUE(accents.hexOverrides().isEmpty());
}

TEST_F(AccentPickerTest, SaysWhichThemesKeepTheirColours)
{
    const auto* sentence = picker->findChild<QLabel*>();
    for (const Skin skin : {Skin::aero, Skin::paper, Skin::classic, Skin::velvet}) {
        picker->setSkin(skin);
        EXPECT_EQ(sentence->isVisible(), !supportsAccent(skin));
        EXPECT_EQ(swatches().isEmpty(), !supportsAccent(skin));
    }
    EXPECT_EQ(sentence->text(), u"This theme keeps its own colours"_s);
    EXPECT_EQ(swatches().size(), 8);
}

TEST_F(AccentPickerTest, TriesWhatTheKeyboardRestsOnAndStoresOnlyWhatIsChosen)
{
    enter();
    key(Qt::Key_Right); // Cyan
    clock.advance(149ms);
    key(Qt::Key_Right); // Violet
    clock.advance(149ms);
    EXPECT_EQ(trials, 0) << "what is passed over";
    clock.advance(1ms);
    ASSERT_TRUE(picker->trial());
    EXPECT_EQ(picker->trial()->accent, swatch(u"Violet"_s).accent());
    EXPECT_TRUE(accents.hexOverrides().isEmpty());
    key(Qt::Key_Left);
    EXPECT_TRUE(picker->trial()) << "until the next one is tried";
    clock.advance(150ms);
    key(Qt::Key_Return);
    EXPECT_EQ(accents.hexOverrides().value(u"neon"_s), u"#26E6FF"_s);
    EXPECT_FALSE(picker->trial()) << "it is what is stored now";
    key(Qt::Key_Left);
    clock.advance(150ms);
    EXPECT_EQ(picker->trial(), AccentPicker::Trial{}) << "the skin's own";
    picker->setSkin(Skin::hifi);
    EXPECT_FALSE(picker->trial()) << "what was tried was of another skin";
}

TEST_F(AccentPickerTest, IsOneStopForTabAndKeepsArrowsToItself)
{
    enter();
    for (int step = 0; step < 9; ++step)
        key(Qt::Key_Right);
    EXPECT_TRUE(swatch(u"Custom colour"_s).hasFocus());
    EXPECT_EQ(chosen(), u"Original"_s) << "arrows choose nothing";
    int stops = 0;
    for (const AccentSwatch* each : swatches())
        stops += each->focusPolicy() & Qt::TabFocus ? 1 : 0;
    EXPECT_EQ(stops, 1);
    window.setLayoutDirection(Qt::RightToLeft);
    key(Qt::Key_Right);
    EXPECT_TRUE(swatch(u"Orange"_s).hasFocus()) << "rightwards is backwards";
}

TEST_F(AccentPickerTest, TakesAnyOpaqueColourFromADialog)
{
    const auto open = [this] {
        QTest::mouseClick(&swatch(u"Custom colour"_s), Qt::LeftButton);
        return window.findChild<QColorDialog*>();
    };
    QColorDialog* dialog = open();
    ASSERT_TRUE(dialog);
    EXPECT_FALSE(dialog->testOption(QColorDialog::ShowAlphaChannel));
    EXPECT_EQ(chosen(), u"Original"_s) << "nothing is chosen yet";
    dialog->setCurrentColor(QColor(0x11, 0x22, 0x33));
    clock.advance(150ms);
    EXPECT_EQ(picker->trial(), AccentPicker::Trial{QColor(0x11, 0x22, 0x33)});
    dialog->reject();
    EXPECT_FALSE(picker->trial());
    EXPECT_TRUE(accents.hexOverrides().isEmpty());
    EXPECT_TRUE(waitUntil([this] { return !window.findChild<QColorDialog*>(); }));
    dialog = open();
    ASSERT_TRUE(dialog);
    dialog->setCurrentColor(QColor(0x11, 0x22, 0x33));
    dialog->accept();
    EXPECT_EQ(accents.hexOverrides().value(u"neon"_s), u"#112233"_s);
    EXPECT_EQ(chosen(), u"Custom colour"_s);
}

} // namespace
} // namespace ambrelle
