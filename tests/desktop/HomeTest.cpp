// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"

#include <random>

namespace ambrelle {
namespace {

/// Screens of a desk that do anything a user can do to them.
class RestlessScreens {
public:
    explicit RestlessScreens(const QList<ScreenInfo>& all, unsigned seed)
        : m_all(all)
        , m_random(seed)
    {
    }

    int pick(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }

    QList<ScreenInfo> next()
    {
        QList<ScreenInfo> screens = m_all;
        for (ScreenInfo& screen : screens)
            change(screen);
        const int unplugged = pick(4);
        if (unplugged == 3)
            screens.clear();
        else if (unplugged > 0)
            screens.removeAt(unplugged - 1);
        else if (pick(2)) // another main display: all coordinates change
            turnRound(screens);
        return screens;
    }

private:
    void change(ScreenInfo& screen)
    {
        const QSizeF size = screen.frame.size();
        const QList<QSizeF> sizes{size, size, size.transposed(), size / 2, size / 1.5, size * 1.25, {1024, 600}};
        screen.frame.setSize(sizes.at(pick(static_cast<int>(sizes.size()))));
        if (pick(4) == 0)
            screen.frame.moveTopLeft(m_all.first().frame.topLeft()); // mirrors the first one
        screen.visibleFrame = screen.frame.adjusted(0, pick(2) * 30, 0, -pick(2) * 40);
    }
    static void turnRound(QList<ScreenInfo>& screens)
    {
        std::ranges::reverse(screens);
        const QPointF origin = screens.first().frame.topLeft();
        for (ScreenInfo& screen : screens) {
            screen.frame.translate(-origin);
            screen.visibleFrame.translate(-origin);
        }
    }

    QList<ScreenInfo> m_all;
    std::mt19937 m_random;
};

QByteArray writtenByHand()
{
    return R"([{"kind":"clock","skin":"glass","origin":[30,600]},{"kind":"cpu","skin":"glass","origin":[30,420]},
        {"kind":"memory","skin":"paper","origin":[210,420]},{"kind":"disk","skin":"paper","origin":[1240,30],"fit":0.8},
        {"kind":"weather","skin":"neon","origin":[1100,700]},{"kind":"photo","skin":"mono","origin":[1300,300]},
        {"kind":"events","skin":"glass","origin":[1500,900.25]},{"kind":"network","skin":"hifi","origin":[2300,500]},
        {"kind":"quote","skin":"glass","scale":"double","origin":[2600,40]}])";
}

TEST(Home, IsWhereEveryWidgetComesBackToWhateverScreensDo)
{
    UserDefaults store = UserDefaults::temporary();
    store.setData(u"widgets.v2"_s, writtenByHand());
    auto desk = std::make_unique<Desk>(store);
    const QList<ScreenInfo> all{desk->host.screens().first(), rightScreen};
    desk->host.setScreens(all);
    desk->manager.load();
    const QList<WidgetConfig> home = desk->live();
    ASSERT_EQ(home.size(), 9);

    RestlessScreens screens(all, 20261122);
    int away = 0;
    for (int step = 0; step < 1000; ++step) {
        desk->host.setScreens(screens.next());
        if (screens.pick(3) == 0) { // stored before anybody has heard of the new screens
            desk->manager.controllers().first()->setPinned(true);
            desk->manager.controllers().first()->setPinned(false);
        }
        desk->manager.ensureAllVisible();
        away += desk->live() == home ? 0 : 1;
        if (screens.pick(20) == 0) {
            const QList<ScreenInfo> now = desk->host.screens();
            desk = std::make_unique<Desk>(store);
            desk->host.setScreens(now);
            desk->manager.load();
        }
        if (screens.pick(4) == 0) {
            desk->show(all);
            ASSERT_EQ(desk->live(), home) << step;
        }
    }
    EXPECT_GT(away, 800) << "they hardly ever left";
}

ScreenInfo sized(const ScreenInfo& screen, QSizeF size)
{
    ScreenInfo now = screen;
    now.frame.setSize(size);
    now.visibleFrame = now.frame.adjusted(0, 0, 0, -28);
    return now;
}

QList<std::pair<qsizetype, qsizetype>> overlaps(const Desk& desk)
{
    QList<std::pair<qsizetype, qsizetype>> pairs;
    const QList<WidgetConfig> widgets = desk.live();
    for (qsizetype i = 0; i < widgets.size(); ++i) {
        for (qsizetype other = 0; other < i; ++other) {
            if (widgets[i].frame().intersects(widgets[other].frame()))
                pairs.append({i, other});
        }
    }
    return pairs;
}

TEST(Home, AFirstLayoutStaysOneOnSmallerScreensAndComesBackToThePixel)
{
    for (const Skin skin : allCases<Skin>()) {
        UserDefaults store = UserDefaults::temporary();
        Desk desk(store);
        const ScreenInfo large = sized(desk.host.screens().first(), {1920, 1080});
        desk.show({large});
        desk.manager.applyPreset(skin, false);
        const QList<WidgetConfig> home = desk.live();
        ASSERT_GT(home.size(), 5);
        const auto before = overlaps(desk);
        for (const QSizeF& size : {QSizeF(1024, 600), QSizeF(960, 540), QSizeF(960, 1080), QSizeF(1080, 1920)}) {
            const ScreenInfo small = sized(large, size);
            desk.show({small});
            for (const auto& pair : overlaps(desk))
                EXPECT_TRUE(before.contains(pair)) << qPrintable(rawValue(skin)) << ' ' << size.width();
            for (const WidgetConfig& widget : desk.live())
                EXPECT_TRUE(small.visibleFrame.contains(widget.frame()))
                    << qPrintable(rawValue(skin)) << ' ' << size.width();
        }
        desk.show({large});
        EXPECT_EQ(desk.live(), home) << qPrintable(rawValue(skin));
    }
}

} // namespace
} // namespace ambrelle
