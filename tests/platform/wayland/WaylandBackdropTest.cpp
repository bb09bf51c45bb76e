// SPDX-License-Identifier: MIT

#include "platform/wayland/OnCompositor.h"

namespace ambrelle::test {
namespace {

const QColor shade(0x10, 0x30, 0x50);
const QColor popupColour(0xD0, 0xD0, 0x20);

class ShadeDelegate final : public BackdropDelegate {
public:
    void paint(QPainter& painter, const QSizeF& size) override { painter.fillRect(QRectF({}, size), shade); }
    void clicked() override { ++clicks; }
    void keyPressed(Qt::Key key) override { keys.append(key); }
    void closeRequested() override { }

    int clicks = 0;
    QList<Qt::Key> keys;
};

struct WaylandBackdropTest : OnCompositor {
    ShadeDelegate shader;
};

TEST_F(WaylandBackdropTest, CoversAllButFloatingPanelsAndHearsKeysAndClicks)
{
    const std::unique_ptr<PanelWindow> panel = make(face, {200, 200, 240, 160});
    panel->setLevel(WindowLevel::floating);
    panel->show();
    const NormalWindow window(Qt::red);
    ASSERT_TRUE(isSeen({320, 280}, theFace));
    {
        const std::unique_ptr<BackdropWindow> backdrop = host.makeBackdrop(shader);
        backdrop->setFrame(host.screens().first().frame);
        backdrop->show();
        backdrop->takeFocus();
        EXPECT_TRUE(isSeen({900, 600}, shade));
        EXPECT_TRUE(isSeen({320, 280}, theFace));
        EXPECT_TRUE(waitUntil([this] {
            input->setKey(u"escape"_s, true);
            input->setKey(u"escape"_s, false);
            return !shader.keys.isEmpty();
        }));
        EXPECT_EQ(shader.keys.first(), Qt::Key_Escape);
        point({900, 600});
        input->press();
        input->release();
        EXPECT_TRUE(waitUntil([this] { return shader.clicks == 1; }));
    }
    EXPECT_TRUE(isSeen({800, 500}, Qt::red)); // the pointer is where it was clicked
    EXPECT_TRUE(isSeen({320, 280}, theFace));
}

/// A menu, for the host.
class Popup final : public QRasterWindow {
public:
    explicit Popup(const QRect& place)
    {
        setFlags(Qt::Popup);
        setGeometry(place);
    }

    QList<int> keys;
    int presses = 0;

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(QRect({0, 0}, size()), popupColour); }
    void keyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }
    void mousePressEvent(QMouseEvent*) override { ++presses; }
};

TEST_F(WaylandBackdropTest, PopupsStandWhereTheyWereSentUntilAClickElsewhere)
{
    NormalWindow window(Qt::red);
    const std::unique_ptr<PanelWindow> panel = make(face, {200, 200, 240, 160});
    panel->setLevel(WindowLevel::floating);
    panel->show();
    ASSERT_TRUE(isSeen({320, 280}, theFace));
    const QPointF inside(400, 300);
    const QRect place = host.toolkitRect({350, 250, 200, 100}).toRect();
    for (const QPointF& elsewhere : {QPointF(900, 600), QPointF(250, 300)}) { // a window, a panel
        Popup popup(place);
        popup.show();
        EXPECT_TRUE(isSeen(inside, popupColour));
        EXPECT_TRUE(waitUntil([&] {
            input->setKey(u"a"_s, true);
            input->setKey(u"a"_s, false);
            return !popup.keys.isEmpty();
        }));
        point(inside);
        input->press();
        input->release();
        EXPECT_TRUE(waitUntil([&] { return popup.presses == 1; }));
        EXPECT_TRUE(popup.isVisible());
        point(elsewhere);
        input->press();
        input->release();
        EXPECT_TRUE(waitUntil([&] { return !popup.isVisible(); }));
        EXPECT_TRUE(waitUntil([&] { return seen(inside) != popupColour; }));
    }
    EXPECT_TRUE(face.pressed.isEmpty()) << "the click ended the menu, and did no more";
    EXPECT_EQ(window.presses, 0);
    point({900, 600});
    input->press();
    input->release();
    EXPECT_TRUE(waitUntil([&] { return window.presses == 1; }));
}

} // namespace
} // namespace ambrelle::test
