// SPDX-License-Identifier: MIT

#include "window/frame/SheetCard.h"

#include "window/frame/SheetTable.h"
#include "window/look/AccessibleRole.h"
#include "window/look/Button.h"
#include "window/look/ControlPainting.h"
#include "window/look/Shadow.h"
#include "window/look/TextLabel.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int sheetWidth = 456; // points
constexpr int sheetMargin = 40; // of the window, which it leaves free
constexpr int sheetPadding = 22;
constexpr int ringRoom = 4; // around what scrolls, for the mark of the focus
constexpr double sheetCorner = 14;
constexpr int badgeSide = 40;
constexpr int badgeSymbolSide = 22;
constexpr double badgeRound = 9;
constexpr int textGap = 6;
constexpr int controlGap = 14;
constexpr int buttonsGap = 18; // above them
constexpr int buttonSpacing = 9;

/// The symbol of a failure on its plate.
class WarningBadge final : public QWidget {
public:
    WarningBadge() { setFixedSize(badgeSide, badgeSide); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor plate = AppLook::shared().colours().accent;
        const QColor ink = plate;
        plate.setAlphaF(0.16F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(plate);
        painter.drawRoundedRect(rect(), badgeRound, badgeRound);
        QRectF place(0, 0, badgeSymbolSide, badgeSymbolSide);
        place.moveCenter(QRectF(rect()).center());
        paintSymbol(painter, place, u"exclamationmark.triangle.fill"_s, ink);
    }
};

Button::Kind buttonKind(SheetButton::Role role)
{
    switch (role) {
    case SheetButton::Role::action: return Button::Kind::primary;
    case SheetButton::Role::danger: return Button::Kind::danger;
    default: return Button::Kind::plain;
    }
}

} // namespace

SheetCard::SheetCard(const SheetContent& content, QWidget* parent)
    : QWidget(parent)
    , m_content(content)
    , m_scroll(new QScrollArea)
    , m_body(makeBody())
    , m_row(new QHBoxLayout)
{
    setAccessibleRole(*this, QAccessible::Dialog);
    setAccessibleName(content.title);
    setAccessibleDescription(content.text);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(content.table.isEmpty() ? Qt::NoFocus : Qt::StrongFocus); // to be scrolled by keys
    setAccessibleRole(*m_scroll, QAccessible::Pane); // one can come to it, to scroll
    m_scroll->setAccessibleName(content.title);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidgetResizable(true);
    m_scroll->setWidget(m_body);
    m_body->setAutoFillBackground(false);
    m_scroll->viewport()->setAutoFillBackground(false);
    auto* column = new QVBoxLayout(this);
    constexpr int side = shadowReach + sheetPadding - ringRoom;
    column->setContentsMargins(side, side, side, side);
    column->setSpacing(buttonsGap - ringRoom);
    column->addWidget(m_scroll);
    column->addLayout(m_row);
    m_row->setContentsMargins(ringRoom, 0, ringRoom, ringRoom);
    m_row->setSpacing(buttonSpacing);
    makeButtons(*m_row);
    judge();
}

QWidget* SheetCard::makeBody()
{
    auto* body = new QWidget;
    auto* row = new QHBoxLayout(body);
    row->setContentsMargins(ringRoom, ringRoom, ringRoom, ringRoom);
    row->setSpacing(controlGap);
    if (m_content.warning)
        row->addWidget(new WarningBadge, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout;
    column->setSpacing(textGap);
    row->addLayout(column, 1);
    for (const auto& [role, text] :
        {std::pair(TextRole::heading, m_content.title), std::pair(TextRole::body, m_content.text)}) {
        auto* label = new TextLabel(role, text);
        label->setWordWrap(true);
        if (role == TextRole::body)
            label->setTone(TextLabel::Tone::soft);
        column->addWidget(label);
        label->setVisible(!text.isEmpty()); // not before it has a parent: it would be a window for a moment
    }
    addControls(*column);
    return body;
}

void SheetCard::addControls(QBoxLayout& column)
{
    if (!m_content.table.isEmpty()) {
        column.addSpacing(controlGap - textGap);
        column.addLayout(makeSheetTable(m_content.table));
    }
    if (m_content.field) {
        m_field = new QLineEdit(m_content.field->value);
        m_field->setMaxLength(m_content.field->limit);
        m_field->setAccessibleName(m_content.field->label);
        m_field->setPlaceholderText(m_content.field->label);
        connect(m_field, &QLineEdit::textChanged, this, &SheetCard::judge);
        column.addSpacing(controlGap - textGap);
        column.addWidget(m_field);
    }
    if (m_content.choice) {
        m_choice = new QComboBox;
        m_choice->addItems(m_content.choice->titles);
        m_choice->setCurrentIndex(m_content.choice->chosen);
        m_choice->setAccessibleName(m_content.choice->label);
        m_choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        auto* label = new TextLabel(TextRole::body, m_content.choice->label);
        label->setTone(TextLabel::Tone::soft);
        label->setBuddy(m_choice);
        auto* line = new QHBoxLayout;
        line->setSpacing(buttonSpacing);
        line->addWidget(label);
        line->addWidget(m_choice, 1);
        column.addSpacing(controlGap - textGap);
        column.addLayout(line);
    }
}

void SheetCard::makeButtons(QBoxLayout& row)
{
    const SheetButton* standard = m_content.standard();
    if (m_content.buttons.size() < 3)
        row.addStretch(1);
    for (const SheetButton& offered : m_content.buttons) {
        auto* button = new Button(offered.title, buttonKind(offered.role));
        row.addWidget(button);
        if (m_content.buttons.size() >= 3 && offered.role == SheetButton::Role::cancel)
            row.addStretch(1);
        if (standard && offered == *standard)
            m_standard = button;
        m_buttons.append(button);
        connect(button, &Button::clicked, this, [this, id = offered.id] { press(id); });
    }
}

void SheetCard::fit(const QSize& room)
{
    const int most = room.width() - sheetMargin + 2 * shadowReach;
    const int width = std::min(AppLook::shared().scaled(sheetWidth) + 2 * shadowReach, most);
    const QMargins around = layout()->contentsMargins();
    const int inner = width - around.left() - around.right();
    // Buttons that do not fit side by side stand below each other, the standard one on top.
    m_row->setDirection(QBoxLayout::LeftToRight);
    const bool narrow = m_row->sizeHint().width() > inner;
    m_row->setDirection(narrow ? QBoxLayout::BottomToTop : QBoxLayout::LeftToRight);
    for (Button* button : m_buttons)
        button->setSizePolicy(narrow ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
    const int body = m_body->layout()->hasHeightForWidth() ? m_body->layout()->totalHeightForWidth(inner)
                                                           : m_body->sizeHint().height();
    const int rest = around.top() + around.bottom() + layout()->spacing() + m_row->sizeHint().height();
    const int highest = room.height() - sheetMargin + 2 * shadowReach;
    m_scroll->setFixedHeight(std::max(0, std::min(body, highest - rest)));
    resize(width, rest + m_scroll->height());
}

void SheetCard::takeFocus()
{
    if (m_field) {
        m_field->setFocus(Qt::TabFocusReason);
        m_field->selectAll();
    } else if (QWidget* first = m_standard ? m_standard : m_buttons.value(0)) {
        first->setFocus(Qt::TabFocusReason);
    }
}

bool SheetCard::wasEdited() const
{
    return m_field && m_field->text() != m_content.field->value;
}

void SheetCard::leave()
{
    Q_EMIT answered({});
}

void SheetCard::pressStandard()
{
    if (m_standard)
        m_standard->click();
}

void SheetCard::scroll(int pages)
{
    QScrollBar& bar = *m_scroll->verticalScrollBar();
    bar.setValue(bar.value() + pages * bar.pageStep());
}

void SheetCard::press(const QString& id)
{
    for (const SheetButton& button : m_content.buttons) {
        if (button.id == id && button.role == SheetButton::Role::cancel) {
            leave();
            return;
        }
    }
    Q_EMIT answered({.button = id,
        .text = m_field ? m_field->text().trimmed() : QString(),
        .choice = m_choice ? m_choice->currentIndex() : -1});
}

/// An action needs a text that is more than spaces.
void SheetCard::judge()
{
    const bool complete = !m_field || !m_field->text().trimmed().isEmpty();
    for (qsizetype index = 0; index < m_buttons.size(); ++index)
        m_buttons[index]->setEnabled(complete || m_content.buttons[index].role == SheetButton::Role::cancel);
}

QRectF SheetCard::plate() const
{
    return QRectF(rect()).adjusted(shadowReach, shadowReach, -shadowReach, -shadowReach);
}

void SheetCard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const AppColours& colours = AppLook::shared().colours();
    drawShadow(painter, plate(), sheetCorner);
    painter.setBrush(colours.surface);
    painter.setPen(AppLook::shared().wishes().highContrast ? QPen(colours.edge, 1) : QPen(Qt::NoPen));
    painter.drawRoundedRect(plate(), sheetCorner, sheetCorner);
}

} // namespace ambrelle
