// SPDX-License-Identifier: MIT

#include "desktop/EditBackdrop.h"

#include "desktop/WidgetController.h"
#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "placement/InstructionPlace.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString instructionText(bool locked)
{
    return locked
        ? Wording::tr("Positions are locked: press Space to unlock, click an empty space or press Esc to finish.")
        : Wording::tr("Drag widgets anywhere. Click an empty space or press Esc to finish.");
}

constexpr double instructionMargin = 16; // kept free along the screen's edges and around widgets
constexpr std::array textSizes{16.0, 13.0, 11.0, 9.0}; // the largest that fits the screen

// Dark enough to tell that the desktop is out of reach, and light enough to see where a widget will stand.
const QColor shade(8, 10, 16, 92);

bool fits(const QSizeF& size, const QSizeF& room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

} // namespace

EditBackdrop::EditBackdrop(WindowHost& host, AppSettings& settings)
    : m_settings(settings)
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
        m_capsule = TextCapsule(instructionText(m_settings.locked()), size, room.width());
        m_instruction = instructionPlace(m_capsule.size(), room, taken);
        if (fits(m_capsule.size(), room.size()))
            break;
    }
    m_window->setFrame(screen.frame);
    m_window->update();
}

void EditBackdrop::paint(QPainter& painter, const QSizeF& size)
{
    painter.fillRect(QRectF({0, 0}, size), shade);
    m_capsule.paint(
        painter, {m_instruction.x() - m_screen.frame.x(), m_screen.frame.bottom() - m_instruction.bottom()});
}

void EditBackdrop::keyPressed(Qt::Key key)
{
    if (key == Qt::Key_Escape)
        finish();
    else if (key == Qt::Key_Space)
        m_settings.locked.set(false);
}

/// Ends with the destruction of this object.
void EditBackdrop::finish() const
{
    m_settings.editing.set(false);
}

EditBackdrops::EditBackdrops(WindowHost& host, AppSettings& settings, const QList<WidgetController*>& widgets)
    : m_host(host)
    , m_settings(settings)
    , m_widgets(widgets)
{
    connect(&m_settings, &AppSettings::changed, this, [this](const QString& key) {
        if (key == m_settings.editing.key() || key == m_settings.locked.key())
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
        m_backdrops.push_back(std::make_unique<EditBackdrop>(m_host, m_settings));
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
