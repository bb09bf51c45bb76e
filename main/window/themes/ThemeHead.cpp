// SPDX-License-Identifier: MIT

#include "window/themes/ThemeHead.h"

#include "foundation/Wording.h"
#include "model/SavedTheme.h"
#include "window/look/AccessibleRole.h"
#include "window/look/TextLabel.h"
#include "window/themes/FlowLayout.h"
#include "window/themes/Pill.h"
#include "window/themes/ThemeFacts.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int headGap = 8;
constexpr int taglineGap = 3;

} // namespace

NameLabel::NameLabel(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::Heading);
    const auto dress = [this] {
        setFont(AppLook::shared().font(TextRole::largeTitle));
        updateGeometry();
        update();
    };
    connect(&AppLook::shared(), &AppLook::changed, this, dress);
    dress();
}

void NameLabel::setText(const QString& text)
{
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QSize NameLabel::sizeHint() const
{
    const QFontMetricsF metrics(font());
    return {static_cast<int>(std::ceil(metrics.horizontalAdvance(m_text))) + 1,
        static_cast<int>(std::ceil(metrics.height()))};
}

void NameLabel::resizeEvent(QResizeEvent*)
{
    // Names of others are no markup.
    setToolTip(width() < sizeHint().width() ? u"<span>%1</span>"_s.arg(m_text.toHtmlEscaped()) : QString());
}

void NameLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(AppLook::shared().colours().text);
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter;
    painter.drawText(rect(), static_cast<int>(alignment) | Qt::TextSingleLine,
        fontMetrics().elidedText(m_text, Qt::ElideRight, width()));
}

bool NameEditor::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void NameEditor::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT left();
    else
        QLineEdit::keyPressEvent(event);
}

ThemeHead::ThemeHead(QWidget* parent)
    : QWidget(parent)
    , m_name(new NameLabel)
    , m_light(new Pill(false))
    , m_onDesktop(new Pill(true))
    , m_tagline(new TextLabel(TextRole::body))
{
    m_tagline->setTone(TextLabel::Tone::soft);
    m_tagline->setWordWrap(true);
    m_onDesktop->setContent(u"checkmark"_s, Wording::tr("On Desktop"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(taglineGap);
    auto* line = new FlowLayout(headGap, taglineGap);
    line->addWidget(m_name);
    line->addWidget(m_light);
    line->addWidget(m_onDesktop);
    column->addLayout(line);
    column->addWidget(m_tagline);
}

void ThemeHead::setTheme(const ThemeFacts& facts, bool isOnDesktop)
{
    m_name->setText(facts.title);
    m_light->setContent(
        facts.isLight ? u"sun.max"_s : u"moon.fill"_s, facts.isLight ? Wording::tr("Light") : Wording::tr("Dark"));
    m_onDesktop->setVisible(isOnDesktop);
    m_tagline->setText(facts.tagline);
}

void ThemeHead::rename()
{
    if (m_editor)
        return;
    auto* editor = new NameEditor(m_name->text(), this);
    m_editor = editor;
    editor->setAccessibleName(Wording::tr("Name"));
    editor->setMaxLength(static_cast<int>(SavedTheme::longestName));
    editor->setGeometry(contentsRect().left(), 0, contentsRect().width(), editor->sizeHint().height());
    editor->selectAll();
    editor->show();
    editor->setFocus(Qt::OtherFocusReason);
    connect(editor, &NameEditor::left, this, &ThemeHead::endRename);
    connect(editor, &QLineEdit::editingFinished, this, [this, editor] {
        if (m_editor != editor)
            return;
        const QString name = editor->text();
        endRename();
        Q_EMIT renamed(name);
    });
}

void ThemeHead::endRename()
{
    if (!m_editor)
        return;
    QLineEdit* editor = m_editor;
    const bool hadFocus = editor->hasFocus();
    m_editor = nullptr; // hiding it is no answer
    editor->hide();
    editor->deleteLater();
    if (hadFocus)
        setFocus(Qt::OtherFocusReason); // the keyboard stays on the page
}

} // namespace ambrelle
