// SPDX-License-Identifier: MIT

#include "window/frame/DropFrame.h"

#include "drawing/Colours.h"
#include "window/look/AppLook.h"

#include <QPainter>

namespace ambrelle {

namespace {

constexpr double dropInset = 8;
constexpr double dropCorner = 12;
constexpr QSizeF signPadding{18, 12};

} // namespace

DropFrame::DropFrame(QWidget* window)
    : QWidget(window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropFrame::invite(const QString& sentence)
{
    m_sentence = sentence;
    setGeometry(parentWidget()->rect());
    raise();
    show();
    update();
}

void DropFrame::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const AppLook& look = AppLook::shared();
    const AppColours& colours = look.colours();
    painter.setBrush(faded(colours.accent, 0.1));
    painter.setPen(QPen(colours.accent, 2, Qt::DashLine));
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(dropInset, dropInset, -dropInset, -dropInset), dropCorner, dropCorner);
    painter.setFont(look.font(TextRole::heading));
    QRectF sign = painter.boundingRect(QRectF(rect()), Qt::AlignCenter, m_sentence);
    sign.adjust(-signPadding.width(), -signPadding.height(), signPadding.width(), signPadding.height());
    painter.setPen(QPen(colours.edge, 1));
    painter.setBrush(colours.surface);
    painter.drawRoundedRect(sign, dropCorner, dropCorner);
    painter.setPen(colours.text);
    painter.drawText(QRectF(rect()), Qt::AlignCenter, m_sentence);
}

} // namespace ambrelle
