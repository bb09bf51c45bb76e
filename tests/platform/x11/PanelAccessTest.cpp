// SPDX-License-Identifier: MIT

#include "platform/x11/PanelTest.h"

#include <QAccessible>
#include <QGuiApplication>

namespace ambrelle::test {

using namespace Qt::StringLiterals;
namespace {

class NamedPanel : public PlainFace {
public:
    QString accessibleName() const override { return name; }
    QString accessibleText() const override { return u"42, %"_s; }
    QList<PanelButton> buttons() const override { return offered; }
    void pressButton(qsizetype index) override
    {
        if (onPress)
            onPress(index);
    }

    QString name = u"CPU"_s;
    QList<PanelButton> offered{{u"Pin"_s, {10, 4, 49, 32}}, {u"Remove"_s, {59, 4, 49, 32}}};
    std::function<void(qsizetype)> onPress;
};

class PanelAccessTest : public PanelTest {
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        panel = make(delegate, panel->frame());
        panel->show();
        ASSERT_TRUE(waitUntil([&] { return onlooker.isManaged(panel->window()); }));
    }
    QAccessibleInterface* access() const { return QAccessible::queryAccessibleInterface(&panel->surface()); }

    void TearDown() override { panel.reset(); }

    NamedPanel delegate;
};

TEST_F(PanelAccessTest, ThePanelAndItsButtonsAreKnownByNamePlaceAndRole)
{
    QAccessibleInterface* application = QAccessible::queryAccessibleInterface(qApp);
    QAccessibleInterface* window = access();
    ASSERT_NE(window, nullptr);
    EXPECT_GE(application->indexOfChild(window), 0);
    EXPECT_EQ(window->parent(), application);
    EXPECT_EQ(window->text(QAccessible::Name), delegate.name);
    EXPECT_EQ(window->text(QAccessible::Description), delegate.accessibleText());
    const QPointF onScreen = QPointF(onlooker.geometry(panel->window()).topLeft()) / ratio;
    EXPECT_LT((QPointF(window->rect().topLeft()) - onScreen).manhattanLength(), 1.5);
    EXPECT_EQ(window->rect().size(), panel->surface().size());
    EXPECT_FALSE(window->state().invisible);

    ASSERT_EQ(window->childCount(), 2);
    EXPECT_EQ(window->child(2), nullptr);
    for (int index = 0; index < 2; ++index) {
        QAccessibleInterface* button = window->child(index);
        const PanelButton& offered = delegate.offered.at(index);
        EXPECT_EQ(button->text(QAccessible::Name), offered.name);
        EXPECT_EQ(button->role(), QAccessible::Button);
        EXPECT_EQ(button->rect().translated(-window->rect().topLeft()), offered.area.toRect());
        EXPECT_EQ(window->childAt(button->rect().center().x(), button->rect().center().y()), button);
        EXPECT_EQ(window->indexOfChild(button), index);
        EXPECT_EQ(button->parent(), window);
    }
    delegate.name.clear();
    EXPECT_EQ(application->indexOfChild(window), -1) << "an ornament";
}

TEST_F(PanelAccessTest, APressReachesTheDelegateAndMayCloseThePanel)
{
    qsizetype pressed = -1;
    delegate.onPress = [&](qsizetype index) {
        pressed = index;
        panel.reset();
    };
    QAccessibleInterface* button = access()->child(1);
    const QAccessible::Id id = QAccessible::uniqueId(button);
    button->actionInterface()->doAction(u"no such action"_s);
    EXPECT_EQ(pressed, -1);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(pressed, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

} // namespace
} // namespace ambrelle::test
