// SPDX-License-Identifier: MIT

#include "desktop/DragGuides.h"

#include <QPainter>

namespace ambrelle {

namespace {

constexpr double bright = 0.5; // lightness from which a colour wants a dark edge
const QColor darkEdge(0, 0, 0, 70);
const QColor lightEdge(255, 255, 255, 130);

} // namespace

/// One point of accent between two of the opposite lightness, so that it shows on any picture.
class DragGuides::Line final : public OrnamentDelegate {
public:
    explicit Line(WindowHost& host)
        : m_window(host.makePanel(*this))
    {
        m_window->setClickThrough(true);
    }

    void show(const QRectF& area, WindowLevel level, const QColor& accent)
    {
        m_accent = accent;
        if (area != m_window->frame()) {
            m_window->setFrame(area);
            m_window->update({{}, area.size()});
        }
        m_window->setLevel(level);
        m_window->show();
    }
    void hide() { m_window->hide(); }

    void paint(QPainter& painter, const QRectF&) override
    {
        const QRectF whole({}, m_window->frame().size());
        const bool upright = whole.height() > whole.width();
        painter.fillRect(whole, m_accent.lightnessF() > bright ? darkEdge : lightEdge);
        painter.fillRect(upright ? whole.adjusted(1, 0, -1, 0) : whole.adjusted(0, 1, 0, -1), m_accent);
    }
    void appearanceChanged() override { m_window->update({{}, m_window->frame().size()}); }

private:
    QColor m_accent;
    std::unique_ptr<PanelWindow> m_window; // last: it calls back until it is gone
};

DragGuides::DragGuides(WindowHost& host)
    : m_host(host)
{
}

DragGuides::~DragGuides() = default;

void DragGuides::show(const QList<QRectF>& lines, WindowLevel level, const QColor& accent)
{
    const auto count = static_cast<std::size_t>(lines.size());
    while (m_lines.size() < count)
        m_lines.push_back(std::make_unique<Line>(m_host));
    for (std::size_t index = 0; index < m_lines.size(); ++index) {
        if (index < count)
            m_lines[index]->show(lines.at(static_cast<qsizetype>(index)), level, accent);
        else
            m_lines[index]->hide();
    }
}

void DragGuides::clear()
{
    m_lines.clear();
}

} // namespace ambrelle
