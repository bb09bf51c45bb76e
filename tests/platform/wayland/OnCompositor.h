// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/WaylandWindowHost.h"
#include "support/PlainFace.h"
#include "support/WaitUntil.h"
#include "support/wayland/VirtualInput.h"

#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QProcess>
#include <QRasterWindow>
#include <QScreen>

#include <gtest/gtest.h>

namespace ambrelle::test {

using namespace Qt::StringLiterals;

inline const QColor theFace = QColor::fromRgb(faceColour);

/// A host on the real compositor, with a pointer of its own.
class OnCompositor : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(host.isAvailable()) << host.whyNot().toStdString();
        ASSERT_FALSE(host.screens().isEmpty());
        ASSERT_TRUE(input);
        host.order().setJoining(joining());
        point({1, 1});
    }

    /// As the program knows it of Sway.
    static Joining joining()
    {
        if (!qEnvironmentVariableIsSet("SWAYSOCK"))
            return Joining::anew;
        QProcess version;
        version.start(u"swaymsg"_s, {u"-r"_s, u"-t"_s, u"get_version"_s});
        version.waitForFinished();
        const QJsonObject told = QJsonDocument::fromJson(version.readAllStandardOutput()).object();
        return told["minor"_L1].toInt() < 10 ? Joining::below : Joining::above;
    }

    std::unique_ptr<PanelWindow> make(PlainFace& plain, const QRectF& frame)
    {
        plain.face = QRectF({0, 0}, frame.size()).adjusted(margin, margin, -margin, -margin);
        std::unique_ptr<PanelWindow> made = host.makePanel(plain);
        made->setFrame(frame);
        made->setInputArea(plain.face);
        return made;
    }

    /// The colour that is seen at a global point, in pixels of a scale.
    QColor seen(const QPointF& point, int scale = 1) const
    {
        const QPointF place = host.toolkitRect({point, QSizeF(0, 0)}).topLeft();
        const QPoint at(static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y())));
        QProcess grim;
        grim.start(u"grim"_s,
            {u"-s"_s, QString::number(scale), u"-t"_s, u"ppm"_s, u"-g"_s, u"%1,%2 1x1"_s.arg(at.x()).arg(at.y()),
                u"-"_s});
        if (!grim.waitForFinished())
            return {};
        const int column = static_cast<int>((place.x() - at.x()) * scale);
        const QByteArray pixels = grim.readAllStandardOutput().last(qsizetype{3} * scale * scale);
        const QByteArray pixel = pixels.mid(qsizetype{3} * column, 3);
        return {static_cast<uchar>(pixel[0]), static_cast<uchar>(pixel[1]), static_cast<uchar>(pixel[2])};
    }
    bool isSeen(const QPointF& point, const QColor& colour) const
    {
        return waitUntil([&] { return seen(point) == colour; });
    }

    /// Moves the pointer to a global point.
    void point(const QPointF& point)
    {
        QRectF outputs;
        for (const QScreen* screen : QGuiApplication::screens())
            outputs |= screen->geometry();
        input->move(host.toolkitRect({point, QSizeF(0, 0)}).topLeft(), outputs);
    }

    WaylandWindowHost host;
    std::unique_ptr<VirtualInput> input = VirtualInput::plugIn();
    PlainFace face;
};

/// Goes with the pointer, as widgets do.
struct FollowingFace : PlainFace {
    void pointerMoved(const PointerEvent& event) override
    {
        PlainFace::pointerMoved(event);
        if (event.button == Qt::LeftButton)
            panel->setFrame(start.translated(event.global - pressed.last().global));
    }
    PanelWindow* panel = nullptr;
    QRectF start;
};

/// A normal window of one colour that notes what it hears.
class NormalWindow final : public QRasterWindow {
public:
    explicit NormalWindow(const QColor& colour)
        : m_colour(colour)
    {
        resize(300, 200);
        showMaximized(); // where the compositor does not tile
    }

    int presses = 0;
    int releases = 0;

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(QRect({0, 0}, size()), m_colour); }
    void mousePressEvent(QMouseEvent*) override { ++presses; }
    void mouseReleaseEvent(QMouseEvent*) override { ++releases; }

private:
    QColor m_colour;
};

} // namespace ambrelle::test
