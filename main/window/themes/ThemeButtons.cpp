// SPDX-License-Identifier: MIT

#include "window/themes/ThemeButtons.h"

#include "foundation/Wording.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/Progress.h"
#include "window/themes/ThemeActions.h"

#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace ambrelle {

namespace {

constexpr int buttonHeight = 38;
constexpr int buttonSpacing = 7;
constexpr int ringLead = 10; // before the words

QString workingWords()
{
    return Wording::tr("Painting the wallpaper…");
}

} // namespace

ThemeButtons::ThemeButtons(QWidget* parent)
    : QWidget(parent)
    , m_ring(new Progress(Progress::Shape::ring, workingWords(), this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(buttonSpacing);
    for (const ThemeOperation operation :
        {ThemeOperation::applyWithWallpaper, ThemeOperation::applyKeepingWallpaper, ThemeOperation::setWallpaper}) {
        auto* button = new Button(ThemeActions::title(operation));
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->installEventFilter(this);
        column->addWidget(button);
        connect(button, &Button::clicked, this, [this, operation] { Q_EMIT pressed(operation); });
        m_buttons[operation] = button;
    }
    const auto dress = [this] {
        for (const auto& [operation, button] : m_buttons)
            button->setMinimumHeight(AppLook::shared().scaled(buttonHeight));
    };
    connect(&AppLook::shared(), &AppLook::changed, this, dress);
    dress();
    m_ring->hide();
    setState({});
}

void ThemeButtons::setState(const State& state)
{
    if (m_state == state)
        return;
    const bool wasWorking = m_state && m_state->working;
    m_state = state;
    if (state.working && !wasWorking) {
        const auto focused = std::ranges::find_if(m_buttons, [](const auto& each) { return each.second->hasFocus(); });
        m_focused = focused == m_buttons.end() ? nullptr : focused->second;
        if (m_focused)
            setFocus(Qt::OtherFocusReason); // else it would go elsewhere with the button
    }
    for (const auto& [operation, button] : m_buttons) {
        const bool needsWallpaper = operation != ThemeOperation::applyKeepingWallpaper;
        const bool possible = state.hasWallpaper || !needsWallpaper;
        const bool isChief = needsWallpaper == state.hasWallpaper && operation != ThemeOperation::setWallpaper;
        button->setText(operation == state.working ? workingWords() : ThemeActions::title(operation));
        button->setKind(isChief ? Button::Kind::primary : Button::Kind::plain);
        button->setToolTip(possible ? QString() : Wording::tr("This theme has no wallpaper"));
        button->setEnabled(possible && !state.working);
    }
    m_ring->setAccessibleName(Wording::tr("Painting %1", "the wallpaper of a theme").arg(state.theme));
    m_ring->setVisible(state.working.has_value());
    placeRing();
    if (wasWorking && !state.working && hasFocus() && m_focused)
        m_focused->setFocus(Qt::OtherFocusReason);
}

bool ThemeButtons::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        placeRing();
    return QWidget::eventFilter(watched, event);
}

/// Beside the words of the button that was pressed.
void ThemeButtons::placeRing()
{
    if (!m_state || !m_state->working)
        return;
    const Button& button = *m_buttons.at(*m_state->working);
    const QSize size = m_ring->sizeHint();
    const int words = button.fontMetrics().horizontalAdvance(button.title());
    const QRect area = button.geometry();
    const int left = std::max(ringLead, (area.width() - words) / 2 - ringLead - size.width());
    const QRect place(area.topLeft() + QPoint(left, (area.height() - size.height()) / 2), size);
    m_ring->setGeometry(QStyle::visualRect(layoutDirection(), area, place));
    m_ring->raise();
}

} // namespace ambrelle
