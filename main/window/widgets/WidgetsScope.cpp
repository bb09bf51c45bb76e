// SPDX-License-Identifier: MIT

#include "window/widgets/WidgetsScope.h"

#include "window/look/AppLook.h"
#include "window/look/Measures.h"
#include "window/look/ReadingOrder.h"
#include "window/look/Segments.h"
#include "window/look/SkinChooser.h"
#include "window/look/SymbolIcon.h"
#include "window/look/TextLabel.h"

#include <QHBoxLayout>

namespace ambrelle {

namespace {

constexpr int scopeGap = 12;
constexpr int labelGap = 10;

QStringList shortLabels()
{
    QStringList labels;
    for (const WidgetCategory category : allCases<WidgetCategory>())
        labels.append(shortLabel(category));
    return labels;
}

} // namespace

WidgetsScope::WidgetsScope(QWidget* parent)
    : QWidget(parent)
    , m_segments(new Segments(shortLabels()))
    , m_categories(new QComboBox)
    , m_halves(new Segments(QStringList{Wording::tr("Gallery"), Wording::tr("On Your Desktop")}))
    , m_label(new TextLabel(TextRole::body, Wording::tr("New widgets use")))
    , m_skins(new SkinChooser)
{
    m_segments->setAccessibleName(Wording::tr("Category"));
    m_categories->setAccessibleName(Wording::tr("Category"));
    m_categories->setMaxVisibleItems(static_cast<int>(allCases<WidgetCategory>().size()));
    for (const WidgetCategory category : allCases<WidgetCategory>())
        m_categories->addItem(symbolIcon(symbol(category)), title(category));
    m_halves->setAccessibleName(Wording::tr("Show"));
    m_halves->setChosen(static_cast<int>(Half::gallery));
    m_label->setTone(TextLabel::Tone::soft);
    m_skins->setAccessibleName(m_label->text());
    auto* row = new QHBoxLayout(this);
    row->setSpacing(scopeGap);
    row->addWidget(m_segments);
    row->addWidget(m_categories);
    row->addWidget(m_halves);
    row->addStretch();
    auto* skin = new QHBoxLayout;
    skin->setSpacing(labelGap);
    skin->addWidget(m_label);
    skin->addWidget(m_skins);
    row->addLayout(skin);
    for (QWidget* each : {static_cast<QWidget*>(m_segments), static_cast<QWidget*>(m_halves)})
        each->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    const auto chose = [this](int index) { Q_EMIT categoryChosen(static_cast<WidgetCategory>(index)); };
    connect(m_segments, &Segments::chose, this, chose);
    connect(m_categories, &QComboBox::activated, this, chose);
    connect(m_halves, &Segments::chose, this, &WidgetsScope::halfChosen);
    connect(m_skins, &SkinChooser::chose, this, &WidgetsScope::skinChosen);
}

void WidgetsScope::setCategory(WidgetCategory category)
{
    m_segments->setChosen(static_cast<int>(category));
    m_categories->setCurrentIndex(static_cast<int>(category));
}

void WidgetsScope::setSkin(Skin skin)
{
    m_skins->setChosen(skin);
}

void WidgetsScope::arrange(int width, const QMargins& margins, bool halves)
{
    setFixedHeight(AppLook::shared().scaled(measures::scopeHeight));
    layout()->setContentsMargins(inReadingOrder(margins, layoutDirection()));
    const int room = width - margins.left() - margins.right() - scopeGap - m_skins->sizeHint().width();
    const bool folds = width < measures::wideWindow || m_segments->sizeHint().width() > room;
    m_segments->setVisible(!folds);
    m_categories->setVisible(folds);
    m_halves->setVisible(halves);
    const int left = (folds ? m_categories : static_cast<QWidget*>(m_segments))->sizeHint().width()
        + (halves ? m_halves->sizeHint().width() + scopeGap : 0);
    m_label->setVisible(left + labelGap + m_label->sizeHint().width() <= room);
    m_skins->setToolTip(m_label->isHidden() ? m_label->text() : QString());
}

WidgetsScope::Half WidgetsScope::half() const
{
    return static_cast<Half>(m_halves->chosen());
}

QWidget& WidgetsScope::last() const
{
    return *m_skins;
}

QWidget& WidgetsScope::first() const
{
    if (m_segments->isHidden())
        return *m_categories;
    const QList<Segment*> all = m_segments->findChildren<Segment*>();
    return *all.value(std::max(0, m_segments->chosen()));
}

} // namespace ambrelle
