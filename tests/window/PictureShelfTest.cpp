// SPDX-License-Identifier: MIT

#include "window/cards/PictureShelf.h"

#include "foundation/ManualClock.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

/// Has the orders lie until the test serves them; the first is being made and cannot be dropped.
class SlowLoader final : public PictureLoader {
public:
    void load(const PictureOrder& order, Done done) override { m_orders.append({order, std::move(done)}); }
    bool drop(const PictureOrder& order) override
    {
        for (qsizetype index = 1; index < m_orders.size(); ++index) {
            if (m_orders[index].first == order) {
                m_orders.removeAt(index);
                return true;
            }
        }
        return false;
    }
    QStringList names() const
    {
        QStringList names;
        for (const auto& [order, done] : m_orders)
            names += order.key.name;
        return names;
    }
    void serveFirst(bool works = true)
    {
        const auto [order, done] = m_orders.takeFirst();
        QImage image(works ? order.pixels : QSize(), QImage::Format_ARGB32_Premultiplied);
        if (works)
            image.fill(Qt::red);
        done(image);
    }
    void serveAll()
    {
        while (!m_orders.isEmpty())
            serveFirst();
    }

private:
    QList<std::pair<PictureOrder, Done>> m_orders;
};

PictureOrder orderOf(int number, QSize pixels = {500, 500})
{
    return {PictureKey::file(QString::number(number), {}), pixels, 10};
}

QList<PictureOrder> orders(int first, int count)
{
    QList<PictureOrder> all;
    for (int number = first; number < first + count; ++number)
        all += orderOf(number);
    return all;
}

class PictureShelfTest : public testing::Test {
protected:
    PictureShelfTest()
    {
        QObject::connect(&m_shelf, &PictureShelf::arrived, [this](const PictureKey& key) { m_arrived += key.name; });
    }
    QPixmap ask(const PictureOrder& order) { return m_shelf.picture(order.key, order.pixels, order.corner); }
    bool has(int number)
    {
        const bool isThere = !ask(orderOf(number)).isNull();
        m_loader.serveAll(); // what the question ordered
        return isThere;
    }

    static constexpr qint64 each = qint64{4} * 500 * 500; // bytes
    SlowLoader m_loader;
    PictureShelf m_shelf{m_loader};
    QStringList m_arrived;
    QObject m_view;
};

TEST_F(PictureShelfTest, EachPictureIsOrderedOnceAndAnnounced)
{
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(ask(orderOf(1)).isNull());
        EXPECT_TRUE(ask(orderOf(2)).isNull());
    }
    EXPECT_EQ(m_loader.names(), (QStringList{u"1"_s, u"2"_s}));
    m_loader.serveAll();
    EXPECT_EQ(m_arrived, (QStringList{u"1"_s, u"2"_s}));
    EXPECT_EQ(ask(orderOf(1)).size(), QSize(500, 500));
    EXPECT_EQ(m_loader.names(), QStringList());
    EXPECT_TRUE(ask(orderOf(1, {600, 600})).isNull()) << "nothing is scaled while painting";
    EXPECT_EQ(m_shelf.standIn(orderOf(1).key).size(), QSize(500, 500));
    EXPECT_TRUE(m_shelf.standIn(orderOf(7).key).isNull());
}

TEST_F(PictureShelfTest, WhatScrolledAwayIsDroppedUnlessBegunOrSeenElsewhere)
{
    const QObject other;
    m_shelf.setWanted(m_view, orders(0, 6));
    EXPECT_EQ(m_loader.names().first(), u"0"_s) << "first things first";
    {
        const QObject passing;
        m_shelf.setWanted(passing, orders(20, 2));
        m_shelf.setWanted(other, orders(3, 1));
        m_shelf.setWanted(m_view, orders(5, 3));
        EXPECT_EQ(m_loader.names(), (QStringList{u"0"_s, u"3"_s, u"5"_s, u"20"_s, u"21"_s, u"6"_s, u"7"_s}));
    }
    EXPECT_EQ(m_loader.names(), (QStringList{u"0"_s, u"3"_s, u"5"_s, u"6"_s, u"7"_s}));
    m_shelf.setWanted(m_view, orders(1, 1)); // dropped before, wanted again
    EXPECT_EQ(m_loader.names(), (QStringList{u"0"_s, u"3"_s, u"1"_s}));
}

TEST_F(PictureShelfTest, WhatWasPaintedLongestAgoMakesRoom)
{
    const int fitting = static_cast<int>(PictureShelf::leastLimit / each); // 12
    m_shelf.setWanted(m_view, orders(0, fitting));
    m_loader.serveAll();
    m_shelf.setWanted(m_view, {orderOf(5)});
    EXPECT_FALSE(ask(orderOf(0)).isNull()); // painted again by somebody
    m_shelf.setWanted(m_view, {orderOf(5), orderOf(100)});
    m_loader.serveAll();
    EXPECT_LE(m_shelf.bytes(), PictureShelf::leastLimit);
    EXPECT_TRUE(has(5));
    EXPECT_TRUE(has(0));
    EXPECT_FALSE(has(1));
}

TEST_F(PictureShelfTest, WhatIsSeenStaysHoweverMuchItIs)
{
    m_shelf.setWanted(m_view, orders(0, 40));
    m_loader.serveAll();
    EXPECT_EQ(m_shelf.bytes(), 40 * each);
    for (const PictureOrder& order : orders(0, 40))
        EXPECT_FALSE(ask(order).isNull());
    m_shelf.setWanted(m_view, orders(8, 40)); // a row further
    m_loader.serveAll();
    EXPECT_EQ(m_shelf.bytes(), 48 * each) << "there is some room for what was just seen";
    m_shelf.setWanted(m_view, orders(40, 40));
    m_loader.serveAll();
    EXPECT_EQ(m_shelf.bytes(), 50 * each);
    m_shelf.setWanted(m_view, {});
    EXPECT_LE(m_shelf.bytes(), PictureShelf::leastLimit);
}

TEST_F(PictureShelfTest, AFailureIsKnownUntilAllIsReleased)
{
    ask(orderOf(1));
    m_loader.serveFirst(false);
    EXPECT_EQ(m_arrived, QStringList{u"1"_s});
    EXPECT_TRUE(m_shelf.hasFailed(orderOf(1).key));
    EXPECT_TRUE(ask(orderOf(1)).isNull());
    EXPECT_EQ(m_loader.names(), QStringList()) << "tried again at every repaint";
    const PictureKey writtenOver = PictureKey::file(u"1"_s, QDateTime::fromSecsSinceEpoch(5));
    EXPECT_FALSE(m_shelf.hasFailed(writtenOver));
    ask(orderOf(2));
    m_loader.serveAll();
    m_shelf.release();
    EXPECT_EQ(m_shelf.bytes(), 0);
    EXPECT_FALSE(m_shelf.hasFailed(orderOf(1).key));
    EXPECT_TRUE(ask(orderOf(2)).isNull());
}

TEST_F(PictureShelfTest, AFailureIsThatOfOneSize)
{
    ask(orderOf(1, {5000, 5000}));
    m_loader.serveFirst(false);
    ask(orderOf(1));
    EXPECT_EQ(m_loader.names(), QStringList{u"1"_s}) << "a smaller one may do";
    m_loader.serveAll();
    EXPECT_FALSE(m_shelf.hasFailed(orderOf(1).key));
    ask(orderOf(1, {5000, 5000}));
    EXPECT_EQ(m_loader.names(), QStringList());
}

TEST(PictureShelfEndTest, AnswersMayComeAfterIt)
{
    SlowLoader loader;
    auto shelf = std::make_unique<PictureShelf>(loader);
    shelf->picture(orderOf(1).key, {5, 5}, 0);
    shelf.reset();
    loader.serveAll();
    EXPECT_TRUE(loader.names().isEmpty());
}

} // namespace
