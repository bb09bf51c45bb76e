// SPDX-License-Identifier: MIT

#pragma once

#include "window/cards/CardDelegate.h"
#include "window/cards/CardView.h"
#include "window/look/AppLook.h"

#include <QAbstractListModel>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSet>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

struct CardRows final : QAbstractListModel {
    QList<Card> cards;

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(cards.size());
    }
    QVariant data(const QModelIndex& index, int role) const override { return cardData(cards[index.row()], role); }
    Qt::ItemFlags flags(const QModelIndex& index) const override { return cardFlags(cards[index.row()]); }
    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        cards[index.row()].title = value.toString();
        Q_EMIT dataChanged(index, index, {role});
        return true;
    }
};

struct AskedPictures final : CardPictures {
    QSet<QString> asked;
    QSet<QString> there;
    QSize size;
    qsizetype wanted = 0;

    void want(const QList<QModelIndex>& indexes, QSize devicePixels) override
    {
        wanted = indexes.size();
        CardPictures::want(indexes, devicePixels);
    }

    QPixmap picture(const QModelIndex& index, QSize devicePixels) override
    {
        const QString key = cardAt(index).picture;
        asked.insert(key);
        size = devicePixels;
        if (!there.contains(key))
            return {};
        return stripes(devicePixels);
    }
    /// Single columns of pixels, which any scaling or shift would blur.
    static QPixmap stripes(QSize devicePixels)
    {
        QImage image(devicePixels, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, x % 2 ? 0xffff0000 : 0xff0000ff);
        }
        return QPixmap::fromImage(image);
    }
};

/// A page with sections of 1, 5 and 17 cards, 1120 by 500; their titles are "Card" and the row.
struct CardViewTest : ::testing::Test {
    CardRows rows;
    AskedPictures pictures;
    QWidget page;
    CardView* view = new CardView;
    QStringList heard; ///< signals with the titles of their cards

    CardViewTest()
    {
        AppLook::shared().apply({.reducesMotion = true});
        for (const int size : {1, 5, 17}) {
            Card heading;
            heading.isHeading = true;
            heading.title = u"Section"_s;
            heading.caption = u"%1 themes"_s.arg(size);
            rows.cards.append(heading);
            for (int number = 0; number < size; ++number) {
                Card card;
                card.title = u"Card %1"_s.arg(rows.cards.size());
                card.picture = card.title;
                card.description = u"A light, editorial front page. Light."_s;
                card.primary = u"Apply"_s;
                card.renames = true;
                rows.cards.append(card);
            }
        }
        auto* column = new QVBoxLayout(&page);
        column->setContentsMargins({});
        column->addWidget(view);
        view->setModel(&rows);
        view->setPictures(&pictures);
        hear("activated", &CardView::activated);
        hear("primary", &CardView::primaryPressed);
        hear("remove", &CardView::removeRequested);
        hear("menu", &CardView::menuRequested);
        hear("drag", &CardView::dragBegan);
        page.resize(1120, 500);
        page.show();
        page.activateWindow();
        view->setFocus(Qt::TabFocusReason);
        settle();
    }
    ~CardViewTest() override { AppLook::shared().apply({}); }

    template <typename Signal> void hear(const char* what, Signal signal)
    {
        QObject::connect(view, signal, view, [this, what](const QModelIndex& index) {
            heard.append(QString::fromLatin1(what) + u' ' + cardAt(index).title);
        });
    }
    void settle() const
    {
        for (int round = 0; round < 5; ++round)
            QCoreApplication::processEvents();
        view->grab();
    }
    QModelIndex row(int number) const { return rows.index(number); }
    void key(int key, Qt::KeyboardModifiers held = Qt::NoModifier, const QString& text = {}) const
    {
        QKeyEvent event(QEvent::KeyPress, key, held, text);
        QCoreApplication::sendEvent(view, &event);
    }
    void mouse(QEvent::Type type, const QPointF& at, Qt::MouseButton button = Qt::LeftButton) const
    {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, at, view->viewport()->mapToGlobal(at), moves ? Qt::NoButton : button,
            type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
        QCoreApplication::sendEvent(view->viewport(), &event);
    }
    void click(const QPointF& at) const
    {
        mouse(QEvent::MouseButtonPress, at);
        mouse(QEvent::MouseButtonRelease, at);
    }
    QPointF middle(int number, CardPart part) const { return view->partRect(row(number), part).center(); }
    QLineEdit* editor() const { return view->viewport()->findChild<QLineEdit*>(); }
    static QSet<QString> titles(int from, int to)
    {
        QSet<QString> all;
        for (int number = from; number <= to; ++number)
            all.insert(u"Card %1"_s.arg(number));
        return all;
    }
};

} // namespace ambrelle
