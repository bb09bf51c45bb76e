// SPDX-License-Identifier: MIT

#include "desktop/EditBackdrop.h"

#include "desktop/InstructionPlace.h"
#include "desktop/WidgetController.h"
#include "drawing/Canvas.h"
#include "foundation/Wording.h"
#include "model/AppSettings.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString instructionText()
{
    return Wording::tr("Drag widgets anywhere. Click an empty space or press Esc to finish.");
}

constexpr double instructionMargin = 16; // kept free along the screen's edges and around widgets
constexpr std::array textSizes{16.0, 13.0, 11.0, 9.0}; // the largest that fits the screen
constexpr int mostLines = 8;

// Dark enough to tell that the desktop is out of reach, and light enough to see where a widget will stand.
const QColor shade(8, 10, 16, 92);
// White on this is above 10 : 1 over any wallpaper, a white one included.
const QColor instructionColour(18, 18, 22, 232);
const QColor instructionEdge(255, 255, 255, 64);
const QColor instructionInk(255, 255, 255, 240);

TextStyle instructionStyle(double size)
{
    return {
        .face = {u"Inter"_s, 500}, .size = size, .colour = instructionInk, .align = Align::centre, .lines = mostLines};
}

double lineHeight(const TextStyle& style)
{
    return style.size * style.lineHeight;
}

/// Between the text and the edge of its capsule.
QSizeF padding(const TextStyle& style)
{
    return {style.size * 1.75, style.size * 0.875};
}

QSizeF capsuleSize(const TextStyle& style, double room)
{
    const QSizeF around = padding(style) * 2;
    const QStringList lines = wrapped(instructionText(), style, room - around.width());
    double widest = 0;
    for (const QString& line : lines)
        widest = std::max(widest, shape(style.face, style.size, line)->width);
    return QSizeF(std::ceil(widest), static_cast<double>(lines.size()) * lineHeight(style)) + around;
}

bool fits(const QSizeF& size, const QSizeF& room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

} // namespace

EditBackdrop::EditBackdrop(WindowHost& host, std::function<void()> finished)
    : m_finished(std::move(finished))
    , m_window(host.makeBackdrop(*this))
{
}

void EditBackdrop::cover(const ScreenInfo& screen, const QList<QRectF>& widgets)
{
    m_screen = screen;
    const QRectF work = screen.visibleFrame.isEmpty() ? screen.frame : screen.visibleFrame;
    const QRectF room = work.adjusted(instructionMargin, instructionMargin, -instructionMargin, -instructionMargin);
    QList<QRectF> taken;
    for (const QRectF& widget : widgets)
        taken.append(widget.adjusted(-instructionMargin, -instructionMargin, instructionMargin, instructionMargin));
    for (const double size : textSizes) {
        m_textSize = size;
        const QSizeF capsule = capsuleSize(instructionStyle(size), room.width());
        m_instruction = instructionPlace(capsule, room, taken);
        if (fits(capsule, room.size()))
            break;
    }
    m_window->setFrame(screen.frame);
    m_window->update();
}

void EditBackdrop::paint(QPainter& painter, const QSizeF& size)
{
    Canvas canvas(painter, {});
    canvas.fill(QRectF({0, 0}, size), shade);
    const QPointF corner(m_instruction.x() - m_screen.frame.x(), m_screen.frame.bottom() - m_instruction.bottom());
    const Box capsule(QRectF(corner, m_instruction.size()));
    const TextStyle style = instructionStyle(m_textSize);
    const QSizeF around = padding(style);
    const double radius = std::min(capsule.height() / 2, around.width());
    canvas.fill(capsule, instructionColour, radius);
    canvas.frame(capsule, QPen(instructionEdge, 1), radius);
    Box text = capsule.inset(around.width() - 0.5, around.height()); // the widest line must not break again
    for (const QString& line : wrapped(instructionText(), style, text.width()))
        canvas.text(text.cutTop(lineHeight(style)), line, style);
}

void EditBackdrop::keyPressed(Qt::Key key)
{
    if (key == Qt::Key_Escape)
        finish();
}

void EditBackdrop::finish() const
{
    // Finishing destroys this object.
    const std::function<void()> finished = m_finished;
    finished();
}

EditBackdrops::EditBackdrops(WindowHost& host, AppSettings& settings, const QList<WidgetController*>& widgets)
    : m_host(host)
    , m_settings(settings)
    , m_widgets(widgets)
{
    connect(&m_settings, &AppSettings::changed, this, [this](const QString& key) {
        if (key == m_settings.editing.key())
            update();
    });
}

void EditBackdrops::update()
{
    if (m_settings.editing())
        open();
    else
        m_backdrops.clear();
}

void EditBackdrops::open()
{
    QList<QRectF> widgets;
    for (const WidgetController* widget : m_widgets)
        widgets.append(widget->widgetFrame());
    const QList<ScreenInfo> screens = m_host.screens();
    const auto gone = [&](const std::unique_ptr<EditBackdrop>& backdrop) {
        return std::ranges::find(screens, backdrop->screen().id, &ScreenInfo::id) == screens.end();
    };
    const bool first = m_backdrops.empty();
    const bool lost = std::erase_if(m_backdrops, gone) > 0;
    for (const ScreenInfo& screen : screens) {
        const auto found = std::ranges::find_if(
            m_backdrops, [&](const std::unique_ptr<EditBackdrop>& each) { return each->screen().id == screen.id; });
        if (found != m_backdrops.end()) {
            (*found)->cover(screen, widgets);
            continue;
        }
        m_backdrops.push_back(std::make_unique<EditBackdrop>(m_host, [this] { m_settings.editing.set(false); }));
        m_backdrops.back()->cover(screen, widgets);
        m_backdrops.back()->show();
    }
    if (first || lost)
        focus();
}

void EditBackdrops::focus()
{
    const QPointF pointer = m_host.pointer();
    const auto under = std::ranges::find_if(m_backdrops,
        [&](const std::unique_ptr<EditBackdrop>& backdrop) { return backdrop->screen().frame.contains(pointer); });
    if (under != m_backdrops.end())
        (*under)->takeFocus();
    else if (!m_backdrops.empty())
        m_backdrops.front()->takeFocus();
}

} // namespace ambrelle
