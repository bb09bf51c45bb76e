// SPDX-License-Identifier: MIT

#include "window/look/TextLabel.h"

#include <QEvent>
#include <QStyle>

#include <utility>

namespace ambrelle {

TextLabel::TextLabel(TextRole role, const QString& text, QWidget* parent)
    : QLabel(text, parent)
    , m_role(role)
    , m_tone(role == TextRole::caption ? Tone::soft : Tone::text)
{
    setTextFormat(Qt::PlainText);
    connect(&AppLook::shared(), &AppLook::changed, this, &TextLabel::dress);
    dress();
    align();
}

void TextLabel::setAlignment(Qt::Alignment alignment)
{
    m_alignment = alignment;
    align();
}

void TextLabel::align()
{
    QLabel::setAlignment(QStyle::visualAlignment(layoutDirection(), m_alignment));
}

void TextLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        align();
}

void TextLabel::setTone(Tone tone)
{
    if (std::exchange(m_tone, tone) != tone)
        dress();
}

void TextLabel::dress()
{
    const AppColours& colours = AppLook::shared().colours();
    QPalette dressed = palette();
    dressed.setColor(QPalette::WindowText,
        m_tone == Tone::danger     ? colours.danger
            : m_tone == Tone::soft ? colours.soft
                                   : colours.text);
    setPalette(dressed);
    setFont(AppLook::shared().font(m_role));
}

} // namespace ambrelle
